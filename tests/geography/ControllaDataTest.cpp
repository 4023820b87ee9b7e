#include "geography/ControllaData.h"

#include "ado/Conversions.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

struct Checked {
    std::string data;
    std::int16_t esito;
    bool operator==(const Checked&) const = default;
};

void PrintTo(const Checked& checked, std::ostream* out) {
    *out << '"' << checked.data << "\" " << checked.esito;
}

/// From a flag that is neither answer.
Checked checked(std::string data) {
    std::int16_t esito = 7;
    vabo::ControllaData(data, esito);
    return {data, esito};
}

struct Case {
    std::string typed;
    Checked expected;
};

void check(const std::vector<Case>& cases) {
    for (const auto& [typed, expected] : cases) {
        EXPECT_EQ(checked(typed), expected) << "typed: \"" << typed << '"';
    }
}

class ControllaData : public testing::Test {
protected:
    ControllaData() { ado::setToday(ado::Date::of(2026, 6, 30)); }
    ~ControllaData() override { ado::setToday({}); }
};

TEST_F(ControllaData, DigitsGetTheirSlashesAndThePresentCenturyBack) {
    check({
        {"010203", {"01/02/2003", -1}},
        {"01/02/03", {"01/02/2003", -1}},
        {"12/12/2020", {"12/12/2020", -1}},
        {"12122020", {"12/12/2020", -1}},
        {"010199", {"01/01/2099", -1}},
        {"/0/1/0/1/9/9/", {"01/01/2099", -1}},
        {"31121900", {"31/12/1900", -1}},
    });
}

TEST_F(ControllaData, TheYearIsFilledUpByHowManyOfItsDigitsWereTyped) {
    check({
        {"01025", {"01/02/2025", -1}},
        {"010298", {"01/02/2098", -1}},
        {"0102987", {"01/02/2987", -1}},
        {"01021987", {"01/02/1987", -1}},
    });
    ado::setToday(ado::Date::of(1987, 1, 1));
    check({
        {"01025", {"01/02/1985", -1}},
        {"010298", {"01/02/1998", -1}},
        {"0102023", {"01/02/1023", -1}},
        {"01022026", {"01/02/2026", -1}},
    });
}

TEST_F(ControllaData, OtherLengthsPassAsTheyAre) {
    check({
        {"0102", {"0102", -1}},
        {"01/02", {"0102", -1}},
        {"011", {"011", -1}},
        {"010220203", {"010220203", -1}},
        {"0102" + std::string(4'000, '0'), {"0102" + std::string(4'000, '0'), -1}},
    });
}

TEST_F(ControllaData, NoDayOrNoMonthIsRefused) {
    check({
        {"", {"", 0}},
        {"///", {"", 0}},
        {"0", {"0", 0}},
        {" ", {" ", 0}},
        {"5", {"5", 0}},
        {"12", {"12", 0}},
        {"120", {"120", 0}},
        {"000103", {"000103", 0}},
        {"00/01/2003", {"00012003", 0}},
        {"01/00/2003", {"01002003", 0}},
        {"00/00/0000", {"00000000", 0}},
    });
}

TEST_F(ControllaData, ADayAbove31OrAMonthAbove12IsRefused) {
    check({
        {"310103", {"31/01/2003", -1}},
        {"320103", {"320103", 0}},
        {"011203", {"01/12/2003", -1}},
        {"011303", {"011303", 0}},
        {"1/2/2020", {"122020", 0}},
    });
}

TEST_F(ControllaData, TheShortMonthsEndOnThe30th) {
    for (const std::string month : {"04", "06", "09", "11"}) {
        check({
            {"30" + month + "2003", {"30/" + month + "/2003", -1}},
            {"31" + month + "2003", {"31" + month + "2003", 0}},
        });
    }
    for (const std::string month : {"01", "03", "05", "07", "08", "10", "12"}) {
        check({{"31" + month + "2003", {"31/" + month + "/2003", -1}}});
    }
}

// 1900 was no leap year; two digits don't tell.
TEST_F(ControllaData, AYearWhoseLastTwoDigitsDivideBy4HasA29thOfFebruary) {
    for (const std::string year : {"2000", "2004", "1996", "1900"}) {
        check({
            {"29/02/" + year, {"29/02/" + year, -1}},
            {"30/02/" + year, {"3002" + year, 0}},
            {"31/02/" + year, {"3102" + year, 0}},
        });
    }
}

// A quarter of 1, 2, 5, 10 is .25, .5, 1.25, 2.5: .2, .5, 1.2, 2.5 to one decimal, 0, 0, 1, 2 to none.
TEST_F(ControllaData, AYearThatRoundsDownEndsFebruaryOnThe28th) {
    for (const std::string year : {"2001", "2002", "2005", "2010", "1997", "1998"}) {
        check({
            {"28/02/" + year, {"28/02/" + year, -1}},
            {"29/02/" + year, {"2902" + year, 0}},
        });
    }
}

// A quarter of 3, 6, 7, 14 is .75, 1.5, 1.75, 3.5: .8, 1.5, 1.8, 3.5 to one decimal, 1, 2, 2, 4 to none.
TEST_F(ControllaData, AYearThatRoundsUpHasNoEndOfFebruary) {
    for (const std::string year : {"2003", "2006", "2007", "2014", "1999"}) {
        check({
            {"29/02/" + year, {"29/02/" + year, -1}},
            {"31/02/" + year, {"31/02/" + year, -1}},
            {"32/02/" + year, {"3202" + year, 0}},
        });
    }
}

// All hundred years, by the remainder of their half and quarter.
TEST_F(ControllaData, EveryYearFallsOnOneOfTheThreeSides) {
    for (int year = 0; year < 100; ++year) {
        const std::string digits = (year < 10 ? "0" : "") + std::to_string(year);
        const bool leap = year % 4 == 0;
        const bool down = year % 4 == 1 || year % 8 == 2;
        EXPECT_EQ(checked("2902" + digits).esito, down ? 0 : -1) << year;
        EXPECT_EQ(checked("3002" + digits).esito, down || leap ? 0 : -1) << year;
    }
}

TEST_F(ControllaData, ADateWithoutSlashesStaysAsItIs) {
    check({
        {"12-12-2020", {"12-12-2020", -1}},
        {"10.11.2020", {"10.11.2020", -1}},
    });
}

TEST_F(ControllaData, WhatIsNeitherADateNorANumberStaysAsItIs) {
    check({
        {"0103x04", {"0103x04", -1}},
        {"0103;04", {"0103;04", -1}},
        {"0103'--04", {"0103'--04", -1}},
        {"0103\x01\x02"
         "04",
         {"0103\x01\x02"
          "04",
          -1}},
    });
}

TEST_F(ControllaData, ADayMonthOrYearThatIsNoNumberIsRefused) {
    check({
        {"aa0103", {"aa0103", 0}},
        {"01gen03", {"01gen03", 0}},
        {"01ab03", {"01ab03", 0}},
        {"0103ab", {"0103ab", 0}},
        {"' or 1=1 --", {"' or 1=1 --", 0}},
        {"--0103", {"--0103", 0}},
        {"città", {"città", 0}},
        {std::string(4'000, 'x'), {std::string(4'000, 'x'), 0}},
        {std::string("\x00\x01\x02", 3), {std::string("\x00\x01\x02", 3), 0}},
        {"\xff\xfe", {"\xff\xfe", 0}},
    });
}

// Days below 1 aren't looked at; a sign or a separator is part of a number.
TEST_F(ControllaData, PiecesAreReadAsNumbersAreTyped) {
    check({
        {" 1 203", {" 1 203", -1}},
        {"-10203", {"-1/02/2003", -1}},
        {"0103,5", {"01/03/20,5", -1}},
    });
}

TEST_F(ControllaData, PiecesAreCharactersWhateverTheirBytes) {
    check({
        {"€10103", {"€1/01/2003", -1}},
        {"0103€", {"01/03/202€", -1}},
    });
}

} // namespace
