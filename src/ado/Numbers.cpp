// Numbers to texts and texts to numbers, by the regional settings.

#include "ado/Conversions.h"
#include "ado/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ado {

namespace {

constexpr int kSignificantDigits = 15;

/// Reads a number as people write it: sign before or after it, brackets for a negative one, currency symbol at either
/// end.
class NumberReader {
public:
    explicit NumberReader(std::string_view text) : rest_(text) {}

    std::optional<double> read() {
        signs(true);
        if (!digits() || !exponent()) {
            return std::nullopt;
        }
        signs(false);
        if (refused_ || !rest_.empty() || bracketOpen_) {
            return std::nullopt;
        }
        double number = 0;
        const auto end = plain_.data() + plain_.size();
        const auto [stop, error] = std::from_chars(plain_.data(), end, number);
        if (error != std::errc() || stop != end) {
            return std::nullopt;
        }
        return negative_ ? -number : number;
    }

private:
    bool take(std::string_view piece) {
        if (piece.empty() || !rest_.starts_with(piece)) {
            return false;
        }
        rest_.remove_prefix(piece.size());
        return true;
    }

    bool takeBlank() {
        if (rest_.empty() || !isBlank(rest_.front())) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    void sign(bool negative) {
        refused_ = refused_ || signed_;
        signed_ = true;
        negative_ = negative;
    }

    void currency() {
        refused_ = refused_ || currency_;
        currency_ = true;
    }

    /// The opening bracket also counts as the sign.
    bool takeBracket(bool ahead) {
        if (!(ahead ? take("(") : bracketOpen_ && take(")"))) {
            return false;
        }
        if (ahead) {
            sign(true);
        }
        bracketOpen_ = ahead;
        return true;
    }

    /// The signs, symbols and blanks before the digits (`ahead`) or after them.
    void signs(bool ahead) {
        while (!rest_.empty()) {
            if (takeBlank()) {
                continue;
            }
            if (take("-")) {
                sign(true);
            } else if (take("+")) {
                sign(false);
            } else if (take(regionalSettings().currencySymbol)) {
                currency();
            } else if (!takeBracket(ahead)) {
                return;
            }
        }
    }

    /// At least one digit. Groups may have any length; their separators are accepted before the decimal separator only.
    bool digits() {
        const RegionalSettings& settings = regionalSettings();
        bool some = false, fraction = false;
        for (; !rest_.empty(); rest_.remove_prefix(1)) {
            const char c = rest_.front();
            if (isDigit(c)) {
                plain_ += c;
                some = true;
            } else if (c == settings.decimalSeparator && !fraction) {
                plain_ += plain_.empty() ? "0." : ".";
                fraction = true;
            } else if (c != settings.thousandsSeparator || fraction) {
                break;
            }
        }
        return some;
    }

    bool exponent() {
        if (rest_.empty() || (rest_.front() != 'e' && rest_.front() != 'E')) {
            return true;
        }
        std::string_view ahead = rest_.substr(1);
        std::string text = "e";
        if (!ahead.empty() && (ahead.front() == '-' || ahead.front() == '+')) {
            text += ahead.front();
            ahead.remove_prefix(1);
        }
        if (ahead.empty() || !isDigit(ahead.front())) {
            return false;
        }
        while (!ahead.empty() && isDigit(ahead.front())) {
            text += ahead.front();
            ahead.remove_prefix(1);
        }
        plain_ += text;
        rest_ = ahead;
        return true;
    }

    std::string_view rest_;
    std::string plain_;
    bool negative_ = false, signed_ = false, currency_ = false, bracketOpen_ = false, refused_ = false;
};

/// A number as significant digits and the position of the point: 0.d1d2d3… × 10^point.
struct Digits {
    std::string digits;
    int point = 0;
    bool negative = false;

    explicit Digits(double number) {
        if (!std::isfinite(number)) {
            return;
        }
        // printf would take the separator of the process's locale, which the window system sets.
        std::array<char, 40> text{};
        const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(number),
                                              std::chars_format::scientific, kSignificantDigits - 1)
                                    .ptr;
        const std::string_view written(text.data(), end);
        const auto e = written.find('e');
        for (const char c : written.substr(0, e)) {
            if (isDigit(c)) {
                digits += c;
            }
        }
        const std::size_t sign = written[e + 1] == '+' ? 2 : 1; // from_chars takes a minus alone
        std::from_chars(text.data() + e + sign, end, point);
        ++point;
        negative = std::signbit(number);
        trim();
    }

    /// Rounds half away from zero.
    void roundTo(int decimals) {
        const int kept = point + decimals;
        if (kept >= static_cast<int>(digits.size())) {
            return;
        }
        const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
        digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
        if (up) {
            increment();
        }
        trim();
    }

    std::string whole() const {
        if (point <= 0) {
            return "0";
        }
        std::string text = digits.substr(0, static_cast<std::size_t>(point));
        text.resize(static_cast<std::size_t>(point), '0');
        return text;
    }

    std::string fraction() const {
        if (point >= static_cast<int>(digits.size())) {
            return {};
        }
        if (point >= 0) {
            return digits.substr(static_cast<std::size_t>(point));
        }
        return std::string(static_cast<std::size_t>(-point), '0') + digits;
    }

private:
    void increment() {
        auto place = digits.rbegin();
        for (; place != digits.rend() && *place == '9'; ++place) {
            *place = '0';
        }
        if (place != digits.rend()) {
            ++*place;
            return;
        }
        digits.insert(digits.begin(), '1');
        ++point;
    }

    void trim() {
        while (!digits.empty() && digits.back() == '0') {
            digits.pop_back();
        }
        if (digits.empty()) {
            point = 0;
            negative = false;
        }
    }
};

std::string grouped(const std::string& whole, char separator) {
    std::string text;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0) {
            text += separator;
        }
        text += whole[i];
    }
    return text;
}

} // namespace

std::optional<double> parseNumber(std::string_view text) {
    return NumberReader(text).read();
}

std::string plainNumber(double number) {
    const Digits digits(number);
    const std::string fraction = digits.fraction();
    return (digits.negative ? "-" : "") + digits.whole() + (fraction.empty() ? "" : "." + fraction);
}

std::string formatFixed(double number, int decimals, bool grouping) {
    const RegionalSettings& settings = regionalSettings();
    Digits digits(number);
    digits.roundTo(decimals);
    std::string fraction = digits.fraction();
    fraction.resize(static_cast<std::size_t>(std::max(decimals, 0)), '0');
    std::string text = digits.negative ? "-" : "";
    text += grouping ? grouped(digits.whole(), settings.thousandsSeparator) : digits.whole();
    if (!fraction.empty()) {
        text += settings.decimalSeparator + fraction;
    }
    return text;
}

} // namespace ado
