#include "engine/values/Collation.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <string_view>

namespace engine {
namespace {

/// The meaning of `%` and `_` by the simplest algorithm.
bool plainly(std::string_view text, std::string_view pattern) {
    if (pattern.empty()) {
        return text.find_first_not_of(' ') == std::string_view::npos;
    }
    if (pattern[0] == '%') {
        return plainly(text, pattern.substr(1)) || (!text.empty() && plainly(text.substr(1), pattern));
    }
    const bool one = !text.empty() && (pattern[0] == '_' || sameText(text.substr(0, 1), pattern.substr(0, 1)));
    return one && plainly(text.substr(1), pattern.substr(1));
}

TEST(Like, AgreesWithItsDefinition) {
    const bool held = rc::check("texts and patterns of few letters", [] {
        const auto text =
            *rc::gen::resize(12, rc::gen::container<std::string>(rc::gen::elementOf(std::string("abB "))));
        const auto pattern =
            *rc::gen::resize(8, rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab%_"))));
        RC_ASSERT(like(text, pattern) == plainly(text, pattern));
    });
    EXPECT_TRUE(held);
}

} // namespace
} // namespace engine
