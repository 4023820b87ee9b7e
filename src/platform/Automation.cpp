#include "platform/Automation.h"

#include "platform/SystemAutomation.h"

#include <utility>

namespace platform {

namespace {

std::unique_ptr<Automation> present;

} // namespace

Automation& automation() {
    if (!present) {
        present = systemAutomation();
    }
    return *present;
}

void setAutomation(std::unique_ptr<Automation> automation) {
    present = std::move(automation);
}

} // namespace platform
