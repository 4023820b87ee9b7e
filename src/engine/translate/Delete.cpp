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

Text remove(const bound::Delete& remove) {
    return onTarget("DELETE FROM ", remove);
}

Text rowsOf(const bound::Delete& remove) {
    return onTarget("SELECT " + rowidOf(*remove.table.info) + " FROM ", remove);
}

} // namespace engine::translate
