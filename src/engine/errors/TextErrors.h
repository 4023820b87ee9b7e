#pragma once

// Errors that the text of a batch has by itself, the names of options included.

#include "engine/errors/ErrorText.h"

namespace engine::errors {

inline constexpr PlacedErrorText<Text> syntaxNear{102, Reach::Batch, "Incorrect syntax near '{token}'."};
inline constexpr PlacedErrorText<Text> identifierTooLong{
    103, Reach::Batch, "The identifier that starts with '{start}' is too long. Maximum length is 128."};
inline constexpr PlacedErrorText<Text> unclosedQuote{105, Reach::Batch,
                                                     "Unclosed quotation mark after the character string '{rest}'."};
inline constexpr PlacedErrorText<> unclosedComment{113, Reach::Batch, "Missing end comment mark '*/'."};
inline constexpr PlacedErrorText<Text> tooManyPrefixes{
    117, Reach::Batch,
    "The object name '{name}' contains more than the maximum number of prefixes. The maximum "
    "is 3."};
inline constexpr PlacedErrorText<Text, Text, Text> sizeBeyondAnyType{
    131, Reach::Batch,
    "The size ({size}) given to the {kind} '{name}' exceeds the maximum allowed for any data "
    "type (8000)."};
inline constexpr PlacedErrorText<Text> undeclaredVariable{137, Reach::Batch,
                                                          "Must declare the scalar variable \"{variable}\"."};
inline constexpr PlacedErrorText<Text> syntaxNearKeyword{156, Reach::Batch,
                                                         "Incorrect syntax near the keyword '{keyword}'."};
inline constexpr PlacedErrorText<Text> floatOutOfRange{
    168, Reach::Batch,
    "The floating point value '{number}' is out of the range of computer representation (8 "
    "bytes)."};
inline constexpr PlacedErrorText<Text, Text, int> scaleOutOfRange{
    183, Reach::Batch, "The scale ({scale}) for column '{name}' must be within the range 0 to {maximum}."};
inline constexpr ErrorText<> nestedTooDeep{
    191, Reach::Batch,
    "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up "
    "into smaller queries."};
inline constexpr PlacedErrorText<Text> undefinedType{243, Reach::Batch, "Type {type} is not a defined system type."};
inline constexpr PlacedErrorText<Text> invalidCollation{448, Reach::Batch, "Invalid collation '{collation}'."};
inline constexpr PlacedErrorText<Text> invalidLength{1001, Reach::Batch,
                                                     "Line 1: Length or precision specification {length} is invalid."};
inline constexpr PlacedErrorText<> emptyName{
    1038, Reach::Batch,
    "An object or column name is missing or empty. For SELECT INTO statements, verify each "
    "column has a name. For other statements, look for empty alias names. Aliases defined as "
    "\"\" or [] are not allowed. Change the alias to a valid name."};
inline constexpr PlacedErrorText<int, Text> typeMissing{
    2715, Reach::Batch, "Column, parameter, or variable #{ordinal}: Cannot find data type {type}."};
inline constexpr PlacedErrorText<Text, Text, Text, int> sizeExceeded{
    2717, Reach::Batch, "The size ({size}) given to the {kind} '{name}' exceeds the maximum allowed ({maximum})."};
inline constexpr PlacedErrorText<int, Text> precisionExceeded{
    2750, Reach::Batch,
    "Column or parameter #{ordinal}: Specified column precision {precision} is greater than "
    "the maximum precision of 38."};
inline constexpr PlacedErrorText<Text> conditionExpected{
    4145, Reach::Batch,
    "An expression of non-boolean type specified in a context where a condition is expected, "
    "near '{token}'."};
inline constexpr PlacedErrorText<Text> nullableKey{
    8111, Reach::Batch, "Cannot define PRIMARY KEY constraint on nullable column in table '{table}'."};
/// Of a number with more digits than any decimal has.
inline constexpr PlacedErrorText<> numberTooLong{
    8115, Reach::Batch, "Arithmetic overflow error converting expression to data type numeric."};
inline constexpr PlacedErrorText<Text, Text> nullableIdentity{
    8147, Reach::Batch, "Could not create IDENTITY attribute on nullable column '{column}', table '{table}'."};
inline constexpr ErrorText<Text> databaseOptionMissing{15011, Reach::Statement,
                                                       "Database option '{option}' does not exist."};
inline constexpr ErrorText<Text> optionMissing{
    15123, Reach::Statement, "The configuration option '{option}' does not exist, or it may be an advanced option."};
inline constexpr ErrorText<Text> optionAmbiguous{15124, Reach::Statement,
                                                 "The configuration option '{option}' is not unique."};
inline constexpr ErrorText<long long, Text> optionValue{
    15129, Reach::Statement, "'{value}' is not a valid value for configuration option '{option}'."};
inline constexpr ErrorText<Text> databaseOptionAmbiguous{15242, Reach::Statement,
                                                         "Database option '{option}' is not unique."};

} // namespace engine::errors
