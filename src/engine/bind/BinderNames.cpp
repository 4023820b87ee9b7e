#include "engine/bind/Binder.h"
#include "engine/errors/BindErrors.h"
#include "engine/values/Collation.h"

#include <utility>

namespace engine {

int Binder::columnOf(const Visible& table, std::string_view name) {
    if (table.table != nullptr) {
        return table.table->find(name);
    }
    for (std::size_t i = 0; i < table.derived.size(); ++i) {
        if (sameText(table.derived[i].name, name)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

Binder::Resolved Binder::resolve(const Name& name) const {
    const bool qualified = name.pieces.size() > 1;
    bool sawQualifier = false;
    for (const Scope* scope = scope_; scope != nullptr; scope = scope->parent) {
        Resolved found;
        for (const Visible& table : scope->tables) {
            if (qualified && !sameText(table.qualifier, name.piece(1))) {
                continue;
            }
            sawQualifier = true;
            const int column = columnOf(table, name.last());
            if (column < 0) {
                continue;
            }
            if (found.table != nullptr) {
                throw errors::ambiguousColumn(name.last());
            }
            found = {&table, column};
        }
        if (found.table != nullptr) {
            return found;
        }
        if (qualified && sawQualifier) {
            throw errors::invalidColumn(name.last());
        }
    }
    if (qualified) {
        throw errors::unboundIdentifier(name.text());
    }
    throw errors::invalidColumn(name.last());
}

ResultColumn Binder::describe(const Visible& table, int column) {
    if (table.table == nullptr) {
        return table.derived[static_cast<std::size_t>(column)];
    }
    const ColumnInfo& info = table.table->columns[static_cast<std::size_t>(column)];
    ResultColumn result;
    result.name = info.name;
    result.type = info.type;
    result.nullable = info.nullable || table.outer;
    result.identity = info.identity;
    result.baseTable = table.table->name;
    result.baseColumn = info.name;
    if (const KeyInfo* key = table.table->primaryKey()) {
        for (const std::string& name : key->columns) {
            result.key = result.key || sameText(name, info.name);
        }
    }
    return result;
}

bound::ExpressionPtr Binder::column(const Visible& table, int column) const {
    const ResultColumn described = describe(table, column);
    auto result = std::make_unique<bound::Expression>();
    result->type = described.type;
    result->nullable = described.nullable || table.outer;
    result->name = described.name;
    result->node = bound::Column{table.number, table.table != nullptr ? described.name : "c" + std::to_string(column)};
    return result;
}

/// Adds a table to those that names may refer to.
void Binder::expose(Scope& scope, Visible visible) {
    for (const Visible& other : scope.tables) {
        if (!sameText(other.qualifier, visible.qualifier)) {
            continue;
        }
        if (other.aliased && visible.aliased) {
            throw errors::sameAlias(visible.qualifier);
        }
        throw other.aliased || visible.aliased ? errors::aliasOfTable(visible.qualifier, other.qualifier)
                                               : errors::sameExposedName(other.qualifier, visible.qualifier);
    }
    scope.tables.push_back(std::move(visible));
}

bound::SourcePtr Binder::source(const TableSource& source, Scope& scope, bool outer) {
    if (const auto* named = std::get_if<NamedTable>(&source.node)) {
        return namedTable(*named, scope, outer);
    }
    if (const auto* derived = std::get_if<DerivedTable>(&source.node)) {
        return derivedTable(*derived, scope, outer);
    }
    return join(std::get<Join>(source.node), scope, outer);
}

bound::SourcePtr Binder::namedTable(const NamedTable& named, Scope& scope, bool outer) {
    const TableFinder::Found found = finder_.find(named.name);
    Visible visible;
    visible.aliased = !named.alias.empty();
    visible.qualifier = visible.aliased ? named.alias : named.name.last();
    visible.number = tables_++;
    visible.table = found.info;
    visible.outer = outer;
    auto result = std::make_unique<bound::Source>();
    result->node = bound::Table{visible.number, found.schema, found.info};
    expose(scope, std::move(visible));
    return result;
}

bound::SourcePtr Binder::derivedTable(const DerivedTable& derived, Scope& scope, bool outer) {
    auto select = std::make_unique<bound::Select>(inner(*derived.select, scope.parent));
    for (std::size_t i = 0; i < select->columns.size(); ++i) {
        const std::string& name = select->columns[i].name;
        if (name.empty()) {
            throw errors::columnWithoutName(static_cast<int>(i) + 1, derived.alias);
        }
        for (std::size_t before = 0; before < i; ++before) {
            if (sameText(select->columns[before].name, name)) {
                throw errors::columnNamedTwice(name, derived.alias);
            }
        }
    }
    Visible visible;
    visible.qualifier = derived.alias;
    visible.aliased = true;
    visible.number = tables_++;
    visible.derived = select->columns;
    visible.outer = outer;
    auto result = std::make_unique<bound::Source>();
    result->node = bound::Derived{visible.number, std::move(select)};
    expose(scope, std::move(visible));
    return result;
}

bound::SourcePtr Binder::join(const Join& join, Scope& scope, bool outer) {
    const bool rightOuter = join.kind == Join::Kind::Left || join.kind == Join::Kind::Full;
    const bool leftOuter = join.kind == Join::Kind::Right || join.kind == Join::Kind::Full;
    bound::Join result;
    result.kind = join.kind;
    const auto first = static_cast<std::ptrdiff_t>(scope.tables.size());
    result.left = source(*join.left, scope, outer || leftOuter);
    result.right = source(*join.right, scope, outer || rightOuter);
    if (join.condition) {
        // It knows the tables of its own join alone.
        Scope joined;
        joined.parent = scope.parent;
        joined.tables.assign(scope.tables.begin() + first, scope.tables.end());
        Scope* const before = std::exchange(scope_, &joined);
        result.condition = expression(*join.condition);
        scope_ = before;
    }
    auto made = std::make_unique<bound::Source>();
    made->node = std::move(result);
    return made;
}

} // namespace engine
