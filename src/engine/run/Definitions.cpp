#include "engine/run/Definitions.h"

#include "engine/store/StoredNames.h"
#include "engine/values/Collation.h"

namespace engine {

bool isElsewhere(const ServerSession& session, const Name& name) {
    const std::size_t pieces = name.pieces.size();
    const bool elsewhere =
        pieces > 2 && !name.pieces[pieces - 3].empty() && !sameText(name.pieces[pieces - 3], session.database());
    const bool otherSchema =
        pieces > 1 && !name.pieces[pieces - 2].empty() && !sameText(name.pieces[pieces - 2], "dbo");
    return elsewhere || otherSchema;
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
