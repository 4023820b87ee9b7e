#pragma once

#include "engine/errors/Error.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace engine {

inline constexpr auto kStatement = Error::Reach::Statement;
inline constexpr auto kBatch = Error::Reach::Batch;
inline constexpr auto kConnection = Error::Reach::Connection;

/// What a row of the errors gives for its arguments.
struct Expected {
    Error error;
    int number;
    Error::Reach reach;
    std::string text;
    int position = -1;
};

inline void expectTexts(const std::vector<Expected>& rows) {
    for (const Expected& row : rows) {
        EXPECT_EQ(row.error.what(), row.text);
        EXPECT_EQ(row.error.number(), row.number) << row.text;
        EXPECT_EQ(row.error.reach(), row.reach) << row.text;
        EXPECT_EQ(row.error.position(), row.position) << row.text;
    }
}

} // namespace engine
