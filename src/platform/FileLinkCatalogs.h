#pragma once

#include "platform/LinkCatalogs.h"

namespace platform {

/// For a machine without the engine of local databases: each of them is a file of the program's own that holds nothing
/// but its catalog (ado/LinkFile.h), under the name that the database has.
class FileLinkCatalogs : public LinkCatalogs {
public:
    std::unique_ptr<LinkCatalog> open(const std::string& connection) override;
};

} // namespace platform
