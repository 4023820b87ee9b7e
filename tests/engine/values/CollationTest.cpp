#include "engine/values/Collation.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <unicode/ucol.h>

#include <memory>
#include <string>

namespace engine {
namespace {

int sign(int value) {
    return value < 0 ? -1 : value > 0 ? 1 : 0;
}

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

int compareLetters(const std::string& left, const std::string& right) {
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<UCollator, decltype(&ucol_close)> collator = [] {
        UErrorCode opening = U_ZERO_ERROR;
        UCollator* opened = ucol_open("en", &opening);
        ucol_setStrength(opened, UCOL_SECONDARY);
        return std::unique_ptr<UCollator, decltype(&ucol_close)>(opened, &ucol_close);
    }();
    return ucol_strcollUTF8(collator.get(), left.data(), static_cast<int32_t>(left.size()), right.data(),
                            static_cast<int32_t>(right.size()), &status);
}

/// Takes the apostrophes and hyphens out of a text, each as its place and itself.
std::string takeMarks(std::string& text) {
    std::string marks;
    for (std::size_t found = text.find_first_of("'-"); found != std::string::npos; found = text.find_first_of("'-")) {
        marks += std::to_string(1'000'000 + found) + text[found];
        text.erase(found, 1);
    }
    return marks;
}

/// What the library alone answers, without the ranks of ASCII.
int compareByLibrary(std::string left, std::string right) {
    const auto trim = [](std::string& text) { text.erase(text.find_last_not_of(' ') + 1); };
    trim(left);
    trim(right);
    const std::string marksOfLeft = takeMarks(left);
    const std::string marksOfRight = takeMarks(right);
    trim(left);
    trim(right);
    const int order = compareLetters(left, right);
    return order != 0 ? order : sign(marksOfLeft.compare(marksOfRight));
}

void agree(const std::string& left, const std::string& right) {
    RC_ASSERT(sign(compareTexts(left, right)) == compareByLibrary(left, right));
    RC_ASSERT((collationKey(left) == collationKey(right)) == (compareByLibrary(left, right) == 0));
}

TEST(Comparison, OfAsciiTextsAgreesWithTheLibrary) {
    const bool held = rc::check("any ASCII, control characters too", [] {
        const auto text = [] {
            return rc::gen::container<std::string>(
                rc::gen::map(rc::gen::inRange(0, 128), [](int c) { return char(c); }));
        };
        agree(*text(), *text());
    });
    EXPECT_TRUE(held);
}

TEST(Comparison, OfTextsThatHardlyDifferAgreesWithTheLibrary) {
    const bool held = rc::check("one alphabet of few letters", [] {
        const auto piece = [] {
            return rc::gen::element<std::string>("a", "A", "b", "l", " ", "-", "'", "1", "\u00e0", "\u00b7", "\u0301",
                                                 "\u200b", "\uff41", "\x01", "ss", "\u00df", "\u20ac");
        };
        const auto text = [&] {
            std::string joined;
            for (const std::string& part : *rc::gen::container<std::vector<std::string>>(piece())) {
                joined += part;
            }
            return joined;
        };
        const std::string left = text();
        const std::string right = text();
        agree(left, right);
    });
    EXPECT_TRUE(held);
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
