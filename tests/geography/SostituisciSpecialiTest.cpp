#include "geography/SostituisciSpeciali.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string cleaned(std::string name) {
    return vabo::SostituisciSpeciali(name);
}

TEST(SostituisciSpeciali, EachCharacterOfPunctuationBecomesAWildcard) {
    for (const char special : std::string(R"(/\'&@"-+!=?^$#()[]*)")) {
        EXPECT_EQ(cleaned(std::string("a") + special + "b"), "a%b") << special;
    }
}

TEST(SostituisciSpeciali, APercentStays) {
    EXPECT_EQ(cleaned("100% Lana"), "100% Lana");
}

TEST(SostituisciSpeciali, AnApostropheCannotEndTheTextOfAFilter) {
    EXPECT_EQ(cleaned("Sant'Angelo d'Alife"), "Sant%Angelo d%Alife");
}

TEST(SostituisciSpeciali, AllOthersStay) {
    EXPECT_EQ(cleaned("Forlì. Cesena, (FC)_;:<>{}|~` 1\n"), "Forlì. Cesena, %FC%_;:<>{}|~` 1\n");
    EXPECT_EQ(cleaned(""), "");
}

TEST(SostituisciSpeciali, TheResultIsWrittenBack) {
    std::string name = "Reggio nell'Emilia";
    vabo::SostituisciSpeciali(name);
    EXPECT_EQ(name, "Reggio nell%Emilia");
}

} // namespace
