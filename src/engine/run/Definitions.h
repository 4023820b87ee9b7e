#pragma once

// Statements that define something: tables, indexes, databases, settings and transactions. They give no result.

#include "engine/run/ServerSession.h"
#include "engine/text/Tree.h"

namespace engine {

/// False where the statement is none of these. Throws the errors of the one it is.
bool define(ServerSession& session, const Statement& statement);

void define(ServerSession& session, const CreateTable& create);    // 2714, 2705, 1779, 1911, 2744
void define(ServerSession& session, const AlterTable& alter);      // 4902, 2705, 4901
void define(ServerSession& session, const CreateIndex& create);    // 1088, 1911, 1913, 1505
void define(ServerSession& session, const Drop& drop);             // 3701, 1222
void define(ServerSession& session, const Truncate& truncate);     // 4701, 1222
void define(ServerSession& session, const CreateDatabase& create); // 1801, 5133
void define(ServerSession& session, const AlterDatabase& alter);   // 5011
void define(ServerSession& session, const Use& use);               // 911
void define(ServerSession& session, const SetOption& option);      // 1088, 8107, 2743
void define(ServerSession& session, const Reconfigure& reconfigure);
void define(ServerSession& session, const Transaction& transaction); // 3902, 3903

/// Runs a change of the schema as one transaction; failures of the storage become the server's errors. Afterwards
/// the session sees the schema as it is.
template<class Change>
void changeSchema(ServerSession& session, const TableInfo* table, const Change& change) {
    Database& database = session.current();
    try {
        WriteTransaction transaction(database);
        sqlite::Transaction whole(database.connection());
        change();
        whole.commit();
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

/// The table of this session's database that a definition is about; nullptr where there is none.
const TableInfo* definedTable(ServerSession& session, const Name& name);

/// The storage's name of an index of a table, empty where there is none.
std::string storedIndex(Database& database, const TableInfo& table, const std::string& index);

} // namespace engine
