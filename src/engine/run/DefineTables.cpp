#include "engine/bind/Binder.h"
#include "engine/errors/DefinitionErrors.h"
#include "engine/run/Definitions.h"
#include "engine/run/SessionTables.h"
#include "engine/store/StorageErrors.h"
#include "engine/store/StoredNames.h"
#include "engine/translate/SqlText.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <cstdio>

namespace engine {

namespace {

/// Whether a table or a constraint of the database has that name: they share one set of names.
bool isObject(Catalog& catalog, const TableInfo& table, const std::string& name) {
    const auto hasConstraint = [&](const TableInfo& one) {
        return std::any_of(one.keys.begin(), one.keys.end(),
                           [&](const KeyInfo& key) { return sameText(key.name, name); }) ||
               std::any_of(one.columns.begin(), one.columns.end(), [&](const ColumnInfo& column) {
                   return !column.defaultName.empty() && sameText(column.defaultName, name);
               });
    };
    if (sameText(table.name, name) || hasConstraint(table) || catalog.table(name) != nullptr) {
        return true;
    }
    const std::vector<std::string> tables = catalog.tableNames();
    return std::any_of(tables.begin(), tables.end(),
                       [&](const std::string& other) { return hasConstraint(*catalog.table(other)); });
}

/// A name like those that the server gives to keys without one.
std::string keyName(const std::string& table, const KeyDefinition& key) {
    std::size_t hash = std::hash<std::string>()(table);
    for (const std::string& column : key.columns) {
        hash = hash * 31 + std::hash<std::string>()(column);
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016zX", hash);
    return (key.kind == KeyDefinition::Kind::Primary ? "PK__" : "UQ__") + table + "__" + digits;
}

ColumnInfo columnOf(const ColumnDefinition& definition) {
    ColumnInfo column;
    column.name = definition.name;
    column.type = definition.type;
    column.nullable = definition.nullable.value_or(!definition.identity);
    column.identity = definition.identity;
    column.seed = definition.identitySeed;
    column.increment = definition.identityIncrement;
    if (definition.defaultValue) {
        column.defaultText = definition.defaultText;
        column.defaultName = definition.defaultName;
    }
    return column;
}

void addColumn(Catalog& catalog, TableInfo& table, const ColumnDefinition& definition) {
    if (table.find(definition.name) >= 0) {
        throw errors::duplicateColumn(definition.name, table.name);
    }
    if (definition.identity && table.identity() != nullptr) {
        throw errors::severalIdentities(table.name);
    }
    const DataType& type = definition.type;
    if (definition.identity && (type.kind == DataType::Kind::Bit || type.scale != 0 ||
                                !(type.isInteger() || type.kind == DataType::Kind::Decimal))) {
        throw errors::identityType(definition.name);
    }
    if (!definition.defaultName.empty() && isObject(catalog, table, definition.defaultName)) {
        throw errors::objectExists(definition.defaultName);
    }
    table.columns.push_back(columnOf(definition));
}

KeyInfo keyOf(Catalog& catalog, const TableInfo& table, const KeyDefinition& definition) {
    KeyInfo key;
    key.name = definition.name.empty() ? keyName(table.name, definition) : definition.name;
    while (isObject(catalog, table, key.name)) {
        if (!definition.name.empty()) {
            throw errors::objectExists(key.name);
        }
        key.name += '_';
    }
    key.primary = definition.kind == KeyDefinition::Kind::Primary;
    if (key.primary && table.primaryKey() != nullptr) {
        throw errors::twoPrimaryKeys(table.name);
    }
    for (const std::string& name : definition.columns) {
        const int place = table.find(name);
        if (place < 0) {
            throw errors::keyColumnMissing(name);
        }
        const ColumnInfo& column = table.columns[static_cast<std::size_t>(place)];
        if (key.primary && column.nullable) {
            throw errors::nullableColumnOfKey(table.name);
        }
        key.columns.push_back(column.name);
    }
    return key;
}

/// The present value of a default, as a literal of SQLite.
std::string defaultLiteral(ServerSession& session, const ColumnDefinition& definition) {
    SessionTables finder(session);
    Binder binder(finder);
    const bound::ExpressionPtr value = binder.bindDefault(columnOf(definition));
    translate::Text text("SELECT quote(");
    translate::write(text, *value);
    text += ')';
    sqlite::Statement statement(session.current().connection(), text.sql());
    bindLiterals(statement, text.parameters(binder.parameters()), {nullptr, session.settings.dateOrder});
    statement.step();
    return std::string(statement.text(0));
}

bool hasRows(Database& database, const TableInfo& table) {
    sqlite::Statement any(database.connection(),
                          "SELECT 1 FROM " + stored::qualifiedTable("main", table.name) + " LIMIT 1");
    return any.step();
}

/// Rows that are there already may be against a unique index. `name` is the one in the error.
void makeIndex(ServerSession& session, const std::string& table, const std::string& name,
               const std::vector<std::string>& texts) {
    try {
        for (const std::string& text : texts) {
            session.current().connection().run(text);
        }
    } catch (const sqlite::Failure& failure) {
        if (isDuplicate(failure)) {
            throw errors::duplicateInNewKey(table, name);
        }
        throw;
    }
}

void addKey(ServerSession& session, const TableInfo& table, const KeyInfo& key) {
    if (!storedIndex(session.current(), table, key.name).empty()) {
        throw errors::indexExists(key.name, table.name);
    }
    makeIndex(session, table.name, key.name, translate::createKey(table, key));
    session.current().catalog().addKey(table.name, key);
}

/// SQLite fills the old rows where the column is NOT NULL. In a nullable column they stay NULL, whatever its default.
void addColumn(ServerSession& session, const AlterTable& alter, const ColumnDefinition& definition) {
    Database& database = session.current();
    TableInfo table = *database.catalog().table(alter.table.last());
    const bool filled = hasRows(database, table);
    addColumn(database.catalog(), table, definition);
    ColumnInfo& column = table.columns.back();
    std::string initial;
    if (!column.nullable) {
        if (column.defaultText) {
            initial = defaultLiteral(session, definition);
        } else if (filled && !column.identity) {
            throw errors::alterNeedsDefault(column.name, table.name);
        } else {
            initial = column.type.isText() || column.type.kind == DataType::Kind::DateTime ? "''" : "0";
        }
    }
    database.connection().run(translate::addColumn(table, column, initial));
    database.catalog().addColumn(table.name, column);
    if (column.identity && filled) {
        const TableInfo& present = *database.catalog().table(table.name);
        const std::string rowid = translate::rowidOf(present);
        sqlite::Statement rows(database.connection(), "SELECT " + rowid + " FROM " +
                                                          stored::qualifiedTable("main", table.name) + " ORDER BY 1");
        sqlite::Statement number(database.connection(), "UPDATE " + stored::qualifiedTable("main", table.name) +
                                                            " SET " + stored::quoted(column.name) + " = ?1 WHERE " +
                                                            rowid + " = ?2");
        std::vector<std::int64_t> numbers;
        while (rows.step()) {
            numbers.push_back(rows.integer(0));
        }
        for (const std::int64_t row : numbers) {
            number.bind(1, database.catalog().nextIdentity(present));
            number.bind(2, row);
            number.step();
            number.reset();
        }
    }
}

} // namespace

void define(ServerSession& session, const CreateTable& create) {
    Database& database = session.current();
    TableInfo table;
    table.name = create.table.last();
    if (table.name.starts_with('#')) {
        throw errors::notSupported("CREATE TABLE " + table.name); // it would have to be the session's own
    }
    if (isElsewhere(session, create.table)) {
        throw errors::notSupported("CREATE TABLE in another database or schema");
    }
    if (database.catalog().table(table.name) != nullptr) {
        throw errors::objectExists(table.name);
    }
    for (const ColumnDefinition& definition : create.columns) {
        addColumn(database.catalog(), table, definition);
    }
    for (const KeyDefinition& definition : create.keys) {
        if (definition.kind == KeyDefinition::Kind::Primary && table.primaryKey() != nullptr) {
            throw errors::severalPrimaryKeys(table.name);
        }
        table.keys.push_back(keyOf(database.catalog(), table, definition));
    }
    changeSchema(session, &table, [&] {
        database.connection().run(translate::createTable(table));
        for (const KeyInfo& key : table.keys) {
            if (!(key.primary && translate::rowNumber(table) != nullptr)) {
                makeIndex(session, table.name, key.name, translate::createKey(table, key));
            }
        }
        database.catalog().addTable(table);
    });
}

void define(ServerSession& session, const AlterTable& alter) {
    const TableInfo* found = definedTable(session, alter.table);
    if (found == nullptr) {
        throw errors::missingTableToAlter(alter.table.last());
    }
    const TableInfo before = *found;
    changeSchema(session, &before, [&] {
        for (const ColumnDefinition& definition : alter.added) {
            addColumn(session, alter, definition);
        }
        for (const KeyDefinition& definition : alter.keys) {
            Catalog& catalog = session.current().catalog();
            const TableInfo table = *catalog.table(before.name);
            addKey(session, table, keyOf(catalog, table, definition));
        }
    });
}

void define(ServerSession& session, const CreateIndex& create) {
    const TableInfo* table = definedTable(session, create.table);
    if (table == nullptr) {
        throw errors::missingTableToChange(create.table.last());
    }
    Database& database = session.current();
    if (!storedIndex(database, *table, create.name).empty()) {
        throw errors::indexExists(create.name, table->name);
    }
    const TableInfo indexed = *table;
    std::vector<translate::IndexColumn> columns;
    for (const OrderItem& item : create.columns) {
        const auto& reference = std::get<ColumnReference>(item.expression->node);
        const int place = indexed.find(reference.name.last());
        if (place < 0) {
            throw errors::keyColumnMissing(reference.name.last());
        }
        columns.push_back({&indexed.columns[static_cast<std::size_t>(place)], item.descending});
    }
    changeSchema(session, &indexed, [&] {
        makeIndex(session, indexed.name, create.name,
                  translate::createIndex(indexed, create.name, columns, create.unique));
    });
}

} // namespace engine
