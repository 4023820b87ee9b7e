#pragma once

#include "engine/errors/Error.h"

#include <gtest/gtest.h>

#include <string>

namespace engine {

/// Runs `action` and tells what the server would answer: `number text`, or "no error".
template<typename Action>
std::string errorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return std::to_string(error.number()) + ' ' + error.what();
    }
    return "no error";
}

template<typename Action>
int errorNumberOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace engine
