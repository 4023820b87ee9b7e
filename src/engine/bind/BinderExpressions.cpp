#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/functions/Operators.h"
#include "engine/values/Collation.h"

namespace engine {

namespace {

/// Deepest expression that goes to the storage, whose own limit is a thousand.
constexpr int kDeepestExpression = 400;

using Kind = DataType::Kind;

/// The operands of `a or b or c` in the order of the text. The parser nests such a chain to the left; a loop over its
/// links needs no recursion.
std::vector<const Expression*> chainOf(const Binary& top) {
    std::vector<const Expression*> chain;
    const Binary* link = &top;
    while (true) {
        chain.push_back(link->right.get());
        const auto* next = std::get_if<Binary>(&link->left->node);
        if (next == nullptr || next->op != top.op) {
            chain.push_back(link->left.get());
            break;
        }
        link = next;
    }
    return {chain.rbegin(), chain.rend()};
}

bound::ExpressionPtr negatedIf(bool negated, bound::ExpressionPtr condition) {
    if (negated) {
        return bound::prefix("NOT", std::move(condition), DataType{Kind::Bit});
    }
    return condition;
}

/// A balanced tree over a chain of conditions, so that a long chain isn't a deep expression.
bound::ExpressionPtr balanced(const char* op, std::vector<bound::ExpressionPtr>& conditions, std::size_t begin,
                              std::size_t end) {
    if (end - begin == 1) {
        return std::move(conditions[begin]);
    }
    const std::size_t middle = begin + (end - begin) / 2;
    auto left = balanced(op, conditions, begin, middle);
    return bound::infix(op, std::move(left), balanced(op, conditions, middle, end), DataType{Kind::Bit});
}

} // namespace

bound::ExpressionPtr Binder::expression(const Expression& expression) {
    if (++depth_ > kDeepestExpression) {
        throw errors::nestedTooDeep();
    }
    bound::ExpressionPtr result = std::visit([&](const auto& node) { return this->node(node); }, expression.node);
    --depth_;
    return result;
}

bound::ExpressionPtr Binder::bindAlone(const Expression& expression) {
    Scope scope;
    scope_ = &scope;
    auto result = this->expression(expression);
    scope_ = nullptr;
    return result;
}

bound::ExpressionPtr Binder::literal(const Literal& literal, bool negated) {
    if (literal.kind == Literal::Kind::Null) {
        auto null = bound::constant("NULL", DataType{});
        null->nullable = true;
        return null;
    }
    bound::Parameter parameter;
    const bool own = mode_ == Mode::Default || literal.index < 0;
    parameter.source = own ? bound::Parameter::Source::Constant : bound::Parameter::Source::Literal;
    parameter.ordinal = literal.index;
    parameter.constant = literal;
    parameter.negated = negated;
    const DataType type = typeOf(literal);
    parameter.digitsMatter = type.kind == Kind::Decimal; // assumed until freeDigits is called
    auto result = use(std::move(parameter), type);
    result->nullable = false;
    return result;
}

/// A new parameter where it is used.
bound::ExpressionPtr Binder::use(bound::Parameter parameter, const DataType& type) {
    parameters_.push_back(std::move(parameter));
    return bound::expressionOf(bound::ParameterUse{static_cast<int>(parameters_.size()) - 1}, type);
}

bound::ExpressionPtr Binder::node(const Literal& literal) {
    return this->literal(literal, false);
}

bound::ExpressionPtr Binder::node(const ColumnReference& reference) {
    const Resolved found = resolve(reference.name);
    return column(*found.table, found.column);
}

bound::ExpressionPtr Binder::node(const Unary& unary) {
    const auto* number = std::get_if<Literal>(&unary.operand->node);
    switch (unary.op) {
    case Unary::Operator::Minus:
        if (number != nullptr && number->kind != Literal::Kind::Text && number->kind != Literal::Kind::NationalText) {
            return literal(*number, true);
        } else {
            auto operand = expression(*unary.operand);
            return negated(std::move(operand));
        }
    case Unary::Operator::Plus:
        return expression(*unary.operand);
    case Unary::Operator::Not:
        return bound::prefix("NOT", expression(*unary.operand), DataType{Kind::Bit});
    case Unary::Operator::IsNull:
        return bound::postfix("IS NULL", expression(*unary.operand), DataType{Kind::Bit});
    case Unary::Operator::IsNotNull:
        return bound::postfix("IS NOT NULL", expression(*unary.operand), DataType{Kind::Bit});
    }
    throw InternalError("an operator without a meaning");
}

bound::ExpressionPtr Binder::node(const Binary& binary) {
    if (binary.op == Binary::Operator::And || binary.op == Binary::Operator::Or) {
        std::vector<bound::ExpressionPtr> conditions;
        for (const Expression* condition : chainOf(binary)) {
            conditions.push_back(expression(*condition));
        }
        return balanced(operatorText(binary.op), conditions, 0, conditions.size());
    }
    if (binary.op < Binary::Operator::Equal) {
        // Not balanced: in `a + b + 1` the order decides which operands are texts and which are numbers.
        const auto chain = chainOf(binary);
        bound::ExpressionPtr result = expression(*chain.front());
        for (std::size_t i = 1; i < chain.size(); ++i) {
            if (i > kDeepestExpression) {
                throw errors::nestedTooDeep();
            }
            result = arithmetic(binary.op, std::move(result), expression(*chain[i]));
        }
        return result;
    }
    auto left = expression(*binary.left);
    return compare(operatorText(binary.op), std::move(left), expression(*binary.right));
}

bound::ExpressionPtr Binder::compare(const char* op, bound::ExpressionPtr left, bound::ExpressionPtr right) {
    const DataType common = commonType(left->type, right->type);
    freeDigits(*left);
    freeDigits(*right);
    const auto meet = [&](bound::ExpressionPtr side) {
        // Numbers of two types are compared without a conversion, and so are texts of two lengths. A real is the float
        // nearest to a number, and a literal next to a float may have more digits than a decimal keeps.
        const bool numbers = side->type.isNumber() && common.isNumber() && common.kind != Kind::Real;
        const bool literal = side->type.kind == Kind::Decimal && common.kind == Kind::Float && bareLiteral(*side);
        const bool alike = (numbers && !literal) || (side->type.isText() && common.isText());
        return alike ? std::move(side) : convertTo(std::move(side), comparable(common), Purpose::Cast);
    };
    left = collated(meet(std::move(left)));
    return bound::infix(op, std::move(left), meet(std::move(right)), DataType{Kind::Bit});
}

/// One character, which is part of the plan.
bound::ExpressionPtr Binder::escape(const Expression& written) {
    const auto* literal = std::get_if<Literal>(&written.node);
    const bool text =
        literal != nullptr && (literal->kind == Literal::Kind::Text || literal->kind == Literal::Kind::NationalText);
    if (!text || characters(literal->text) != 1) {
        throw errors::invalidEscape(literal == nullptr ? std::string_view() : literal->text);
    }
    return bound::constant(bound::quotedText(literal->text), DataType{Kind::NVarChar, 1, 0, 0});
}

bound::ExpressionPtr Binder::node(const Like& like) {
    const DataType text{Kind::VarChar, -1, 0, 0};
    const auto asText = [&](const Expression& part) {
        auto bound = expression(part);
        return bound->type.isText() ? std::move(bound) : convertTo(std::move(bound), text, Purpose::Cast);
    };
    auto operand = asText(*like.operand);
    auto pattern = asText(*like.pattern);
    const char* function =
        operand->type.isNational() || pattern->type.isNational() ? operators::kLikeNational : operators::kLike;
    auto result = like.escape ? bound::call(function, DataType{Kind::Bit}, std::move(operand), std::move(pattern),
                                            escape(*like.escape))
                              : bound::call(function, DataType{Kind::Bit}, std::move(operand), std::move(pattern));
    return negatedIf(like.negated, std::move(result));
}

bound::ExpressionPtr Binder::node(const Between& between) {
    // Two comparisons, since each bound may ask for another type of the operand.
    auto from = compare(">=", expression(*between.operand), expression(*between.low));
    auto to = compare("<=", expression(*between.operand), expression(*between.high));
    auto result = bound::infix("AND", std::move(from), std::move(to), DataType{Kind::Bit});
    return negatedIf(between.negated, std::move(result));
}

bound::ExpressionPtr Binder::node(const In& in) {
    auto operand = expression(*in.operand);
    bound::Expression::Node result;
    if (in.select) {
        auto select = std::make_unique<bound::Select>(inner(*in.select, scope_));
        if (select->columns.size() != 1) {
            throw errors::oneColumnOnly();
        }
        const bool nulls = select->cores.front().items.front()->type.kind == Kind::Unknown;
        const DataType common =
            comparable(nulls ? operand->type : commonType(operand->type, select->columns.front().type));
        for (bound::Core& core : select->cores) {
            core.items.front() = convertTo(std::move(core.items.front()), common, Purpose::Cast);
        }
        operand = collated(convertTo(std::move(operand), common, Purpose::Cast));
        result = bound::Subselect{bound::Subselect::Kind::In, std::move(operand), std::move(select)};
    } else {
        std::vector<bound::ExpressionPtr> list;
        DataType common = operand->type;
        for (const ExpressionPtr& one : in.list) {
            list.push_back(expression(*one));
            common = commonType(common, list.back()->type);
        }
        common = comparable(common);
        freeDigits(*operand);
        for (bound::ExpressionPtr& one : list) {
            freeDigits(*one);
            if (bound::Parameter* literal = bareLiteral(*one)) {
                literal->trimmed = true; // a set of SQLite's breaks '' where it meets ' ' and '' again
            }
            one = convertTo(std::move(one), common, Purpose::Cast);
        }
        operand = collated(convertTo(std::move(operand), common, Purpose::Cast));
        result = bound::InList{std::move(operand), std::move(list)};
    }
    return negatedIf(in.negated, bound::expressionOf(std::move(result), DataType{Kind::Bit}));
}

bound::ExpressionPtr Binder::node(const Exists& exists) {
    bound::Subselect subselect{bound::Subselect::Kind::Exists, nullptr,
                               std::make_unique<bound::Select>(inner(*exists.select, scope_))};
    return bound::expressionOf(std::move(subselect), DataType{Kind::Bit});
}

bound::ExpressionPtr Binder::node(const ScalarSelect& scalar) {
    auto select = std::make_unique<bound::Select>(inner(*scalar.select, scope_));
    if (select->columns.size() != 1) {
        throw errors::oneColumnOnly();
    }
    const DataType type = select->columns.front().type;
    return bound::expressionOf(bound::Subselect{bound::Subselect::Kind::Scalar, nullptr, std::move(select)}, type);
}

bound::ExpressionPtr Binder::node(const Case& choice) {
    bound::Case result;
    DataType common;
    for (const Case::Branch& branch : choice.branches) {
        auto when = choice.operand ? compare("=", expression(*choice.operand), expression(*branch.when))
                                   : expression(*branch.when);
        auto then = expression(*branch.then);
        common = commonType(common, then->type);
        result.branches.push_back({std::move(when), std::move(then)});
    }
    if (choice.otherwise) {
        result.otherwise = expression(*choice.otherwise);
        common = commonType(common, result.otherwise->type);
        result.otherwise = convertTo(std::move(result.otherwise), common, Purpose::Cast);
    }
    if (common.kind == Kind::Unknown) {
        throw errors::caseOfNulls();
    }
    for (auto& branch : result.branches) {
        branch.then = convertTo(std::move(branch.then), common, Purpose::Cast);
    }
    return bound::expressionOf(std::move(result), common);
}

bound::ExpressionPtr Binder::node(const Conversion& conversion) {
    return convertWritten(expression(*conversion.operand), conversion.type, Purpose::Cast, conversion.style);
}

} // namespace engine
