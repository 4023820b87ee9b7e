#include "ado/Literals.h"

#include <charconv>
#include <cstdio>

namespace ado {

namespace {

std::string doubled(std::string_view text, char mark) {
    std::string result;
    for (const char c : text) {
        if (c == mark) {
            result += c;
        }
        result += c;
    }
    return result;
}

/// The fewest digits that are read as the same number again.
template<typename Real>
std::string shortest(Real number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return {text, end};
}

std::string dateLiteral(Date date) {
    char text[80];
    const int seconds = date.millisecond / 1000;
    std::snprintf(text, sizeof text, "CONVERT(DATETIME, '%04d-%02d-%02d %02d:%02d:%02d.%03d', 121)", date.year(),
                  date.month(), date.dayOfMonth(), seconds / 3600, seconds / 60 % 60, seconds % 60,
                  date.millisecond % 1000);
    return text;
}

std::string scaled(std::int64_t unscaled, int scale) {
    std::string digits = std::to_string(unscaled);
    if (scale <= 0) {
        return digits;
    }
    const std::size_t begin = digits.front() == '-' ? 1 : 0;
    const auto decimals = static_cast<std::size_t>(scale);
    if (digits.size() - begin <= decimals) {
        digits.insert(begin, decimals + 1 - (digits.size() - begin), '0');
    }
    return digits.insert(digits.size() - decimals, 1, '.');
}

} // namespace

std::string quotedName(std::string_view name) {
    return "[" + doubled(name, ']') + "]";
}

std::string literal(const Value& value, FieldType column) {
    const auto write = [&]<typename T>(const T& content) -> std::string {
        if constexpr (std::is_same_v<T, std::monostate> || std::is_same_v<T, Null>) {
            return "NULL";
        } else if constexpr (std::is_same_v<T, bool>) {
            return content ? "1" : "0";
        } else if constexpr (std::is_floating_point_v<T>) {
            return shortest(content);
        } else if constexpr (std::is_same_v<T, Currency>) {
            return scaled(content.tenThousandths, 4);
        } else if constexpr (std::is_same_v<T, Decimal>) {
            return scaled(content.unscaled, content.scale);
        } else if constexpr (std::is_same_v<T, Date>) {
            return dateLiteral(content);
        } else if constexpr (std::is_same_v<T, std::string>) {
            return (column == FieldType::WChar ? "N'" : "'") + doubled(content, '\'') + "'";
        } else {
            return std::to_string(content);
        }
    };
    return std::visit(write, value.variant());
}

} // namespace ado
