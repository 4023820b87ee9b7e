#include "engine/errors/Error.h"
#include "engine/errors/ValueErrors.h"
#include "engine/functions/FunctionRows.h"
#include "engine/values/Ascii.h"
#include "engine/values/Conversions.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace engine {

namespace {

Scalar absolute(FunctionContext& /*context*/, Arguments arguments) {
    if (const auto* integer = std::get_if<std::int64_t>(&arguments[0])) {
        if (*integer == std::numeric_limits<std::int64_t>::min()) {
            throw errors::overflow("expression", "bigint");
        }
        return *integer < 0 ? -*integer : *integer;
    }
    return std::fabs(numberAt(arguments, 0));
}

Scalar floorOf(FunctionContext& /*context*/, Arguments arguments) {
    return std::holds_alternative<std::int64_t>(arguments[0]) ? arguments[0]
                                                              : Scalar(std::floor(numberAt(arguments, 0)));
}

Scalar ceilingOf(FunctionContext& /*context*/, Arguments arguments) {
    return std::holds_alternative<std::int64_t>(arguments[0]) ? arguments[0]
                                                              : Scalar(std::ceil(numberAt(arguments, 0)));
}

/// To a whole number of 10, 100, …, half away from zero.
std::int64_t roundedInteger(std::int64_t number, std::int64_t zeros) {
    constexpr int kTen = 10;
    std::int64_t unit = 1;
    for (; zeros > 0; --zeros) {
        unit *= kTen;
    }
    const std::int64_t rest = number % unit;
    std::int64_t rounded = number - rest;
    const bool up = rest >= unit - rest;
    const bool down = -rest >= unit + rest;
    if ((up && __builtin_add_overflow(rounded, unit, &rounded)) ||
        (down && __builtin_sub_overflow(rounded, unit, &rounded))) {
        throw errors::overflow("expression", "bigint");
    }
    return rounded;
}

Scalar roundOf(FunctionContext& /*context*/, Arguments arguments) {
    constexpr std::int64_t kMostDigits = 18;
    constexpr double kWholeFrom = 0x1p53; ///< no double from here on has digits behind the point
    const std::int64_t places = integerAt(arguments, 1);
    if (places > kMostDigits) {
        return arguments[0];
    }
    if (places < -kMostDigits) {
        return std::holds_alternative<std::int64_t>(arguments[0]) ? Scalar(std::int64_t{0}) : Scalar(0.0);
    }
    if (const auto* integer = std::get_if<std::int64_t>(&arguments[0])) {
        if (places >= 0) {
            return *integer;
        }
        return roundedInteger(*integer, -places);
    }
    const double number = numberAt(arguments, 0);
    if (places < 0) {
        const double unit = std::pow(10.0, static_cast<double>(-places));
        return finiteNumber(std::round(number / unit) * unit, {DataType::Kind::Float});
    }
    if (std::fabs(number) >= kWholeFrom) {
        return number;
    }
    return toDecimal(number, DataType{DataType::Kind::Decimal, 0, kWidestDecimal, static_cast<int>(places)});
}

/// An amount: currency and sign once each, digits with commas, a point. Nothing but one of these is a number too.
bool isAmount(std::string_view text) {
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
        if (takes("$") || takes("€") || takes("£") || takes("¥")) {
            if (currency || begun) {
                return false;
            }
            currency = true;
        } else if (takes("+") || takes("-")) {
            if (sign || begun) {
                return false;
            }
            sign = true;
        } else if (takes(".")) {
            if (point) {
                return false;
            }
            point = begun = true;
        } else if (isDigit(text.front()) || (text.front() == ',' && !point)) {
            text.remove_prefix(1);
            begun = true;
        } else {
            return false;
        }
    }
    return true;
}

Scalar isNumeric(FunctionContext& /*context*/, Arguments arguments) {
    const auto* text = std::get_if<std::string>(&arguments[0]);
    if (text == nullptr) {
        return std::int64_t{!isNull(arguments[0])};
    }
    const std::string_view written = trimmed(*text);
    try {
        toFloat(written);
        return std::int64_t{!written.empty()};
    } catch (const Error&) {
        return std::int64_t{isAmount(written)};
    }
}

constexpr FunctionRow kFunctions[] = {
    {"ABS", {kNumber}, Result::AsFirstBeyond, absolute},
    {"CEILING", {kNumber}, Result::AsFirst, ceilingOf},
    {"FLOOR", {kNumber}, Result::AsFirst, floorOf},
    {"ISNUMERIC", {kAny}, Result::Int, isNumeric, kNullsTaken},
    {"ROUND", {kNumber, kInt}, Result::AsFirstBeyond, roundOf},
};

} // namespace

std::span<const FunctionRow> numberFunctions() {
    return kFunctions;
}

} // namespace engine
