#pragma once

// What the definitions of StatementKinds.h share.

#include "engine/run/ServerSession.h"
#include "engine/run/StatementKinds.h"
#include "engine/text/Tree.h"

namespace engine {

/// Runs a change of the schema as one transaction; failures of the storage become the server's errors. Afterwards
/// the session sees the schema as it is.
template<class Change>
void changeSchema(ServerSession& session, const TableInfo* table, const Change& change) {
    Database& database = session.current();
    try {
        sqlite::Transaction transaction(database.connection());
        change();
        transaction.commit();
    } catch (const sqlite::Failure& failure) {
        database.refresh();
        database.raise(failure, table, "INSERT");
    } catch (...) {
        database.refresh();
        throw;
    }
    database.refresh();
    database.cache().clear();
}

/// Whether a name is one of another database or schema.
bool isElsewhere(const ServerSession& session, const Name& name);

/// The table of this session's database that a definition is about; nullptr where there is none.
const TableInfo* definedTable(ServerSession& session, const Name& name);

/// The storage's name of an index of a table, empty where there is none.
std::string storedIndex(Database& database, const TableInfo& table, const std::string& index);

} // namespace engine
