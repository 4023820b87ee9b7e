#include "engine/store/Catalog.h"

#include "engine/store/CatalogState.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <utility>

namespace engine {

int TableInfo::find(std::string_view column) const {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& c) { return sameText(c.name, column); });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

const ColumnInfo* TableInfo::identity() const {
    const auto found = std::find_if(columns.begin(), columns.end(), [](const ColumnInfo& c) { return c.identity; });
    return found == columns.end() ? nullptr : &*found;
}

const KeyInfo* TableInfo::primaryKey() const {
    const auto found = std::find_if(keys.begin(), keys.end(), [](const KeyInfo& k) { return k.primary; });
    return found == keys.end() ? nullptr : &*found;
}

Catalog::Catalog(sqlite::Connection& connection) : state_(std::make_unique<State>(connection)) {
    refresh();
}

Catalog::~Catalog() = default;

bool Catalog::refresh() {
    const std::int64_t now = state_->storedVersion();
    if (now == state_->version) {
        return std::exchange(state_->ownChange, false);
    }
    state_->version = now;
    state_->ownChange = false;
    if (!state_->connection.inTransaction()) {
        state_->given.clear(); // another session may have emptied a table
    }
    state_->load();
    return true;
}

const TableInfo* Catalog::table(std::string_view name) {
    const auto found = state_->tables.find(collationKey(name));
    return found == state_->tables.end() ? nullptr : &found->second->info;
}

std::vector<std::string> Catalog::tableNames() {
    std::vector<std::string> names;
    names.reserve(state_->tables.size());
    for (const auto& [key, entry] : state_->tables) {
        names.push_back(entry->info.name);
    }
    std::sort(names.begin(), names.end(),
              [](const std::string& left, const std::string& right) { return compareTexts(left, right) < 0; });
    return names;
}

void Catalog::addTable(const TableInfo& table) {
    sqlite::Transaction transaction(state_->connection);
    state_->changed();
    State::Entry& entry = state_->insertTable(table.name);
    for (std::size_t place = 0; place < table.columns.size(); ++place) {
        state_->insertColumn(entry.id, place, table.columns[place]);
    }
    for (std::size_t number = 0; number < table.keys.size(); ++number) {
        state_->insertKey(entry.id, number, table.keys[number]);
    }
    state_->reload(entry);
    transaction.commit();
}

void Catalog::addColumn(std::string_view table, const ColumnInfo& column) {
    State::Entry& entry = state_->entry(table);
    sqlite::Transaction transaction(state_->connection);
    state_->changed();
    state_->insertColumn(entry.id, entry.info.columns.size(), column);
    state_->reload(entry);
    transaction.commit();
}

void Catalog::addKey(std::string_view table, const KeyInfo& key) {
    State::Entry& entry = state_->entry(table);
    sqlite::Transaction transaction(state_->connection);
    state_->changed();
    state_->insertKey(entry.id, entry.info.keys.size(), key);
    state_->reload(entry);
    transaction.commit();
}

void Catalog::removeTable(std::string_view table) {
    sqlite::Transaction transaction(state_->connection);
    state_->changed();
    state_->remove(table);
    transaction.commit();
}

} // namespace engine
