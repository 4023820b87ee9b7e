#include "engine/errors/DefinitionErrors.h"
#include "engine/errors/StoreErrors.h"
#include "engine/run/Definitions.h"
#include "engine/run/Writer.h"
#include "engine/store/StoredNames.h"
#include "engine/translate/SqlText.h"
#include "engine/values/Collation.h"

namespace engine {

namespace {

void refuseHeld(Database& database, const TableInfo& table) {
    if (!database.locks().anyHeldByOthers()) {
        return;
    }
    sqlite::Statement rows(database.connection(), "SELECT " + translate::rowidOf(table) + " FROM " +
                                                      stored::qualifiedTable("main", table.name));
    refuseHeldRows(database, table.name, rows);
}

void dropTable(ServerSession& session, const Name& name, bool ifExists) {
    const TableInfo* found = definedTable(session, name);
    if (found == nullptr) {
        if (ifExists) {
            return;
        }
        throw errors::cannotDrop("table", name.last());
    }
    Database& database = session.current();
    const TableInfo table = *found;
    changeSchema(session, &table, [&] {
        refuseHeld(database, table);
        database.connection().run("DROP TABLE " + stored::qualifiedTable("main", table.name));
        database.catalog().removeTable(table.name);
    });
}

void dropDatabase(ServerSession& session, const Name& name, bool ifExists) {
    if (ifExists && !session.instance().database(name.last())) {
        return;
    }
    session.forget(name.last());
    session.instance().dropDatabase(name.last());
}

void dropIndex(ServerSession& session, const Name& name, bool ifExists) {
    const std::string table = name.piece(1);
    const TableInfo* info = session.current().catalog().table(table);
    const std::string index = info == nullptr ? std::string() : storedIndex(session.current(), *info, name.last());
    if (info == nullptr || index.empty()) {
        if (ifExists) {
            return;
        }
        throw errors::cannotDrop("index", table + "." + name.last());
    }
    for (const KeyInfo& key : info->keys) {
        if (sameText(key.name, name.last())) {
            throw errors::indexOfConstraint(table + "." + name.last(), key.primary ? "PRIMARY KEY" : "UNIQUE KEY");
        }
    }
    changeSchema(session, nullptr, [&] {
        sqlite::Connection& connection = session.current().connection();
        connection.run("DROP INDEX main." + stored::quoted(index));
        connection.run("DROP INDEX IF EXISTS main." + stored::quoted(stored::nullsIndexName(index)));
    });
}

} // namespace

void define(ServerSession& session, const Drop& drop) {
    for (const Name& name : drop.names) {
        switch (drop.kind) {
        case Drop::Kind::Table:
            dropTable(session, name, drop.ifExists);
            break;
        case Drop::Kind::Database:
            dropDatabase(session, name, drop.ifExists);
            break;
        case Drop::Kind::Index:
            dropIndex(session, name, drop.ifExists);
            break;
        }
    }
}

void define(ServerSession& session, const Truncate& truncate) {
    const TableInfo* found = definedTable(session, truncate.table);
    if (found == nullptr) {
        throw errors::missingTableToEmpty(truncate.table.last());
    }
    Database& database = session.current();
    const TableInfo table = *found;
    changeSchema(session, &table, [&] {
        refuseHeld(database, table);
        database.connection().run("DELETE FROM " + stored::qualifiedTable("main", table.name));
        if (table.identity() != nullptr) {
            database.catalog().resetIdentity(table);
        }
    });
}

} // namespace engine
