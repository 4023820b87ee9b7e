#pragma once

#include "ado/Error.h"

namespace controls {

/// Raised for a value that a control doesn't accept.
inline ado::Error invalidPropertyValue() {
    constexpr int kNumber = 380;
    return {kNumber, "Invalid property value"};
}

/// Raised for a place that a control doesn't have.
inline ado::Error subscriptOutOfRange() {
    constexpr int kNumber = 9;
    return {kNumber, "Subscript out of range"};
}

/// Raised for an item that a list doesn't have.
inline ado::Error invalidPropertyArrayIndex() {
    constexpr int kNumber = 381;
    return {kNumber, "Invalid property array index"};
}

} // namespace controls
