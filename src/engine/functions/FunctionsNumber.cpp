#include "engine/errors/BindErrors.h"
#include "engine/errors/Error.h"
#include "engine/functions/FunctionRoutines.h"
#include "engine/values/Conversions.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace engine {

namespace {

constexpr DataType kFloat{DataType::Kind::Float, 0, 0, 0};

Scalar absolute(FunctionContext& /*context*/, Arguments arguments) {
    if (const auto* integer = std::get_if<std::int64_t>(&arguments[0])) {
        if (*integer == std::numeric_limits<std::int64_t>::min()) {
            throw errors::overflow("bigint");
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
        throw errors::overflow("bigint");
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
        return finiteNumber(std::round(number / unit) * unit, kFloat);
    }
    if (std::fabs(number) >= kWholeFrom) {
        return number;
    }
    constexpr int kWidest = 38;
    return toDecimal(number, DataType{DataType::Kind::Decimal, 0, kWidest, static_cast<int>(places)});
}

Scalar isNumeric(FunctionContext& /*context*/, Arguments arguments) {
    const auto* text = std::get_if<std::string>(&arguments[0]);
    if (text == nullptr) {
        return std::int64_t{!isNull(arguments[0])};
    }
    try {
        toFloat(*text);
        return std::int64_t{text->find_first_not_of(' ') != std::string::npos};
    } catch (const Error&) {
        return std::int64_t{0};
    }
}

/// Division that refuses zero and stays among integers when both sides are.
Scalar divide(FunctionContext& /*context*/, Arguments arguments) {
    if (numberAt(arguments, 1) == 0.0) {
        throw errors::divideByZero();
    }
    const auto* left = std::get_if<std::int64_t>(&arguments[0]);
    const auto* right = std::get_if<std::int64_t>(&arguments[1]);
    const bool integers = left != nullptr && right != nullptr && integerAt(arguments, 2) != 0;
    if (!integers) {
        return finiteNumber(numberAt(arguments, 0) / numberAt(arguments, 1), kFloat);
    }
    if (*right == -1 && *left == std::numeric_limits<std::int64_t>::min()) {
        throw errors::overflow("bigint");
    }
    return *left / *right;
}

Scalar modulo(FunctionContext& /*context*/, Arguments arguments) {
    if (numberAt(arguments, 1) == 0.0) {
        throw errors::divideByZero();
    }
    const auto* left = std::get_if<std::int64_t>(&arguments[0]);
    const auto* right = std::get_if<std::int64_t>(&arguments[1]);
    if (left == nullptr || right == nullptr) {
        return std::fmod(numberAt(arguments, 0), numberAt(arguments, 1));
    }
    return *right == -1 ? Scalar(std::int64_t{0}) : Scalar(*left % *right);
}

/// value, type it has, type it gets, style or -1, 1 where it is an assignment
Scalar convertValue(FunctionContext& context, Arguments arguments) {
    ConversionRequest request;
    request.from = decodeType(integerAt(arguments, 1));
    request.to = decodeType(integerAt(arguments, 2));
    if (integerAt(arguments, 3) >= 0) {
        request.style = static_cast<int>(integerAt(arguments, 3));
    }
    request.purpose = integerAt(arguments, 4) != 0 ? Purpose::Assignment : Purpose::Cast;
    request.dayFirst = context.dayFirst;
    return convert(arguments[0], request);
}

/// A sum or product of floats: the storage lets it become infinite.
Scalar floatNumber(FunctionContext& /*context*/, Arguments arguments) {
    return finiteNumber(numberAt(arguments, 0), kFloat);
}

/// A sum or product of bigints: the storage goes over to floating numbers where it leaves their range.
Scalar bigInteger(FunctionContext& /*context*/, Arguments arguments) {
    if (!std::holds_alternative<std::int64_t>(arguments[0])) {
        throw errors::overflow("bigint");
    }
    return arguments[0];
}

/// name of what is asked, argument if there is one
Scalar fact(FunctionContext& context, Arguments arguments) {
    return context.fact(textAt(arguments, 0), arguments.size() > 1 ? arguments[1] : Scalar());
}

/// Raised by the translation of a subselect that may give one row at most.
Scalar tooManyRows(FunctionContext& /*context*/, Arguments /*arguments*/) {
    throw errors::moreThanOneValue();
}

constexpr RoutineEntry kRoutines[] = {
    {"tsql_bigint", 1, bigInteger},    {"tsql_abs", 1, absolute},  {"tsql_ceiling", 1, ceilingOf},
    {"tsql_convert", 5, convertValue}, {"tsql_divide", 3, divide}, {"tsql_fact", -1, fact, false},
    {"tsql_float", 1, floatNumber},    {"tsql_floor", 1, floorOf}, {"tsql_isnumeric", 1, isNumeric, false},
    {"tsql_modulo", 2, modulo},        {"tsql_round", 2, roundOf}, {"tsql_too_many_rows", 0, tooManyRows},
};

} // namespace

std::span<const RoutineEntry> numberRoutines() {
    return kRoutines;
}

} // namespace engine
