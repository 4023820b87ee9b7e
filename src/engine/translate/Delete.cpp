#include "engine/translate/SqlText.h"

namespace engine::translate {

namespace {

std::string onTarget(const std::string& verb, const bound::Delete& remove) {
    std::string text =
        verb + tableName(remove.table.schema, remove.table.info->name) + " AS " + alias(remove.table.number);
    writeWhere(text, remove.where);
    return text;
}

} // namespace

std::string remove(const bound::Delete& remove) {
    return onTarget("DELETE FROM ", remove);
}

std::string rowsOf(const bound::Delete& remove) {
    return onTarget("SELECT " + rowidOf(*remove.table.info) + " FROM ", remove);
}

} // namespace engine::translate
