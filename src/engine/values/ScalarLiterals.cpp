#include "engine/values/Collation.h"
#include "engine/values/Scalar.h"

#include <algorithm>
#include <charconv>

namespace engine {

namespace {

using Kind = DataType::Kind;

/// That of the type of a constant, the same for all that fit, so that they share a plan.
int lengthOf(const std::string& text, int longest) {
    const auto most = static_cast<std::size_t>(longest);
    return text.size() > most && characters(text) > most ? -1 : longest;
}

} // namespace

Scalar scalarOf(const Literal& literal, bool negated) {
    switch (literal.kind) {
    case Literal::Kind::Null:
        return {};
    case Literal::Kind::Integer:
    case Literal::Kind::Decimal: {
        constexpr std::size_t kSureLength = 16; // of 15 digits and a point, which a double keeps
        const std::string digits = (negated ? "-" : "") + literal.text;
        const char* end = digits.data() + digits.size();
        std::int64_t number = 0;
        const auto [stop, problem] = std::from_chars(digits.data(), end, number);
        if (problem == std::errc{} && stop == end) {
            return number;
        }
        if (literal.text.size() > kSureLength) {
            return scalarOf(*Decimal::parse(digits, kWidestDecimal));
        }
        double nearest = 0;
        std::from_chars(digits.data(), end, nearest);
        return nearest;
    }
    case Literal::Kind::Float: {
        double number = 0; // which is what a number too small to be told from it stays
        std::from_chars(literal.text.data(), literal.text.data() + literal.text.size(), number);
        return negated ? 0 - number : number; // zero has no sign
    }
    case Literal::Kind::Text:
    case Literal::Kind::NationalText:
        return literal.text;
    }
    return {};
}

DataType decimalOf(const Literal& literal) {
    std::string_view digits = literal.text;
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    const std::size_t point = digits.find('.');
    const int scale = point == std::string::npos ? 0 : static_cast<int>(digits.size() - point - 1);
    const int written = static_cast<int>(digits.size()) - (point == std::string::npos ? 0 : 1);
    return {Kind::Decimal, 0, std::clamp(written, 1, kWidestDecimal), std::min(scale, kWidestDecimal)};
}

DataType typeOf(const Literal& literal) {
    switch (literal.kind) {
    case Literal::Kind::Null:
        break;
    case Literal::Kind::Integer:
        return {Kind::Int, 0, 0, 0};
    case Literal::Kind::Decimal:
        return decimalOf(literal);
    case Literal::Kind::Float:
        return {Kind::Float, 0, 0, 0};
    case Literal::Kind::Text:
        return {Kind::VarChar, lengthOf(literal.text, kLongestText), 0, 0};
    case Literal::Kind::NationalText:
        return {Kind::NVarChar, lengthOf(literal.text, kLongestNationalText), 0, 0};
    }
    return {};
}

} // namespace engine
