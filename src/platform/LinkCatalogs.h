#pragma once

#include "ado/Value.h"

#include <memory>
#include <string>
#include <vector>

namespace platform {

/// A table in the catalog of a local database. Every operation may throw; texts may be null.
class CatalogTable {
public:
    virtual ~CatalogTable() = default;
    virtual ado::Value Type() = 0; ///< "LINK" and "PASS-THROUGH" for tables of a server, others for the file's own
    virtual ado::Value Name() = 0;
    /// The text by which a link reaches its server: the property at index 5.
    virtual ado::Value ProviderString() = 0;
    virtual void setProviderString(const std::string& text) = 0;
    virtual void RefreshProperties() = 0;
};

/// The catalog of an open local database; its destruction closes it. Every operation may throw.
class LinkCatalog {
public:
    virtual ~LinkCatalog() = default;
    virtual int Count() = 0;
    /// Reads the list of tables anew.
    virtual void Refresh() = 0;
    /// The tables in the catalog's order. They stay valid until the catalog is destroyed.
    virtual std::vector<std::shared_ptr<CatalogTable>> Tables() = 0;
};

/// The local databases of this machine.
class LinkCatalogs {
public:
    virtual ~LinkCatalogs() = default;
    /// Opens the database of a connection text ("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" and a path of drive C).
    /// Throws where it can't be opened.
    virtual std::unique_ptr<LinkCatalog> open(const std::string& connection) = 0;
};

LinkCatalogs& linkCatalogs();
/// Sets others in the place of this machine's own; null sets those again.
void setLinkCatalogs(std::unique_ptr<LinkCatalogs> catalogs);

} // namespace platform
