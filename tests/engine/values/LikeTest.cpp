#include "engine/values/Collation.h"

#include <gtest/gtest.h>

#include <string>

namespace engine {
namespace {

struct Case {
    const char* text;
    const char* pattern;
    bool matches;
    const char* escape = "";
};

void expectAll(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(like(c.text, c.pattern, c.escape), c.matches)
            << '"' << c.text << "\" like \"" << c.pattern << "\" escape \"" << c.escape << '"';
    }
}

TEST(Like, KnowsItsWildcards) {
    expectAll({
        {"vabodati1", "vabodati%", true},
        {"VaBoDatiAzienda", "%azienda%", true},
        {"VaBoDatiTemp", "%azienda%", false},
        {"abc", "a_c", true},
        {"ac", "a_c", false},
        {"abc", "%", true},
        {"", "%", true},
        {"", "_", false},
        {"", "", true},
        {"abc", "", false},
        {"abcabc", "%abc", true},
        {"aXbXc", "a%b%c", true},
        {"aXbX", "a%b%c", false},
        {"abc", "%%%c", true},
        {"abc", "a%_", true},
        {"a", "a%_", false},
    });
}

TEST(Like, IgnoresCaseAndTellsAccentsApart) {
    expectAll({
        {"CITT\u00c0", "citt\u00e0", true},
        {"citta", "citt\u00e0", false},
        {"citt\u00e0", "citt_", true},
        {"\u20ac", "_", true},
        {"citt\u00e0 alta", "%\u00c0 a%", true},
    });
}

TEST(Like, BlanksAtTheEndOfThePatternCount) {
    expectAll({
        {"abc", "abc ", false},
        {"abc ", "abc ", true},
        {"abc  ", "abc ", true},
        {"abc  ", "abc", true},
        {"abc d", "abc", false},
    });
}

TEST(Like, KnowsSetsAndRangesOfTheCollation) {
    expectAll({
        {"b", "[abc]", true},
        {"B", "[a-c]", true},
        {"d", "[a-c]", false},
        {"d", "[^a-c]", true},
        {"C", "[^a-c]", false},
        {"\u00e0", "[a-c]", true},
        {"\u00e8", "[a-e]", false},
        {"5", "[0-9]", true},
        {"x5", "x[0-9]%", true},
        {"-", "[-a]", true},
        {"-", "[a-]", true},
        {"^", "[a^]", true},
        {"b", "[c-a]", false},
    });
}

TEST(Like, BracketsTakeAWildcardsMeaningAway) {
    expectAll({
        {"50%", "50[%]", true},
        {"50x", "50[%]", false},
        {"a_b", "a[_]b", true},
        {"axb", "a[_]b", false},
        {"a[b", "a[[]b", true},
        {"a]b", "a]b", true},
        {"a]", "[]]", false},
        {"x", "[]", false},
        {"x", "[^]", true},
    });
}

TEST(Like, ABracketThatNeverClosesMatchesNothing) {
    expectAll({{"a[b", "a[b", false}, {"a", "[", false}, {"", "%[", false}, {"a", "[a-", false}});
}

TEST(Like, EscapesTakeAMeaningAway) {
    expectAll({
        {"50%", "50!%", true, "!"},
        {"50x", "50!%", false, "!"},
        {"a!b", "a!!b", true, "!"},
        {"a[b", "a![b", true, "!"},
        {"ab", "a!b", true, "!"},
        {"]", "[!]]", true, "!"},
        {"abc", "abc!", false, "!"},
        {"a%", "a%%", true, "%"},
    });
}

TEST(Like, ManyWildcardsDoNotExplode) {
    const std::string text(20'000, 'a');
    std::string pattern;
    for (int i = 0; i < 200; ++i) {
        pattern += "%a";
    }
    EXPECT_TRUE(like(text, pattern));
    EXPECT_FALSE(like(text, pattern + "%b"));
}

} // namespace
} // namespace engine
