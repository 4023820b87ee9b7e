#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/functions/Operators.h"

#include <algorithm>

namespace engine {

namespace {

using bound::Expression;

const Expression* bare(const Expression& expression) {
    const auto* operation = std::get_if<bound::Operation>(&expression.node);
    return operation != nullptr && operation->op == "COLLATE TSQL" ? operation->operands.front().get() : &expression;
}

using Parameters = std::vector<bound::Parameter>;

/// Two literals that are written alike.
bool sameParameter(const Expression& left, const Expression& right, Parameters& parameters) {
    const auto* a = std::get_if<bound::ParameterUse>(&left.node);
    const auto* b = std::get_if<bound::ParameterUse>(&right.node);
    if (a == nullptr || b == nullptr) {
        return false;
    }
    bound::Parameter& first = parameters[static_cast<std::size_t>(a->place)];
    bound::Parameter& second = parameters[static_cast<std::size_t>(b->place)];
    first.valueMatters = second.valueMatters = true;
    return first.constant.text == second.constant.text && first.negated == second.negated;
}

/// But for so many at the end of each.
bool sameAll(const std::vector<bound::ExpressionPtr>& left, const std::vector<bound::ExpressionPtr>& right,
             Parameters& parameters, std::ptrdiff_t last = 0) {
    return std::equal(left.begin(), left.end() - last, right.begin(), right.end() - last,
                      [&](const bound::ExpressionPtr& a, const bound::ExpressionPtr& b) {
                          return sameExpression(*a, *b, parameters) || sameParameter(*a, *b, parameters);
                      });
}

bool sameShape(const Expression& left, const Expression& right, Parameters& parameters) {
    if (const auto* call = std::get_if<bound::Call>(&left.node)) {
        const auto& other = std::get<bound::Call>(right.node);
        // How many digits are taken of an arithmetic is no part of it.
        const bool sameDigits = call->function == operators::kDecimal;
        return call->function == other.function &&
               sameAll(call->arguments, other.arguments, parameters, sameDigits ? 1 : 0);
    }
    if (const auto* operation = std::get_if<bound::Operation>(&left.node)) {
        const auto& other = std::get<bound::Operation>(right.node);
        return operation->op == other.op && sameAll(operation->operands, other.operands, parameters);
    }
    if (const auto* constant = std::get_if<bound::Constant>(&left.node)) {
        return constant->text == std::get<bound::Constant>(right.node).text;
    }
    return false;
}

/// A column of these tables outside of every aggregate and every expression of the GROUP BY; nullptr where none is.
const Expression* looseColumn(const Expression& expression, const bound::Core& core, const std::vector<int>& tables,
                              Parameters& parameters) {
    if (std::any_of(core.groupBy.begin(), core.groupBy.end(), [&](const bound::ExpressionPtr& group) {
            return sameExpression(*bare(*group), *bare(expression), parameters);
        })) {
        return nullptr;
    }
    if (const auto* column = std::get_if<bound::Column>(&expression.node)) {
        return std::find(tables.begin(), tables.end(), column->source) == tables.end() ? nullptr : &expression;
    }
    if (const auto* call = std::get_if<bound::Call>(&expression.node); call != nullptr && call->aggregate) {
        return nullptr;
    }
    for (const Expression* part : bound::partsOf(expression)) {
        if (const Expression* found = looseColumn(*part, core, tables, parameters)) {
            return found;
        }
    }
    return nullptr;
}

template<class Tables>
std::vector<int> numbersOf(const Tables& tables) {
    std::vector<int> numbers;
    for (const auto& table : tables) {
        numbers.push_back(table.number);
    }
    return numbers;
}

} // namespace

void Binder::checkGrouping(const bound::Core& core, const std::vector<bound::Order>& orderBy) {
    const std::vector<int> tables = numbersOf(scope_->tables);
    const auto check = [&](const bound::ExpressionPtr& expression, const auto& refused) {
        const bound::Expression* found = expression ? looseColumn(*expression, core, tables, parameters_) : nullptr;
        if (found == nullptr) {
            return;
        }
        const auto& column = std::get<bound::Column>(found->node);
        const auto table = std::find_if(scope_->tables.begin(), scope_->tables.end(),
                                        [&](const Visible& one) { return one.number == column.source; });
        throw refused(table->qualifier + "." + found->name);
    };
    for (const bound::ExpressionPtr& item : core.items) {
        check(item, errors::notGrouped);
    }
    check(core.having, errors::notGroupedInHaving);
    for (const bound::Order& order : orderBy) {
        check(order.expression, errors::notGroupedInOrder);
    }
}

bool sameExpression(const bound::Expression& left, const bound::Expression& right,
                    std::vector<bound::Parameter>& parameters) {
    const auto* a = std::get_if<bound::Column>(&left.node);
    const auto* b = std::get_if<bound::Column>(&right.node);
    if (a != nullptr && b != nullptr) {
        return a->source == b->source && a->column == b->column;
    }
    // An expression written twice has other parameters each time.
    return left.node.index() == right.node.index() && a == nullptr && b == nullptr && left.type == right.type &&
           !std::holds_alternative<bound::ParameterUse>(left.node) && sameShape(left, right, parameters);
}

bool Binder::refersTo(const Scope& scope, const bound::Expression& expression) const {
    const std::vector<int> tables = numbersOf(scope.tables);
    Parameters unused; // without a grouping nothing is compared
    return looseColumn(expression, {}, tables, unused) != nullptr;
}

/// An aggregate over columns of an outer SELECT belongs to that SELECT, one without columns to the SELECT around it.
Binder::Scope& Binder::ownerOf(const bound::Call& aggregate, Scope& here) const {
    Scope* owner = nullptr;
    for (Scope* scope = &here; scope != nullptr && !aggregate.star; scope = scope->parent) {
        if (!refersTo(*scope, *aggregate.arguments.front())) {
            continue;
        }
        if (owner != nullptr) {
            throw errors::severalColumnsAggregated();
        }
        owner = scope;
    }
    return owner == nullptr ? here : *owner;
}

} // namespace engine
