#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"
#include "engine/values/Conversions.h"

namespace engine {

std::optional<std::string> digitsOfAmount(std::string_view text) {
    std::string digits;
    bool currency = false;
    bool sign = false;
    bool point = false;
    bool begun = false;
    while (!text.empty()) {
        const auto takes = [&](std::string_view wanted) {
            const bool found = text.starts_with(wanted);
            text.remove_prefix(found ? wanted.size() : 0);
            return found;
        };
        const char first = text.front();
        if (takes("$") || takes("€") || takes("£") || takes("¥")) {
            if (currency || begun) {
                return std::nullopt;
            }
            currency = true;
        } else if (takes("+") || takes("-")) {
            if (sign || begun) {
                return std::nullopt;
            }
            sign = true;
            digits += first;
        } else if (takes(".")) {
            if (point) {
                return std::nullopt;
            }
            point = begun = true;
            digits += first;
        } else if (isDigit(first) || (first == ',' && !point)) {
            text.remove_prefix(1);
            begun = true;
            digits += isDigit(first) ? std::string(1, first) : "";
        } else if (first != ' ' || begun || !currency) {
            return std::nullopt;
        } else {
            text.remove_prefix(1);
        }
    }
    return digits;
}

double toMoney(std::string_view text, const DataType& target) {
    auto digits = digitsOfAmount(trimmed(text));
    if (!digits) {
        throw errors::moneyOfText();
    }
    // A sign, a currency or a comma alone is nothing.
    *digits += digits->find_first_of("0123456789") == std::string::npos ? "0" : "";
    const Decimal number = *Decimal::parse(*digits, target.scale);
    if (!number.fits(target)) {
        throw errors::conversionOverflow("expression", "money");
    }
    return number.kept();
}

std::string moneyText(const Decimal& amount, std::optional<int> style) {
    constexpr int kAllPlaces = 4;
    constexpr int kUsualPlaces = 2;
    constexpr int kForXml = 126;
    constexpr std::size_t kGroup = 3;
    const int places = style == 2 || style == kForXml ? kAllPlaces : kUsualPlaces;
    std::string text = amount.rounded(places).text(places);
    if (style == 1) {
        const std::size_t begin = text.starts_with('-') ? 1 : 0;
        for (std::size_t at = text.find('.'); at > begin + kGroup;) {
            at -= kGroup;
            text.insert(at, ",");
        }
    }
    return text;
}

} // namespace engine
