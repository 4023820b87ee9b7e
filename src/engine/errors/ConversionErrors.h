#pragma once

#include "engine/errors/Error.h"

#include <string>

/// The server's refusals of a value that leaves a type's range, where the words differ by source and target.
namespace engine::errors {

inline Error conversionError(const std::string& source, const std::string& target) {
    return {8114, "Error converting data type " + source + " to " + target + ".", Error::Reach::Batch};
}

inline Error conversionOverflow(const std::string& source, const std::string& target) {
    return {8115, "Arithmetic overflow error converting " + source + " to data type " + target + ".",
            Error::Reach::Batch};
}

/// An integer into a smaller kind of integer.
inline Error valueOverflow(const std::string& target, const std::string& value) {
    return {220, "Arithmetic overflow error for data type " + target + ", value = " + value + ".", Error::Reach::Batch};
}

inline Error textOverflowsInt(const std::string& source, const std::string& value) {
    return {248, "The conversion of the " + source + " value '" + value + "' overflowed an int column.",
            Error::Reach::Batch};
}

/// `column` is INT1 or INT2.
inline Error textOverflowsSmallInt(const std::string& source, const std::string& value, const std::string& column) {
    return {244,
            "The conversion of the " + source + " value '" + value + "' overflowed an " + column +
                " column. Use a larger integer column.",
            Error::Reach::Batch};
}

inline Error dateStyleOfText(int style, const std::string& source) {
    return {281,
            std::to_string(style) + " is not a valid style number when converting from " + source +
                " to a character string.",
            Error::Reach::Batch};
}

inline Error dateStyleFromText(int style) {
    return {9809, "The style " + std::to_string(style) + " is not supported for conversions from varchar to datetime.",
            Error::Reach::Batch};
}

} // namespace engine::errors
