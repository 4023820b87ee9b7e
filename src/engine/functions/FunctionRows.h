#pragma once

// For the sources that hold the rows: what a body is written with, and where the rows of each source are found.

#include "engine/functions/Functions.h"

#include <cstdint>

namespace engine {

using Result = FunctionRow::Result;

constexpr FunctionParameter kText{FunctionParameter::Kind::Text};
constexpr FunctionParameter kWritten{FunctionParameter::Kind::Written};
constexpr FunctionParameter kInt{FunctionParameter::Kind::Int};
constexpr FunctionParameter kFloat{FunctionParameter::Kind::Float};
constexpr FunctionParameter kNumber{FunctionParameter::Kind::Number};
constexpr FunctionParameter kDate{FunctionParameter::Kind::Date};
constexpr FunctionParameter kDatePart{FunctionParameter::Kind::DatePart};
constexpr FunctionParameter kAny{FunctionParameter::Kind::Any};
constexpr FunctionParameter kTyped{FunctionParameter::Kind::Typed};

/// An argument that may be left out, with all behind it.
constexpr FunctionParameter optional(FunctionParameter parameter) {
    return {parameter.kind, true};
}

constexpr auto kNullsTaken = FunctionRow::Nulls::AreTaken;

std::span<const FunctionRow> textFunctions();
std::span<const FunctionRow> dateFunctions();
std::span<const FunctionRow> numberFunctions();
std::span<const FunctionRow> sessionFunctions();
std::span<const FunctionRow> serverVariables();

inline const std::string& textAt(Arguments arguments, std::size_t place) {
    return std::get<std::string>(arguments[place]);
}

inline std::int64_t integerAt(Arguments arguments, std::size_t place) {
    return std::get<std::int64_t>(arguments[place]);
}

inline double numberAt(Arguments arguments, std::size_t place) {
    return numberOf(arguments[place]);
}

} // namespace engine
