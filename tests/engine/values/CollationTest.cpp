#include "engine/values/Collation.h"

#include "engine/values/CompareByLibrary.h"

#include <gtest/gtest.h>

#include <string>

namespace engine {
namespace {

struct Comparison {
    const char* left;
    const char* right;
    int result;
};

TEST(Comparison, FollowsTheCollation) {
    constexpr Comparison kCases[] = {
        {"a", "A", 0},
        {"sede", "SEDE", 0},
        {"e", "\u00e9", -1},
        {"\u00e9", "\u00c9", 0},
        {"citt\u00e0", "CITT\u00c0", 0},
        {"citta", "citt\u00e0", -1},
        {"citt\u00e0", "cittb", -1},
        {"a", "a   ", 0},
        {"a", " a", 1},
        {"", "    ", 0},
        {"a b", "ab", -1},
        {"9", "a", -1},
        {"_", "1", -1},
        {"abc", "abcd", -1},
        {"abC", "ABd", -1},
        {"z", "\u00e0", 1},
        {"a\u0301", "a", 1},
        {"A\u030a", "\u00e5", 0},
        {"\xff", "\xff", 0},
        {"\xff", "", 1},
        // Apostrophe and hyphen are compared last, the apostrophe first of the two.
        {"carps", "cars", -1},
        {"cars", "car's", -1},
        {"car's", "car-s", -1},
        {"carps", "car's", -1},
        {"coop", "co-op", -1},
        {"CO-OP", "co-op", 0},
        {"co-op", "coop9", -1},
        {"dasti", "D'Asti", -1},
        {"d'asti", "dasto", -1},
        {"a-bc", "ab-c", -1},
        {"a--b", "a-b", 1},
        {"a-", "a", 1},
        {"a -", "a", 1},
        {"a -", "a-", 1},
        {"-", "", 1},
        {"-", "0", -1},
        {"citt\u00e0-b", "citt\u00e0b", 1},
    };
    for (const Comparison& c : kCases) {
        EXPECT_EQ(sign(compareTexts(c.left, c.right)), c.result) << '"' << c.left << "\" \"" << c.right << '"';
        EXPECT_EQ(sign(compareTexts(c.right, c.left)), -c.result) << '"' << c.right << "\" \"" << c.left << '"';
        EXPECT_EQ(collationKey(c.left) == collationKey(c.right), c.result == 0) << c.left << ' ' << c.right;
    }
}

TEST(Comparison, OrdersAllPairsOfPrintableCharactersAsTheLibrary) {
    for (char left = 1; left < 127; ++left) {
        for (char right = 1; right < 127; ++right) {
            const std::string a{left};
            const std::string b{right};
            ASSERT_EQ(sign(compareTexts(a, b)), compareByLibrary(a, b)) << int(left) << ' ' << int(right);
        }
    }
}

TEST(Characters, AreCountedAsTheServerCountsThem) {
    EXPECT_EQ(characters(""), 0U);
    EXPECT_EQ(characters("citt\u00e0"), 5U);
    EXPECT_EQ(characters("\u20ac 5"), 3U);
    EXPECT_EQ(characters("\U0001f600"), 2U);
}

TEST(Characters, OfTheLeftAreNeverCutThrough) {
    EXPECT_EQ(leftOf("citt\u00e0 alta", 5), "citt\u00e0");
    EXPECT_EQ(leftOf("abc", 9), "abc");
    EXPECT_EQ(leftOf("abc", 0), "");
    EXPECT_EQ(leftOf("a\U0001f600b", 2), "a");
    EXPECT_EQ(leftOf("a\U0001f600b", 3), "a\U0001f600");
}

TEST(Characters, ChangeTheirCaseOneByOne) {
    EXPECT_EQ(upper("citt\u00e0 \u00df"), "CITT\u00c0 \u00df");
    EXPECT_EQ(lower("CITT\u00c0"), "citt\u00e0");
    EXPECT_EQ(upper("\xff"), "\ufffd");
}

} // namespace
} // namespace engine
