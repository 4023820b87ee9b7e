#include "kit/PulisciNome.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

std::string cleaned(std::string text) {
    return vabo::PulisciNome(text);
}

TEST(PulisciNome, ReplacesEachForbiddenCharacterByAnUnderscore) {
    for (const char c : std::string(" ,/\\'&@\"-+!=?^$#()[]*")) {
        EXPECT_EQ(cleaned(std::string("a") + c + "b"), "a_b") << "character " << c;
    }
}

TEST(PulisciNome, LeavesAllOtherPrintableCharacters) {
    const std::string allowed = "%.:;<>_`{|}~0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    EXPECT_EQ(cleaned(allowed), allowed);
}

TEST(PulisciNome, CleansWholeNames) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},
        {"srv-01", "srv_01"},
        {"POSTO-7", "POSTO_7"},
        {"due parole", "due_parole"},
        {"  ", "__"},
        {"o'brien", "o_brien"},
        {"' or '1'='1", "__or__1___1"},
        {"città", "città"},
        {"日本", "日本"},
        {"a.b;c:d<e>f|g%h_i`j~k{l}", "a.b;c:d<e>f|g%h_i`j~k{l}"},
        {"ʼ’＇", "ʼ’＇"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(cleaned(text), expected);
    }
}

TEST(PulisciNome, ChangesItsArgumentAndGivesItBack) {
    std::string name = "srv-01";
    EXPECT_EQ(vabo::PulisciNome(name), "srv_01");
    EXPECT_EQ(name, "srv_01");
}

TEST(PulisciNome, ChangesNothingTheSecondTime) {
    std::string name = "a 'b' (c)";
    const std::string once = vabo::PulisciNome(name);
    EXPECT_EQ(vabo::PulisciNome(name), once);
}

} // namespace
