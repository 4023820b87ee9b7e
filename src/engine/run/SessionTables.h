#pragma once

#include "engine/bind/Binder.h"
#include "engine/run/ServerSession.h"

namespace engine {

/// Finds the tables of a session's statement by their names and collects what the plan has to know about them.
class SessionTables : public TableFinder {
public:
    explicit SessionTables(ServerSession& session) : session_(session) {}

    Found find(const Name& name) override;
    bool takesIdentity(const TableInfo& table) override;

    /// The server's own tables that were asked for.
    const std::vector<std::string>& systemTables() const { return systemTables_; }
    /// Whether a table of another database was asked for: a change of its schema wouldn't clear this database's cache.
    bool foreign() const { return foreign_; }

private:
    Found inOtherDatabase(const Name& name);

    ServerSession& session_;
    std::vector<std::string> systemTables_;
    bool foreign_ = false;
};

} // namespace engine
