#include "engine/run/SessionTables.h"

#include "engine/errors/RunErrors.h"
#include "engine/run/SystemTables.h"
#include "engine/store/StoredNames.h"
#include "engine/values/Collation.h"
#include "os/Paths.h"

#include <sqlite3.h>

namespace engine {

namespace {

void attach(Database& database, const DatabaseEntry& other, const std::string& schema) {
    sqlite::Statement attached(database.connection(), "SELECT 1 FROM pragma_database_list WHERE name = ?1");
    attached.bind(1, std::string_view(schema));
    if (attached.step()) {
        return;
    }
    attached.reset();
    sqlite::Statement attach(database.connection(), "ATTACH ?1 AS " + stored::quoted(schema));
    attach.bind(1, os::utf8Of(other.file));
    attach.step();
}

} // namespace

TableFinder::Found SessionTables::find(const Name& name) {
    const std::string schema = name.piece(1);
    const std::string database = name.piece(2);
    if (name.pieces.size() > 3) {
        throw errors::invalidObject(name.text());
    }
    const bool elsewhere = !database.empty() && !sameText(database, session_.database());
    const bool ofMaster = sameText(database.empty() ? session_.database() : database, "master");
    const TableInfo* own = systemTable(schema, name.last());
    const bool everywhere = sameText(schema, "sys") || !sameText(name.last(), "sysdatabases");
    if (own != nullptr && (everywhere ? !elsewhere || ofMaster : ofMaster)) {
        systemTables_.push_back(own->name);
        // A statement can be prepared only once the copy exists.
        fillSystemTable(own->name, session_.current(), session_.instance());
        return {"temp", own, true};
    }
    if (!schema.empty() && !sameText(schema, "dbo")) {
        throw errors::invalidObject(name.text());
    }
    if (elsewhere) {
        return inOtherDatabase(name);
    }
    const TableInfo* table = session_.current().catalog().table(name.last());
    if (table == nullptr) {
        throw errors::invalidObject(name.text());
    }
    return {"main", table, false};
}

TableFinder::Found SessionTables::inOtherDatabase(const Name& name) {
    const std::shared_ptr<Database> other = session_.open(name.piece(2));
    if (other == nullptr) {
        throw errors::invalidObject(name.text());
    }
    other->refresh();
    const TableInfo* table = other->catalog().table(name.last());
    if (table == nullptr) {
        throw errors::invalidObject(name.text());
    }
    foreign_ = true;
    const std::string schema = "db" + std::to_string(other->entry().id);
    attach(session_.current(), other->entry(), schema);
    // Like a system table it can be read only: a session writes to the database that it uses.
    return {schema, table, true};
}

bool SessionTables::takesIdentity(const TableInfo& table) {
    const Settings& settings = session_.settings;
    return !settings.identityInsert.empty() && sameText(settings.identityInsert, table.name) &&
           sameText(settings.identityInsertDatabase, session_.database());
}

} // namespace engine
