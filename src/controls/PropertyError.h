#pragma once

#include "ado/Error.h"

namespace controls {

/// What a control refuses a value with.
inline ado::Error invalidPropertyValue() {
    constexpr int kNumber = 380;
    return {kNumber, "Invalid property value"};
}

/// What a control refuses a place with that it doesn't have.
inline ado::Error subscriptOutOfRange() {
    constexpr int kNumber = 9;
    return {kNumber, "Subscript out of range"};
}

/// What a list refuses to tell of an item that it doesn't have.
inline ado::Error invalidPropertyArrayIndex() {
    constexpr int kNumber = 381;
    return {kNumber, "Invalid property array index"};
}

} // namespace controls
