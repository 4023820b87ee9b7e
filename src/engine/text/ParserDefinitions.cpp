#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"

#include <algorithm>

namespace engine {

namespace {

/// The columns of a primary key and an identity take no NULL, whether or not the script says so.
void refuseNull(std::vector<ColumnDefinition>& columns, const std::vector<KeyDefinition>& keys,
                const std::string& table) {
    const auto isPrimary = [&](const ColumnDefinition& column) {
        return std::any_of(keys.begin(), keys.end(), [&](const KeyDefinition& key) {
            return key.kind == KeyDefinition::Kind::Primary &&
                   std::any_of(key.columns.begin(), key.columns.end(),
                               [&](const auto& name) { return sameWord(name, column.name); });
        });
    };
    for (ColumnDefinition& column : columns) {
        const bool primary = isPrimary(column);
        if (column.identity && column.nullable.value_or(false)) {
            throw errors::nullableIdentity(column.name, table, column.position);
        }
        if (primary && column.nullable.value_or(false)) {
            throw errors::nullableKey(table, column.position);
        }
        if (column.identity || primary) {
            column.nullable = false;
        }
    }
}

} // namespace

Grammar::Node Grammar::create() {
    structural_ = true;
    expect(Keyword::Create);
    if (at(Keyword::Table)) {
        return createTable();
    }
    if (at(Keyword::Database)) {
        return createDatabase();
    }
    const bool unique = consumeIf(Keyword::Unique);
    clustering();
    return createIndex(unique);
}

Grammar::Node Grammar::createTable() {
    CreateTable node;
    TableElements elements;
    expect(Keyword::Table);
    node.table = name();
    expect("(");
    do {
        tableElement(elements);
    } while (consumeIf(",") && !at(")"));
    expect(")");
    filegroup();
    node.columns = std::move(elements.columns);
    node.keys = std::move(elements.keys);
    refuseNull(node.columns, node.keys, node.table.last());
    return node;
}

void Grammar::tableElement(TableElements& elements) {
    std::string constraint;
    const bool named = consumeIf(Keyword::Constraint);
    if (named) {
        constraint = expectName();
    }
    if (named || atKey()) {
        elements.keys.push_back(tableKey(std::move(constraint)));
    } else {
        column(elements);
    }
}

KeyDefinition Grammar::tableKey(std::string name) {
    KeyDefinition key;
    key.kind = keyKind();
    key.name = std::move(name);
    expect("(");
    do {
        key.columns.push_back(expectName());
        if (!consumeIf(Keyword::Asc)) {
            consumeIf(Keyword::Desc);
        }
    } while (consumeIf(","));
    expect(")");
    filegroup();
    return key;
}

KeyDefinition::Kind Grammar::keyKind() {
    auto kind = KeyDefinition::Kind::Unique;
    if (consumeIf(Keyword::Primary)) {
        expect(Keyword::Key);
        kind = KeyDefinition::Kind::Primary;
    } else {
        expect(Keyword::Unique);
    }
    clustering();
    return kind;
}

void Grammar::clustering() {
    if (!consumeIf(Keyword::Clustered)) {
        consumeIf(Keyword::Nonclustered);
    }
}

/// Where the server would put the rows. A database is one file here, so this is read and ignored.
void Grammar::filegroup() {
    if (consumeIf(Keyword::On)) {
        expectName();
    }
}

void Grammar::column(TableElements& elements) {
    ColumnDefinition column;
    column.position = now().position;
    column.name = expectName();
    column.type = columnType(column.name, static_cast<int>(elements.columns.size()) + 1);
    while (columnOption(elements, column)) {
    }
    elements.columns.push_back(std::move(column));
}

bool Grammar::columnOption(TableElements& elements, ColumnDefinition& column) {
    if (at(Keyword::Identity)) {
        identity(column);
        return true;
    }
    if (consumeIf(Keyword::Collate)) {
        collation();
        return true;
    }
    if (!consumeIf(Keyword::Constraint)) {
        return columnConstraint(elements, column, {});
    }
    std::string name = expectName();
    if (!columnConstraint(elements, column, std::move(name))) {
        refuse();
    }
    return true;
}

bool Grammar::columnConstraint(TableElements& elements, ColumnDefinition& column, std::string name) {
    if (at(Keyword::Null)) {
        nullability(column, true);
    } else if (at(Keyword::Not)) {
        consume();
        nullability(column, false);
    } else if (at(Keyword::Default)) {
        defaultOf(column, std::move(name));
    } else if (atKey()) {
        const auto kind = keyKind();
        filegroup();
        elements.keys.push_back({kind, std::move(name), {column.name}});
    } else {
        return false;
    }
    return true;
}

void Grammar::nullability(ColumnDefinition& column, bool nullable) {
    if (!at(Keyword::Null) || column.nullable.value_or(nullable) != nullable) {
        refuse();
    }
    consume();
    column.nullable = nullable;
}

void Grammar::identity(ColumnDefinition& column) {
    expect(Keyword::Identity);
    column.identity = true;
    if (!consumeIf("(")) {
        return;
    }
    column.identitySeed = expectInteger();
    expect(",");
    column.identityIncrement = expectInteger();
    expect(")");
}

void Grammar::defaultOf(ColumnDefinition& column, std::string name) {
    expect(Keyword::Default);
    const int begin = now().position;
    column.defaultValue = value();
    column.defaultText = textBetween(begin, last().end());
    column.defaultName = std::move(name);
}

/// All texts have one collation: a script may name it, any other is refused.
void Grammar::collation() {
    const Token& token = now();
    const std::string name = expectName();
    if (!sameWord(name, "Latin1_General_CI_AS") && !sameWord(name, "database_default")) {
        throw errors::invalidCollation(name, token.position);
    }
}

Grammar::Node Grammar::createIndex(bool unique) {
    CreateIndex node;
    expect(Keyword::Index);
    node.unique = unique;
    node.name = expectName();
    expect(Keyword::On);
    node.table = name();
    expect("(");
    do {
        node.columns.push_back(indexColumn());
    } while (consumeIf(","));
    expect(")");
    filegroup();
    return node;
}

OrderItem Grammar::indexColumn() {
    OrderItem item;
    const int position = now().position;
    item.expression = makeExpression(position, ColumnReference{Name{{expectName()}, position}});
    item.descending = consumeIf(Keyword::Desc);
    if (!item.descending) {
        consumeIf(Keyword::Asc);
    }
    return item;
}

Grammar::Node Grammar::alter() {
    AlterTable node;
    TableElements elements;
    structural_ = true;
    expect(Keyword::Alter);
    if (at(Keyword::Database)) {
        return alterDatabase();
    }
    expect(Keyword::Table);
    node.table = name();
    if (consumeIf(Keyword::With) && !consumeIf(Keyword::Check)) {
        expect(Keyword::Nocheck);
    }
    expect(Keyword::Add);
    do {
        tableElement(elements);
    } while (consumeIf(","));
    node.added = std::move(elements.columns);
    node.keys = std::move(elements.keys);
    refuseNull(node.added, node.keys, node.table.last());
    return node;
}

} // namespace engine
