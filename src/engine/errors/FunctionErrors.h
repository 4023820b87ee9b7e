#pragma once

// Errors that a function finds in its arguments.

#include "engine/errors/ErrorText.h"

namespace engine::errors {

inline constexpr ErrorText<Text, Text> unknownDatePart{155, Reach::Batch,
                                                       "'{part}' is not a recognized {function} option."};
inline constexpr ErrorText<> moreThanOneValue{
    512, Reach::Statement,
    "Subquery returned more than 1 value. This is not permitted when the subquery follows =, "
    "!=, <, <= , >, >= or when the subquery is used as an expression."};
inline constexpr ErrorText<> dateAdditionOverflow{517, Reach::Batch,
                                                  "Adding a value to a 'datetime' column caused an overflow."};
inline constexpr ErrorText<> dateDifferenceOverflow{
    535, Reach::Statement,
    "The datediff function resulted in an overflow. The number of dateparts separating two "
    "date/time instances is too large. Try to use datediff with a less precise datepart."};
inline constexpr ErrorText<> invalidLengthOfRight{536, Reach::Batch,
                                                  "Invalid length parameter passed to the RIGHT function."};
inline constexpr ErrorText<> invalidLengthOfPart{537, Reach::Batch,
                                                 "Invalid length parameter passed to the LEFT or SUBSTRING function."};
inline constexpr ErrorText<> divideByZero{8134, Reach::Statement, "Divide by zero error encountered."};

} // namespace engine::errors
