#include "ado/Conversions.h"
#include "ado/ExpectError.h"

#include <gtest/gtest.h>

#include <string>

namespace ado {
namespace {

struct LikeCase {
    const char* text;
    const char* pattern;
    bool match;
};

class LanguageLike : public ::testing::TestWithParam<LikeCase> {};

TEST_P(LanguageLike, Matches) {
    const auto& [text, pattern, match] = GetParam();
    EXPECT_EQ(matches(text, pattern), match) << text << " like " << pattern;
}

INSTANTIATE_TEST_SUITE_P(
    Table, LanguageLike,
    ::testing::Values(LikeCase{"", "", true}, LikeCase{"a", "", false}, LikeCase{"", "*", true},
                      LikeCase{"abc", "abc", true}, LikeCase{"abc", "ABC", false}, LikeCase{"abc", "a*", true},
                      LikeCase{"abc", "*c", true}, LikeCase{"abc", "*b*", true}, LikeCase{"abc", "*d*", false},
                      LikeCase{"abc", "a?c", true}, LikeCase{"ac", "a?c", false}, LikeCase{"a1c", "a#c", true},
                      LikeCase{"abc", "a#c", false}, LikeCase{"b", "[a-c]", true}, LikeCase{"d", "[a-c]", false},
                      LikeCase{"d", "[!a-c]", true}, LikeCase{"b", "[!a-c]", false}, LikeCase{"*", "[*]", true},
                      LikeCase{"x", "[*]", false}, LikeCase{"[", "[[]", true}, LikeCase{"]", "]", true},
                      LikeCase{"-", "[a-]", true}, LikeCase{"!", "[!]", true}, LikeCase{"ab", "a[]b", true},
                      LikeCase{"città", "citt?", true}, LikeCase{"città", "citt[àè]", true},
                      LikeCase{"00/00/0000 12:00", "00/00/0000*", true}, LikeCase{"aab", "*ab", true},
                      LikeCase{"mississippi", "m*iss*ppi", true}, LikeCase{"a%b_", "a%b_", true}));

TEST(LanguageLikeLimits, ManyWildcardsStayCheap) {
    std::string pattern;
    for (int i = 0; i < 200; ++i) {
        pattern += "*a";
    }
    EXPECT_FALSE(matches(std::string(5000, 'a') + "b", pattern));
}

TEST(LanguageLikeLimits, AnUnclosedListIsAnInvalidPattern) {
    EXPECT_TRUE(test::raises(93, [] { matches("a", "[a"); }));
}

} // namespace
} // namespace ado
