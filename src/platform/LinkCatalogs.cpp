#include "platform/LinkCatalogs.h"

#include "platform/SystemLinkCatalogs.h"

#include <utility>

namespace platform {

namespace {

std::unique_ptr<LinkCatalogs> present;

} // namespace

LinkCatalogs& linkCatalogs() {
    if (!present) {
        present = systemLinkCatalogs();
    }
    return *present;
}

void setLinkCatalogs(std::unique_ptr<LinkCatalogs> catalogs) {
    present = std::move(catalogs);
}

} // namespace platform
