#include "ado/Filter.h"

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "ado/Names.h"
#include "ado/Text.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <compare>
#include <iterator>
#include <utility>

namespace ado {

namespace {

constexpr int kDeepestBrackets = 100;

using Operator = FilterExpression::Operator;
using Comparison = FilterExpression::Comparison;
using Group = FilterExpression::Group;

bool isNamePart(char c) {
    return isNameStart(c) || isDigit(c) || c == '$';
}

bool isText(FieldType type) {
    return type == FieldType::Char || type == FieldType::WChar;
}

/// The server's pattern for one in which only `%` and `*` are wildcards.
std::string serverPattern(std::string_view pattern) {
    std::string result;
    for (const char c : pattern) {
        if (c == '[' || c == '_') {
            (result += '[').append({c, ']'});
        } else {
            result += c == '*' ? '%' : c;
        }
    }
    return result;
}

/// A filter's date: with the year first where it begins with four digits, else by the regional settings.
Date dateOf(std::string_view text) {
    if (const auto date = parseDate(text)) {
        return *date;
    }
    throw Error(kWrongArguments);
}

class FilterParser {
public:
    FilterParser(std::string_view text, const std::vector<FieldDescription>& fields) : rest_(text), fields_(fields) {}

    std::vector<Group> parse() {
        std::vector<Group> groups = filter(0);
        skipBlanks();
        demand(rest_.empty());
        return groups;
    }

private:
    static void demand(bool kept) {
        if (!kept) {
            throw Error(kWrongArguments);
        }
    }

    std::vector<Group> filter(int depth) {
        std::vector<Group> groups = group(depth);
        while (takeWord("OR")) {
            std::vector<Group> more = group(depth);
            std::ranges::move(more, std::back_inserter(groups));
        }
        return groups;
    }

    std::vector<Group> group(int depth) {
        std::vector<Group> groups = part(depth);
        while (takeWord("AND")) {
            std::vector<Group> more = part(depth);
            demand(groups.size() == 1 && more.size() == 1);
            std::ranges::move(more.front(), std::back_inserter(groups.front()));
        }
        return groups;
    }

    std::vector<Group> part(int depth) {
        demand(depth < kDeepestBrackets);
        if (!takeSign("(")) {
            return {{comparison()}};
        }
        std::vector<Group> groups = filter(depth + 1);
        demand(takeSign(")"));
        return groups;
    }

    Comparison comparison() {
        Comparison result;
        result.column = field();
        result.op = comparisonOperator();
        const FieldType type = fields_[static_cast<std::size_t>(result.column)].type;
        skipBlanks();
        if (rest_.starts_with('\'')) {
            textValue(result, type);
        } else if (rest_.starts_with('#')) {
            dateValue(result, type);
        } else {
            numberValue(result, type);
        }
        demand(rest_.empty() || isBlank(rest_.front()) || rest_.front() == ')');
        return result;
    }

    int field() {
        skipBlanks();
        std::string_view name;
        if (rest_.starts_with('[')) {
            const auto end = rest_.find(']');
            demand(end != std::string_view::npos);
            name = rest_.substr(1, end - 1);
            rest_.remove_prefix(end + 1);
        } else {
            demand(!rest_.empty() && isNameStart(rest_.front()));
            const auto end = std::ranges::find_if_not(rest_, isNamePart);
            name = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
            rest_.remove_prefix(name.size());
        }
        const auto found =
            std::ranges::find_if(fields_, [&](const FieldDescription& field) { return sameName(field.name, name); });
        demand(found != fields_.end());
        return static_cast<int>(found - fields_.begin());
    }

    Operator comparisonOperator() {
        static constexpr std::array<std::pair<std::string_view, Operator>, 6> kSigns = {
            {{"<=", Operator::LessOrEqual},
             {">=", Operator::GreaterOrEqual},
             {"<>", Operator::Different},
             {"<", Operator::Less},
             {">", Operator::Greater},
             {"=", Operator::Equal}}};
        for (const auto& [sign, op] : kSigns) {
            if (takeSign(sign)) {
                return op;
            }
        }
        demand(takeWord("LIKE"));
        return Operator::Like;
    }

    void textValue(Comparison& result, FieldType type) {
        const std::string text = quotedText();
        if (isText(type)) {
            result.kind = Comparison::Kind::Text;
            result.text = result.op == Operator::Like ? serverPattern(text) : text;
            return;
        }
        demand(result.op != Operator::Like && type != FieldType::Binary);
        if (type == FieldType::DateTime) {
            result.kind = Comparison::Kind::Date;
            result.date = dateOf(text);
            return;
        }
        const auto number = parseNumber(text);
        demand(number.has_value());
        result.number = *number;
    }

    std::string quotedText() {
        std::string text;
        for (rest_.remove_prefix(1);; rest_.remove_prefix(1)) {
            demand(!rest_.empty());
            if (rest_.front() == '\'') {
                rest_.remove_prefix(1);
                if (!rest_.starts_with('\'')) {
                    return text;
                }
            }
            text += rest_.front();
        }
    }

    void dateValue(Comparison& result, FieldType type) {
        const auto end = rest_.find('#', 1);
        demand(end != std::string_view::npos && type == FieldType::DateTime && result.op != Operator::Like);
        result.kind = Comparison::Kind::Date;
        result.date = dateOf(rest_.substr(1, end - 1));
        rest_.remove_prefix(end + 1);
    }

    void numberValue(Comparison& result, FieldType type) {
        const bool comparable = type != FieldType::DateTime && type != FieldType::Binary;
        demand(comparable && result.op != Operator::Like);
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), result.number);
        const std::string_view written = rest_.substr(0, static_cast<std::size_t>(end - rest_.data()));
        demand(error == std::errc() && written.find_first_of("nN") == std::string_view::npos);
        rest_.remove_prefix(written.size());
        if (isText(type)) {
            result.kind = Comparison::Kind::Text;
            result.text = written;
        }
    }

    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front())) {
            rest_.remove_prefix(1);
        }
    }

    bool takeSign(std::string_view sign) {
        skipBlanks();
        if (!rest_.starts_with(sign)) {
            return false;
        }
        rest_.remove_prefix(sign.size());
        return true;
    }

    bool takeWord(std::string_view word) {
        skipBlanks();
        const std::string_view found = rest_.substr(0, word.size());
        const bool ends = rest_.size() <= word.size() || !isNamePart(rest_[word.size()]);
        if (!ends || !sameName(found, word)) {
            return false;
        }
        rest_.remove_prefix(word.size());
        return true;
    }

    std::string_view rest_;
    const std::vector<FieldDescription>& fields_;
};

bool holds(Operator op, std::partial_ordering order) {
    switch (op) {
    case Operator::Less:
        return std::is_lt(order);
    case Operator::Greater:
        return std::is_gt(order);
    case Operator::LessOrEqual:
        return std::is_lteq(order);
    case Operator::GreaterOrEqual:
        return std::is_gteq(order);
    case Operator::Different:
        return std::is_neq(order);
    case Operator::Equal:
        return std::is_eq(order);
    case Operator::Like:
        break;
    }
    return false;
}

bool holds(const Comparison& comparison, const RowStore& rows, std::size_t row) {
    if (rows.isNull(row, comparison.column)) {
        return false;
    }
    switch (comparison.kind) {
    case Comparison::Kind::Text: {
        const std::string_view text = rows.text(row, comparison.column);
        if (comparison.op == Operator::Like) {
            return engine::like(text, comparison.text);
        }
        return holds(comparison.op, engine::compareTexts(text, comparison.text) <=> 0);
    }
    case Comparison::Kind::Date:
        return holds(comparison.op, toDate(rows.value(row, comparison.column)) <=> comparison.date);
    case Comparison::Kind::Number:
        break;
    }
    const Value value = rows.value(row, comparison.column);
    if (const auto* truth = std::get_if<bool>(&value.variant())) {
        return holds(comparison.op, (*truth ? 1 : 0) <=> (comparison.number != 0 ? 1 : 0));
    }
    return holds(comparison.op, toDouble(value) <=> comparison.number);
}

} // namespace

FilterExpression::FilterExpression(std::string_view text, const std::vector<FieldDescription>& fields)
    : groups_(FilterParser(text, fields).parse()) {}

bool FilterExpression::admits(const RowStore& rows, std::size_t row) const {
    return std::ranges::any_of(groups_, [&](const Group& group) {
        return std::ranges::all_of(group, [&](const Comparison& comparison) { return holds(comparison, rows, row); });
    });
}

} // namespace ado
