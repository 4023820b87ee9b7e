#include "platform/LinkCatalogs.h"

#include "platform/FileLinkCatalogs.h"

#include <utility>

namespace platform {

namespace {

std::unique_ptr<LinkCatalogs> present;

} // namespace

LinkCatalogs& linkCatalogs() {
    if (!present) {
        present = std::make_unique<FileLinkCatalogs>();
    }
    return *present;
}

void setLinkCatalogs(std::unique_ptr<LinkCatalogs> catalogs) {
    present = std::move(catalogs);
}

} // namespace platform
