#include "platform/Forms.h"

#include <stdexcept>

namespace platform {

namespace {
FormHost* present = nullptr;
}

FormHost& formHost() {
    if (present == nullptr) {
        throw std::logic_error("No form host was set.");
    }
    return *present;
}

void setFormHost(FormHost* host) {
    present = host;
}

} // namespace platform
