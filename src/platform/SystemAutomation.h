#pragma once

#include "platform/Automation.h"

#include <memory>

namespace platform {

/// What this system offers for driving other applications.
std::unique_ptr<Automation> systemAutomation();

} // namespace platform
