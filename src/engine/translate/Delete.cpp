#include "engine/translate/SqlText.h"

namespace engine::translate {

namespace {

Text onTarget(const std::string& verb, const bound::Delete& remove) {
    Text text(verb);
    text += stored::qualifiedTable(remove.table.schema, remove.table.info->name) + " AS " + alias(remove.table.number);
    writeWhere(text, remove.where);
    return text;
}

} // namespace

Text remove(const bound::Delete& remove, std::int64_t most) {
    if (most == 0 && !remove.selects) {
        return onTarget("DELETE FROM ", remove);
    }
    Text text("DELETE FROM " + stored::qualifiedTable(remove.table.schema, remove.table.info->name) + " WHERE " +
              rowidOf(*remove.table.info) + " IN (");
    text += rowsOf(remove, most);
    text += ")";
    return text;
}

Text rowsOf(const bound::Delete& remove, std::int64_t most) {
    Text text = onTarget("SELECT " + rowidOf(*remove.table.info) + " FROM ", remove);
    writeLimit(text, most);
    return text;
}

} // namespace engine::translate
