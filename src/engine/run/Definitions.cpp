#include "engine/run/Definitions.h"

#include "engine/store/StoredNames.h"
#include "engine/values/Collation.h"

namespace engine {

bool isElsewhere(const ServerSession& session, const Name& name) {
    const std::string schema = name.piece(1);
    const std::string database = name.piece(2);
    return (!database.empty() && !sameText(database, session.database())) ||
           (!schema.empty() && !sameText(schema, "dbo"));
}

const TableInfo* definedTable(ServerSession& session, const Name& name) {
    return isElsewhere(session, name) ? nullptr : session.current().catalog().table(name.last());
}

std::string storedIndex(Database& database, const TableInfo& table, const std::string& index) {
    const std::string wanted = stored::indexName(table.name, index);
    sqlite::Statement there(database.connection(),
                            "SELECT name FROM sqlite_schema WHERE type = 'index' AND name = ?1 COLLATE TSQL");
    there.bind(1, std::string_view(wanted));
    return there.step() ? std::string(there.text(0)) : std::string();
}

} // namespace engine
