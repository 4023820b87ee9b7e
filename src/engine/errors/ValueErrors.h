#pragma once

// Errors of a value that doesn't go into a type.

#include "engine/errors/ErrorText.h"

namespace engine::errors {

/// An integer into a smaller kind of integer.
inline constexpr ErrorText<Text, Text> valueOverflow{
    220, Reach::Batch, "Arithmetic overflow error for data type {target}, value = {value}."};
inline constexpr ErrorText<> dateConversion{
    241, Reach::Batch, "Conversion failed when converting date and/or time from character string."};
inline constexpr ErrorText<> dateOutOfRange{
    242, Reach::Batch,
    "The conversion of a varchar data type to a datetime data type resulted in an "
    "out-of-range value."};
/// A float into an integer or into a text that is too short for it.
inline constexpr ErrorText<Text, Text> floatOverflow{232, Reach::Batch,
                                                     "Arithmetic overflow error for type {target}, value = {value}."};
inline constexpr ErrorText<> moneyOfText{235, Reach::Batch,
                                         "Cannot convert a char value to money. The char value has incorrect syntax."};
/// `column` is INT1 or INT2.
inline constexpr ErrorText<Text, Text, Text> textOverflowsSmallInt{
    244, Reach::Batch,
    "The conversion of the {source} value '{value}' overflowed an {column} column. Use a "
    "larger integer column."};
inline constexpr ErrorText<Text, Text, Text> intConversion{
    245, Reach::Batch, "Conversion failed when converting the {type} value '{value}' to data type {target}."};
inline constexpr ErrorText<Text, Text> textOverflowsInt{
    248, Reach::Batch, "The conversion of the {source} value '{value}' overflowed an int column."};
inline constexpr ErrorText<Text, Text> implicitConversion{
    257, Reach::Batch,
    "Implicit conversion from data type {source} to {target} is not allowed. Use the CONVERT function to run this "
    "query."};
inline constexpr ErrorText<int, Text> dateStyleOfText{
    281, Reach::Batch, "{style} is not a valid style number when converting from {source} to a character string."};
inline constexpr ErrorText<Text, Text> conversionError{8114, Reach::Batch,
                                                       "Error converting data type {source} to {target}."};
inline constexpr ErrorText<Text, Text> conversionOverflow{
    8115, Reach::Batch, "Arithmetic overflow error converting {source} to data type {target}."};
/// The words of conversionOverflow for a result that leaves its type; the batch goes on.
inline constexpr ErrorText<Text, Text> overflow{8115, Reach::Statement, conversionOverflow.words()};
inline constexpr ErrorText<> truncated{8152, Reach::Statement, "String or binary data would be truncated."};
inline constexpr ErrorText<int> dateStyleFromText{
    9809, Reach::Batch, "The style {style} is not supported for conversions from varchar to datetime."};
/// A value that a server takes and this one doesn't, in the words in which a server of another edition refuses.
inline constexpr ErrorText<Text> valueNotSupported{
    40517, Reach::Batch, "Keyword or statement option '{value}' is not supported in this version of SQL Server."};
inline Error digitsNotKept() {
    return valueNotSupported("decimal with more than 15 significant digits");
}

} // namespace engine::errors
