#include "engine/functions/Operators.h"
#include "engine/translate/SqlText.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <iterator>

namespace engine::translate {

namespace {

void writeList(Text& text, const std::vector<bound::ExpressionPtr>& list) {
    translate::writeList(text, list, list.size() >= Text::Many::kLeast);
}

void writeNode(Text& text, const bound::ParameterUse& use) {
    text.parameter(use.place);
}

void writeNode(Text& text, const bound::Column& column) {
    text += alias(column.source) + '.' + stored::quoted(column.column);
}

void writeNode(Text& text, const bound::Constant& constant) {
    text += constant.text;
}

void writeNode(Text& text, const bound::Operation& operation) {
    text += '(';
    if (operation.operands.size() == 2) {
        write(text, *operation.operands[0]);
        text += ' ' + operation.op + ' ';
        write(text, *operation.operands[1]);
    } else if (operation.postfix) {
        write(text, *operation.operands[0]);
        text += ' ' + operation.op;
    } else {
        text += operation.op + ' ';
        write(text, *operation.operands[0]);
    }
    text += ')';
}

void writeNode(Text& text, const bound::Call& call) {
    text += call.function;
    text += call.distinct ? "(DISTINCT " : "(";
    if (call.star) {
        text += '*';
    }
    writeList(text, call.arguments);
    text += ')';
}

void writeNode(Text& text, const bound::Case& choice) {
    const Text::Many many(text, choice.branches.size() >= Text::Many::kLeast);
    text += "CASE";
    for (const auto& branch : choice.branches) {
        text += " WHEN ";
        write(text, *branch.when);
        text += " THEN ";
        write(text, *branch.then);
    }
    if (choice.otherwise) {
        text += " ELSE ";
        write(text, *choice.otherwise);
    }
    text += " END";
}

void writeNode(Text& text, const bound::InList& in) {
    text += '(';
    write(text, *in.operand);
    text += " IN (";
    writeList(text, in.list);
    text += "))";
}

/// SQLite may take an index for the rows, and misses the nulls of a descending one, or makes a set of them that breaks
/// '' where it meets ' ' and '' again: what can be null or a text isn't given to it as it is.
void writeIn(Text& text, const bound::Subselect& in) {
    const bool texts = in.operand->type.isText();
    const bool apart = texts || in.select->columns.front().nullable;
    text += '(';
    write(text, *in.operand);
    text += !apart ? " IN (" : texts ? " IN (SELECT rtrim(c0) FROM (" : " IN (SELECT +c0 FROM (";
    write(text, *in.select);
    text += apart ? ")))" : "))";
}

void writeNode(Text& text, const bound::Subselect& subselect) {
    switch (subselect.kind) {
    case bound::Subselect::Kind::Exists:
        text += "EXISTS (";
        write(text, *subselect.select);
        text += ')';
        return;
    case bound::Subselect::Kind::In:
        writeIn(text, subselect);
        return;
    case bound::Subselect::Kind::Scalar:
        if (subselect.select->cores.size() == 1 && bound::isOneRow(subselect.select->cores.front())) {
            text += '(';
            write(text, *subselect.select);
            text += ')';
            return;
        }
        // SQLite would take the first of several rows and raise no error.
        text += std::string("(SELECT CASE WHEN count(*) > 1 THEN ") + operators::kTooManyRows +
                "() ELSE min(c0) END FROM (SELECT * FROM (";
        write(text, *subselect.select);
        text += ") LIMIT 2))";
        return;
    }
}

} // namespace

void writeList(Text& text, const std::vector<bound::ExpressionPtr>& list, bool many) {
    bool first = true;
    for (const bound::ExpressionPtr& one : list) {
        text += first ? "" : ", ";
        first = false;
        // A parameter alone SQLite takes any number of times quickly.
        const Text::Many calls(text, many && !std::holds_alternative<bound::ParameterUse>(one->node));
        write(text, *one);
    }
}

std::string rowidOf(const TableInfo& table) {
    for (const char* name : {"rowid", "_rowid_"}) {
        if (table.find(name) < 0) {
            return name;
        }
    }
    return "oid";
}

std::string alias(int source) {
    return "t" + std::to_string(source);
}

void write(Text& text, const bound::Expression& expression) {
    std::visit([&](const auto& node) { writeNode(text, node); }, expression.node);
}

void writeWhere(Text& text, const bound::ExpressionPtr& condition) {
    if (condition) {
        text += " WHERE ";
        write(text, *condition);
    }
}

void writeLimit(Text& text, std::int64_t most) {
    if (most != 0) {
        text += " LIMIT " + std::to_string(most);
    }
}

} // namespace engine::translate
