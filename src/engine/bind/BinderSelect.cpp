#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <cstdlib>

namespace engine {

namespace {

/// Makes a scope the present one while it lives.
template<class Scope>
class InScope {
public:
    InScope(Scope*& current, Scope& scope) : current_(current), before_(current) { current = &scope; }
    ~InScope() { current_ = before_; }
    InScope(const InScope&) = delete;
    InScope& operator=(const InScope&) = delete;

private:
    Scope*& current_;
    Scope* before_;
};

/// The most selects that SQLite takes in one UNION.
constexpr std::size_t kMostCores = 500;

bool isAllTables(const Name& starOf) {
    return starOf.pieces.empty();
}

bool isSameColumn(const ResultColumn& left, const ResultColumn& right) {
    return !left.baseTable.empty() && left.baseTable == right.baseTable && left.baseColumn == right.baseColumn;
}

/// Whether two items of an ORDER BY are the same column.
bool isSameOrder(const bound::Order& left, const bound::Order& right, const bound::Select& select) {
    if (left.ordinal > 0 && right.ordinal > 0) {
        return left.ordinal == right.ordinal;
    }
    const auto columnOf = [&](const bound::Order& order) {
        const auto& items = select.cores.back().items;
        const auto& expression =
            order.expression ? order.expression : items[static_cast<std::size_t>(order.ordinal) - 1];
        return std::get_if<bound::Column>(&expression->node);
    };
    const bound::Column* a = columnOf(left);
    const bound::Column* b = columnOf(right);
    return a != nullptr && b != nullptr && a->source == b->source && a->column == b->column;
}

} // namespace

bound::Select Binder::select(const Select& select, Scope* parent) {
    if (insideAggregate_) {
        throw errors::aggregateOfAggregate();
    }
    if (insideGroupBy_) {
        throw errors::groupedByAggregate();
    }
    bound::Select result;
    const bool single = select.cores.size() == 1;
    if (select.cores.size() > kMostCores) {
        throw errors::nestedTooDeep();
    }
    // ORDER BY is bound in the scope of the last core.
    Scope scope;
    for (const SelectCore& one : select.cores) {
        scope = Scope{};
        scope.parent = parent;
        const InScope inside(scope_, scope);
        std::vector<ResultColumn> columns;
        bound::Core made = core(one, scope, columns);
        if (result.cores.empty()) {
            result.columns = std::move(columns);
        } else {
            unify(result, made, columns);
        }
        result.cores.push_back(std::move(made));
    }
    for (ResultColumn& column : result.columns) {
        if (column.type.kind == DataType::Kind::Unknown) {
            column.type.kind = DataType::Kind::Int; // nothing but nulls
        }
    }
    result.unionAll = select.unionAll;
    const InScope inside(scope_, scope);
    scope.aggregates = true;
    for (const OrderItem& item : select.orderBy) {
        bound::Order made = order(item, result, single);
        for (const bound::Order& earlier : result.orderBy) {
            if (isSameOrder(earlier, made, result)) {
                throw errors::orderedTwice();
            }
        }
        result.orderBy.push_back(std::move(made));
    }
    bound::Core& last = result.cores.back();
    for (const bound::Order& order : result.orderBy) {
        const auto isIt = [&](const bound::ExpressionPtr& item) {
            return sameExpression(*item, *order.expression, parameters_);
        };
        if (last.distinct && order.expression && std::none_of(last.items.begin(), last.items.end(), isIt)) {
            throw errors::orderNotDistinct();
        }
    }
    if (single && scope.sawAggregate && !last.aggregated) {
        last.aggregated = last.hiddenAggregate = true;
    }
    if (last.aggregated) {
        checkGrouping(last, result.orderBy);
    }
    return result;
}

bound::Select Binder::inner(const Select& select, Scope* parent) {
    if (!select.orderBy.empty() && !select.cores.back().top) {
        throw errors::orderOfSubquery();
    }
    selects_ = true;
    return this->select(select, parent);
}

bound::Core Binder::core(const SelectCore& core, Scope& scope, std::vector<ResultColumn>& columns) {
    bound::Core result;
    result.distinct = core.distinct;
    result.top = core.top;
    for (const TableSourcePtr& source : core.from) {
        result.from.push_back(this->source(*source, scope, false));
    }
    if (core.where) {
        result.where = expression(*core.where);
    }
    for (const ExpressionPtr& group : core.groupBy) {
        insideGroupBy_ = true;
        result.groupBy.push_back(collated(expression(*group)));
        insideGroupBy_ = false;
        if (!refersTo(scope, *result.groupBy.back())) {
            throw errors::groupedByConstant();
        }
    }
    scope.aggregates = true;
    items(core, scope, result, columns);
    const bool shown = scope.sawAggregate;
    if (core.having) {
        result.having = expression(*core.having);
    }
    result.aggregated = !result.groupBy.empty() || result.having || scope.sawAggregate;
    result.hiddenAggregate = result.aggregated && result.groupBy.empty() && !shown;
    if (result.aggregated) {
        checkGrouping(result, {});
    }
    return result;
}

void Binder::items(const SelectCore& core, Scope& scope, bound::Core& result, std::vector<ResultColumn>& columns) {
    for (const SelectItem& item : core.items) {
        if (item.starOf) {
            starItems(*item.starOf, scope, result, columns);
            continue;
        }
        const auto* reference = std::get_if<ColumnReference>(&item.expression->node);
        ResultColumn described;
        if (reference != nullptr) {
            const Resolved found = resolve(reference->name);
            described = describe(*found.table, found.column);
            result.items.push_back(column(*found.table, found.column));
        } else {
            result.items.push_back(expression(*item.expression));
            described.type = result.items.back()->type;
            described.nullable = result.items.back()->nullable;
        }
        if (!item.alias.empty()) {
            described.name = item.alias;
        }
        columns.push_back(std::move(described));
    }
}

void Binder::starItems(const Name& starOf, Scope& scope, bound::Core& result, std::vector<ResultColumn>& columns) {
    bool found = false;
    for (const Visible& table : scope.tables) {
        if (!isAllTables(starOf) && !sameText(table.qualifier, starOf.last())) {
            continue;
        }
        found = true;
        const std::size_t count = table.table != nullptr ? table.table->columns.size() : table.derived.size();
        for (std::size_t i = 0; i < count; ++i) {
            columns.push_back(describe(table, static_cast<int>(i)));
            result.items.push_back(column(table, static_cast<int>(i)));
        }
    }
    if (found) {
        return;
    }
    if (isAllTables(starOf)) {
        throw errors::noTableToSelectFrom();
    }
    throw errors::prefixUnknown(starOf.last());
}

bound::Order Binder::order(const OrderItem& item, const bound::Select& result, bool single) {
    bound::Order order;
    order.descending = item.descending;
    const auto place = [&](std::size_t column) {
        order.ordinal = static_cast<int>(column) + 1;
        order.text = result.columns[column].type.isText();
    };
    if (const auto* literal = std::get_if<Literal>(&item.expression->node);
        literal != nullptr && literal->kind == Literal::Kind::Integer) {
        const int ordinal = static_cast<int>(std::strtol(literal->text.c_str(), nullptr, 10));
        if (ordinal < 1 || ordinal > static_cast<int>(result.columns.size())) {
            throw errors::orderOutOfRange(ordinal);
        }
        place(static_cast<std::size_t>(ordinal) - 1);
        return order;
    }
    const auto* reference = std::get_if<ColumnReference>(&item.expression->node);
    if (reference != nullptr && reference->name.pieces.size() == 1) {
        for (std::size_t i = 0; i < result.columns.size(); ++i) {
            if (!sameText(result.columns[i].name, reference->name.last())) {
                continue;
            }
            if (order.ordinal > 0 &&
                !isSameColumn(result.columns[i], result.columns[static_cast<std::size_t>(order.ordinal) - 1])) {
                throw errors::ambiguousColumn(reference->name.last());
            }
            if (order.ordinal == 0) {
                place(i);
            }
        }
        if (order.ordinal > 0) {
            return order;
        }
    }
    if (!single) {
        throw errors::orderNotSelected();
    }
    order.expression = expression(*item.expression);
    if (bound::isConstant(*order.expression)) {
        throw errors::orderedByConstant(static_cast<int>(result.orderBy.size()) + 1);
    }
    order.text = order.expression->type.isText();
    return order;
}

void Binder::unify(bound::Select& result, bound::Core& core, const std::vector<ResultColumn>& columns) {
    if (columns.size() != result.columns.size()) {
        throw errors::unionCountMismatch();
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        ResultColumn& column = result.columns[i];
        const DataType common = commonType(column.type, columns[i].type);
        for (bound::Core& earlier : result.cores) {
            earlier.items[i] = convertTo(std::move(earlier.items[i]), common, Purpose::Cast);
        }
        core.items[i] = convertTo(std::move(core.items[i]), common, Purpose::Cast);
        column.type = common;
        column.nullable = column.nullable || columns[i].nullable;
        column.identity = column.key = false;
        column.baseTable.clear();
        column.baseColumn.clear();
    }
}

} // namespace engine
