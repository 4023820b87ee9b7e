#include "engine/text/PrintLists.h"

#include <array>

namespace engine {

namespace {

constexpr std::array<std::string_view, 13> kBinaryNames = {"+", "-",  "*", "/",  "%",   "=", "<>",
                                                           "<", "<=", ">", ">=", "and", "or"};
constexpr std::array<std::string_view, 5> kUnaryNames = {"-", "+", "not", "is-null", "is-not-null"};

struct Printer {
    std::string operator()(const Literal& literal) const {
        switch (literal.kind) {
        case Literal::Kind::Null:
            return "null";
        case Literal::Kind::Text:
            return "'" + literal.text + "'";
        case Literal::Kind::NationalText:
            return "N'" + literal.text + "'";
        default:
            return literal.text;
        }
    }
    std::string operator()(const ColumnReference& column) const {
        return ListText("column").add(print(column.name)).text();
    }
    std::string operator()(const Unary& unary) const {
        return ListText(kUnaryNames.at(static_cast<std::size_t>(unary.op))).add(unary.operand).text();
    }
    std::string operator()(const Binary& binary) const {
        return ListText(kBinaryNames.at(static_cast<std::size_t>(binary.op))).add(binary.left).add(binary.right).text();
    }
    std::string operator()(const Like& like) const {
        return ListText(like.negated ? "not-like" : "like")
            .add(like.operand)
            .add(like.pattern)
            .add("escape", like.escape)
            .text();
    }
    std::string operator()(const Between& between) const {
        return ListText(between.negated ? "not-between" : "between")
            .add(between.operand)
            .add(between.low)
            .add(between.high)
            .text();
    }
    std::string operator()(const In& in) const {
        ListText list(in.negated ? "not-in" : "in");
        list.add(in.operand);
        for (const auto& value : in.list) {
            list.add(value);
        }
        if (in.select) {
            list.add(print(*in.select));
        }
        return list.text();
    }
    std::string operator()(const Exists& exists) const { return ListText("exists").add(print(*exists.select)).text(); }
    std::string operator()(const ScalarSelect& scalar) const {
        return ListText("scalar").add(print(*scalar.select)).text();
    }
    std::string operator()(const Case& node) const {
        ListText list("case");
        list.add(node.operand);
        for (const auto& branch : node.branches) {
            list.add(ListText("when").add(branch.when).add(branch.then).text());
        }
        return list.add("else", node.otherwise).text();
    }
    std::string operator()(const Call& call) const {
        ListText list("call");
        list.add(call.function).addIf(call.star, "*").addIf(call.distinct, "distinct");
        for (const auto& argument : call.arguments) {
            list.add(argument);
        }
        return list.text();
    }
    std::string operator()(const Conversion& conversion) const {
        ListText list(conversion.isCast ? "cast" : "convert");
        list.add(toText(conversion.type)).add(conversion.operand);
        if (conversion.style) {
            list.add(std::to_string(*conversion.style));
        }
        return list.text();
    }
    std::string operator()(const ServerVariable& variable) const { return "@@" + variable.name; }
};

} // namespace

std::string print(const Name& name) {
    std::string text;
    for (const std::string& piece : name.pieces) {
        text += (text.empty() && &piece == &name.pieces.front() ? "" : ".") + piece;
    }
    return text;
}

std::string print(const Expression& expression) {
    return std::visit(Printer{}, expression.node);
}

} // namespace engine
