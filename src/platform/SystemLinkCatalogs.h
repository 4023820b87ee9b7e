#pragma once

#include "platform/LinkCatalogs.h"

#include <memory>

namespace platform {

/// Those of the system's own engine of local databases where it has one, else those of the program's own files.
std::unique_ptr<LinkCatalogs> systemLinkCatalogs();

} // namespace platform
