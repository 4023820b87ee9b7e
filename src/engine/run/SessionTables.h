#pragma once

#include "engine/bind/Binder.h"
#include "engine/run/ServerSession.h"

namespace engine {

/// The tables that a session sees, and what it means for a plan to use them.
class SessionTables : public TableFinder {
public:
    explicit SessionTables(ServerSession& session) : session_(session) {}

    Found find(const Name& name) override;
    bool takesIdentity(const TableInfo& table) override;

    /// The server's own tables that were asked for.
    const std::vector<std::string>& systemTables() const { return systemTables_; }
    /// Whether a table of another database was asked for: its schema may change behind this one's back.
    bool foreign() const { return foreign_; }

private:
    Found inOtherDatabase(const Name& name);

    ServerSession& session_;
    std::vector<std::string> systemTables_;
    bool foreign_ = false;
};

} // namespace engine
