#include "platform/FileLinkCatalogs.h"
#include "platform/SystemLinkCatalogs.h"

namespace platform {

std::unique_ptr<LinkCatalogs> systemLinkCatalogs() {
    return std::make_unique<FileLinkCatalogs>();
}

} // namespace platform
