#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// A decimal number by its digits, so that it rounds as decimals do: half away from zero, whatever
/// binary fraction stands for it.
class DecimalDigits {
public:
    /// `[+-]digits[.digits]`, nothing else; at least one digit.
    static std::optional<DecimalDigits> parse(std::string_view text);
    /// The shortest digits that tell the number, at most 15 significant ones where `scale` leaves room for that:
    /// what lies behind them are rounding errors of the arithmetic that made it.
    static DecimalDigits of(double number, int scale);

    /// Exactly `scale` digits behind the point.
    void roundTo(int scale);
    /// Digits before the point, leading zeros left out.
    int wholeDigits() const { return static_cast<int>(whole_.size()); }
    double value() const;
    std::string text() const;

private:
    void dropLeadingZeros();

    bool negative_ = false;
    std::string whole_, fraction_;
};

} // namespace engine
