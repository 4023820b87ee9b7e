#include "platform/Automation.h"

#include "ado/Error.h"

#include <utility>

namespace platform {

namespace {

constexpr int kCannotCreateObject = 429;

/// For a machine on which no application can be driven.
class NoAutomation : public Automation {
public:
    std::unique_ptr<ReportApplication> createObject(const std::string& /*progId*/) override {
        throw ado::Error(kCannotCreateObject, "ActiveX component can't create object");
    }
};

std::unique_ptr<Automation> present;

} // namespace

Automation& automation() {
    if (!present) {
        present = std::make_unique<NoAutomation>();
    }
    return *present;
}

void setAutomation(std::unique_ptr<Automation> automation) {
    present = std::move(automation);
}

} // namespace platform
