#pragma once

#include "ado/Error.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace ado::test {

inline std::optional<Error> errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}

inline ::testing::AssertionResult raises(int number, const std::function<void()>& work) {
    const auto error = errorOf(work);
    if (!error) {
        return ::testing::AssertionFailure() << "nothing was raised, expected " << number;
    }
    if (error->number() != number) {
        return ::testing::AssertionFailure()
               << "raised " << error->number() << " \"" << error->description() << "\", expected " << number;
    }
    return ::testing::AssertionSuccess();
}

} // namespace ado::test
