#include "controls/Guard.h"

#include "platform/Dialogs.h"

namespace controls {

void tellError(const std::exception& error) {
    platform::dialogs().message(error.what());
}

} // namespace controls
