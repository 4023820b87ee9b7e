#pragma once

#include "engine/values/DataType.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

__extension__ typedef __int128 WideInteger;

/// A decimal number by its digits, 38 at most. That is how arithmetic and conversions have it; what a table, a
/// comparison or a result has is its double, which tells all numbers of 15 significant digits from each other. A number
/// that has more, or more than 22 places, is refused wherever it would be kept.
class Decimal {
public:
    static Decimal of(std::int64_t number) { return {number, 0}; }
    /// The number that a kept double stands for. Throws 40517 where it stands for none.
    static Decimal of(double kept);
    /// Nothing where no number of 15 digits has this double.
    static std::optional<Decimal> exactly(double number);
    /// A float, rounded to so many places. It has 15 digits; where the places ask for more, it counts as it is in
    /// binary.
    static Decimal ofFloat(double number, int places);
    /// `[+-]digits[.digits]`, nothing else; at least one digit. Rounded to so many places.
    static std::optional<Decimal> parse(std::string_view text, int places);

    /// Half away from zero; of negative places the digits before the point.
    Decimal rounded(int places) const;
    /// These throw 40517 where the digits on the way are more than 38; zeros at the end of a fraction are digits too.
    Decimal plus(const Decimal& other) const;
    Decimal times(const Decimal& other) const;
    /// Cut behind so many places. The divisor isn't zero.
    Decimal over(const Decimal& divisor, int places) const;
    Decimal modulo(const Decimal& divisor) const;
    Decimal negated() const { return {-unscaled_, scale_}; }

    bool isZero() const { return unscaled_ == 0; }
    /// Whether a type holds it, which has as many places at least.
    bool fits(const DataType& type) const;
    /// Without what is behind the point; nothing where it is no bigint.
    std::optional<std::int64_t> whole() const;
    /// Its double, where that is exact enough.
    std::optional<double> exact() const;
    /// Throws 40517.
    double kept() const;
    /// Without zeros at the end of its fraction.
    Decimal shortest() const;
    /// With so many places, which aren't fewer than it has.
    std::string text(int places) const;
    std::string text() const { return text(scale_); }

private:
    Decimal(WideInteger unscaled, int scale) : unscaled_(unscaled), scale_(scale) {}

    WideInteger unscaledAt(int scale) const;

    WideInteger unscaled_;
    int scale_;
};

} // namespace engine
