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
    if (std::holds_alternative<std::string>(arguments[0])) {
        return scalarOf(decimalOf(arguments[0]).rounded(static_cast<int>(places)));
    }
    const double number = numberAt(arguments, 0);
    const auto decimal = Decimal::exactly(number);
    if (const auto rounded = decimal ? decimal->rounded(static_cast<int>(places)).exact() : std::nullopt) {
        return *rounded;
    }
    if (places < 0) {
        const double unit = std::pow(10.0, static_cast<double>(-places));
        return finiteNumber(std::round(number / unit) * unit, {DataType::Kind::Float});
    }
    const auto rounded =
        std::fabs(number) < kWholeFrom ? Decimal::ofFloat(number, static_cast<int>(places)).exact() : std::nullopt;
    return rounded.value_or(number);
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
        return std::int64_t{digitsOfAmount(written).has_value()};
    }
}

constexpr FunctionRow kFunctions[] = {
    {"ABS", {kNumber}, Result::AsFirstBeyond, absolute},  {"CEILING", {kNumber}, Result::Whole, ceilingOf},
    {"FLOOR", {kNumber}, Result::Whole, floorOf},         {"ISNUMERIC", {kAny}, Result::Int, isNumeric, kNullsTaken},
    {"ROUND", {kNumber, kInt}, Result::Rounded, roundOf},
};

} // namespace

std::span<const FunctionRow> numberFunctions() {
    return kFunctions;
}

} // namespace engine
