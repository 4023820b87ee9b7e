#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace ado {

struct Null {
    bool operator==(const Null&) const = default;
};

/// A day of the Gregorian calendar and a time of day.
struct Date {
    std::int32_t day = 0;         ///< days since 1970-01-01
    std::int32_t millisecond = 0; ///< since midnight

    auto operator<=>(const Date&) const = default; // NOLINT(modernize-use-nullptr)

    /// Throws Error 13 for a day that doesn't exist.
    static Date of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int millisecond = 0);
    /// Months and days past their end are carried over: month 13 is January of the next year.
    static Date rolling(int year, int month, int day);
    int year() const;
    int month() const;
    int dayOfMonth() const;
};

/// A number with exactly four decimals.
struct Currency {
    std::int64_t tenThousandths = 0;
    auto operator<=>(const Currency&) const = default; // NOLINT(modernize-use-nullptr)
};

/// unscaled / 10^scale
struct Decimal {
    std::int64_t unscaled = 0;
    int scale = 0;
    bool operator==(const Decimal&) const = default;
    double toDouble() const;
};

/// A value of a field: empty (never set), null, or one of the types of the data layer. Texts are UTF-8.
class Value {
public:
    using Variant = std::variant<std::monostate, Null, bool, std::uint8_t, std::int16_t, std::int32_t, float, double,
                                 Currency, Decimal, Date, std::string>;

    Value() = default;
    Value(Null value) : value_(value) {}
    Value(bool value) : value_(value) {}
    Value(std::uint8_t value) : value_(value) {}
    Value(std::int16_t value) : value_(value) {}
    Value(std::int32_t value) : value_(value) {}
    Value(float value) : value_(value) {}
    Value(double value) : value_(value) {}
    Value(Currency value) : value_(value) {}
    Value(Decimal value) : value_(value) {}
    Value(Date value) : value_(value) {}
    Value(std::string value) : value_(std::move(value)) {}
    Value(std::string_view value) : value_(std::string(value)) {}
    Value(const char* value) : value_(std::string(value)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(value_); }
    bool isNull() const { return std::holds_alternative<Null>(value_); }
    bool isText() const { return std::holds_alternative<std::string>(value_); }
    const Variant& variant() const { return value_; }
    bool operator==(const Value&) const = default;

private:
    Variant value_;
};

} // namespace ado
