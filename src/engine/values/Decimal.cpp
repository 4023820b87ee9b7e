#include "engine/values/Decimal.h"

#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace engine {
namespace {

constexpr int kTen = 10;
constexpr int kKeptDigits = 15;
constexpr double kBeyondKept = 1e15;
constexpr int kMoneyScale = 4;

constexpr auto kPowers = [] {
    std::array<WideInteger, kWidestDecimal + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * kTen;
    }
    return powers;
}();

constexpr WideInteger power(int exponent) {
    return kPowers[static_cast<std::size_t>(exponent)];
}

/// The powers of ten that a double holds exactly: a quotient by one of them is the double nearest to the decimal.
constexpr int kExactPowers = 22;
constexpr auto kExactPower = [] {
    std::array<double, kExactPowers + 1> powers{};
    std::transform(kPowers.begin(), kPowers.begin() + powers.size(), powers.begin(),
                   [](WideInteger exact) { return static_cast<double>(exact); });
    return powers;
}();

constexpr double exactPower(int exponent) {
    return kExactPower[static_cast<std::size_t>(exponent)];
}

WideInteger magnitude(WideInteger number) {
    return number < 0 ? -number : number;
}

/// Half away from zero.
WideInteger roundedQuotient(WideInteger dividend, WideInteger divisor) {
    const WideInteger rest = magnitude(dividend % divisor);
    const bool up = rest >= divisor - rest;
    return dividend / divisor + (!up ? 0 : dividend < 0 ? -1 : 1);
}

} // namespace

Decimal Decimal::of(double kept) {
    if (const auto number = exactly(kept)) {
        return *number;
    }
    throw errors::digitsNotKept();
}

std::optional<Decimal> Decimal::exactly(double number) {
    for (int scale = 0; scale <= kExactPowers; ++scale) {
        const double unscaled = std::round(number * exactPower(scale));
        if (!(std::fabs(unscaled) < kBeyondKept)) {
            return std::nullopt;
        }
        if (unscaled / exactPower(scale) == number) {
            return Decimal(static_cast<WideInteger>(unscaled), scale);
        }
    }
    return std::nullopt;
}

Decimal Decimal::ofFloat(double number, int places) {
    constexpr std::size_t kLongest = 2 * kWidestDecimal + 4;
    const double size = std::fabs(number);
    if (!(size < static_cast<double>(power(kWidestDecimal)))) {
        return {power(kWidestDecimal), 0};
    }
    const int whole = size < 1 ? 1 : static_cast<int>(std::log10(size)) + 1;
    std::array<char, kLongest> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed,
                                       std::max(kKeptDigits - whole, places));
    const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
    return *parse(text, places);
}

std::optional<Decimal> Decimal::parse(std::string_view text, int places) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string_view whole = text.substr(0, point);
    const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    if ((whole.empty() && fraction.empty()) || !isAllDigits(whole) || !isAllDigits(fraction)) {
        return std::nullopt;
    }
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    const auto taken = std::min(fraction.size(), static_cast<std::size_t>(places));
    if (whole.size() + taken > kWidestDecimal) {
        return Decimal(power(kWidestDecimal), 0); // no type holds it
    }
    WideInteger unscaled = 0;
    for (const std::string_view digits : {whole, fraction.substr(0, taken)}) {
        for (const char digit : digits) {
            unscaled = unscaled * kTen + (digit - '0');
        }
    }
    unscaled += fraction.size() > taken && fraction[taken] >= '5' ? 1 : 0;
    return Decimal(negative ? -unscaled : unscaled, static_cast<int>(taken));
}

Decimal Decimal::rounded(int places) const {
    if (places >= scale_) {
        return *this;
    }
    if (scale_ - places > kWidestDecimal) {
        return {0, 0};
    }
    const WideInteger quotient = roundedQuotient(unscaled_, power(scale_ - places));
    if (places >= 0) {
        return {quotient, places};
    }
    return quotient == 0 ? Decimal{0, 0} : Decimal{quotient, 0}.times({power(-places), 0});
}

Decimal Decimal::plus(const Decimal& other) const {
    const int scale = std::max(scale_, other.scale_);
    WideInteger sum = 0;
    if (__builtin_add_overflow(unscaledAt(scale), other.unscaledAt(scale), &sum)) {
        throw errors::digitsNotKept();
    }
    return {sum, scale};
}

Decimal Decimal::times(const Decimal& other) const {
    WideInteger product = 0;
    if (__builtin_mul_overflow(unscaled_, other.unscaled_, &product)) {
        throw errors::digitsNotKept();
    }
    return {product, scale_ + other.scale_};
}

Decimal Decimal::over(const Decimal& divisor, int places) const {
    const int shift = places + divisor.scale_ - scale_;
    return shift >= 0 ? Decimal{unscaledAt(scale_ + shift) / divisor.unscaled_, places}
                      : Decimal{unscaled_ / divisor.unscaledAt(divisor.scale_ - shift), places};
}

Decimal Decimal::modulo(const Decimal& divisor) const {
    const int scale = std::max(scale_, divisor.scale_);
    return {unscaledAt(scale) % divisor.unscaledAt(scale), scale};
}

bool Decimal::fits(const DataType& type) const {
    constexpr int kDigitsOfMoney = 19;
    if (type.isMoney()) {
        using Range = std::numeric_limits<std::int64_t>;
        const WideInteger whole = magnitude(unscaled_) / power(scale_);
        if (whole >= power(kDigitsOfMoney - kMoneyScale)) {
            return false;
        }
        const WideInteger amount = unscaledAt(kMoneyScale);
        return amount >= Range::min() && amount <= Range::max();
    }
    const int wholeDigits = type.precision - type.scale;
    return wholeDigits > kWidestDecimal - scale_ || magnitude(unscaled_) < power(wholeDigits + scale_);
}

std::optional<std::int64_t> Decimal::whole() const {
    using Range = std::numeric_limits<std::int64_t>;
    const WideInteger whole = scale_ > kWidestDecimal ? 0 : unscaled_ / power(scale_);
    return whole < Range::min() || whole > Range::max() ? std::nullopt
                                                        : std::optional(static_cast<std::int64_t>(whole));
}

std::optional<double> Decimal::exact() const {
    const auto fits = [](const Decimal& number) {
        return magnitude(number.unscaled_) < power(kKeptDigits) && number.scale_ <= kExactPowers;
    };
    const Decimal number = fits(*this) ? *this : shortest();
    return fits(number) ? std::optional(static_cast<double>(number.unscaled_) / exactPower(number.scale_))
                        : std::nullopt;
}

double Decimal::kept() const {
    if (const auto number = exact()) {
        return *number;
    }
    throw errors::digitsNotKept();
}

Decimal Decimal::shortest() const {
    Decimal number = *this;
    while (number.scale_ > 0 && number.unscaled_ % kTen == 0) {
        number.unscaled_ /= kTen;
        --number.scale_;
    }
    return number;
}

std::string Decimal::text(int places) const {
    const auto fraction = static_cast<std::size_t>(scale_);
    std::string digits;
    for (WideInteger rest = magnitude(unscaled_); rest != 0 || digits.size() <= fraction; rest /= kTen) {
        digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(rest % kTen)));
    }
    if (places > 0) {
        digits.insert(digits.size() - fraction, ".");
        digits.append(static_cast<std::size_t>(places) - fraction, '0');
    }
    return unscaled_ < 0 ? '-' + digits : digits;
}

/// With more places, or as many.
WideInteger Decimal::unscaledAt(int scale) const {
    WideInteger unscaled = 0;
    if (scale - scale_ > kWidestDecimal || __builtin_mul_overflow(unscaled_, power(scale - scale_), &unscaled)) {
        throw errors::digitsNotKept();
    }
    return unscaled;
}

} // namespace engine
