#include "platform/Dialogs.h"

#include <stdexcept>
#include <utility>

namespace platform {

namespace {
std::unique_ptr<Dialogs> present;
}

Dialogs& dialogs() {
    if (!present) {
        throw std::logic_error("No dialogs were set.");
    }
    return *present;
}

void setDialogs(std::unique_ptr<Dialogs> dialogs) {
    present = std::move(dialogs);
}

} // namespace platform
