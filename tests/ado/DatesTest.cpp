#include "ado/Conversions.h"
#include "ado/ExpectError.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

using test::raises;

struct DateCase {
    const char* text;
    std::optional<Date> date;
};

class DateTexts : public ::testing::TestWithParam<DateCase> {
protected:
    void SetUp() override { setToday(Date::of(2021, 6, 30)); }
    void TearDown() override { setToday({}); }
};

TEST_P(DateTexts, ReadByItalianSettings) {
    const auto& [text, date] = GetParam();
    EXPECT_EQ(parseDate(text), date) << text;
    EXPECT_EQ(isDate(text), date.has_value()) << text;
    if (date) {
        EXPECT_EQ(toDate(text), *date) << text;
    } else {
        EXPECT_TRUE(raises(kTypeMismatch, [&, t = text] { toDate(t); })) << text;
    }
}

std::optional<Date> day(int year, int month, int dayOfMonth) {
    return Date::of(year, month, dayOfMonth);
}

INSTANTIATE_TEST_SUITE_P(
    Days, DateTexts,
    ::testing::Values(DateCase{"12/12/2020", day(2020, 12, 12)}, DateCase{"1-2-2020", day(2020, 2, 1)},
                      DateCase{"2020-12-25", day(2020, 12, 25)}, DateCase{"31/02/20", day(1931, 2, 20)},
                      DateCase{"02/13/2020", day(2020, 2, 13)}, DateCase{"1/2", day(2021, 2, 1)},
                      DateCase{"31.12.2020", day(2020, 12, 31)}, DateCase{"1/1/00", day(2000, 1, 1)},
                      DateCase{"1/1/29", day(2029, 1, 1)}, DateCase{"1/1/30", day(1930, 1, 1)},
                      DateCase{"1/1/99", day(1999, 1, 1)}, DateCase{" 5 / 6 / 2004 ", day(2004, 6, 5)},
                      DateCase{"29/02/2004", day(2004, 2, 29)}, DateCase{"12/2020", day(2020, 12, 1)},
                      DateCase{"13/5", day(2021, 5, 13)}, DateCase{"5/13", day(2021, 5, 13)},
                      DateCase{"25 dicembre 2020", day(2020, 12, 25)}, DateCase{"25-DIC-2020", day(2020, 12, 25)},
                      DateCase{"1 2 2020", day(2020, 2, 1)}));

INSTANTIATE_TEST_SUITE_P(Times, DateTexts,
                         ::testing::Values(DateCase{"12.30", Date::of(1899, 12, 30, 12, 30)},
                                           DateCase{"8:05", Date::of(1899, 12, 30, 8, 5)},
                                           DateCase{"23:59:58", Date::of(1899, 12, 30, 23, 59, 58)},
                                           DateCase{"31/12/2020 10:30", Date::of(2020, 12, 31, 10, 30)},
                                           DateCase{"31/12/2020 10.30.15", Date::of(2020, 12, 31, 10, 30, 15)},
                                           DateCase{"1/2 7:00", Date::of(2021, 2, 1, 7)},
                                           DateCase{"9:15 PM", Date::of(1899, 12, 30, 21, 15)},
                                           DateCase{"12:00 am", Date::of(1899, 12, 30)},
                                           DateCase{"7 pm", Date::of(1899, 12, 30, 19)}));

INSTANTIATE_TEST_SUITE_P(Refused, DateTexts,
                         ::testing::Values(DateCase{"010203", {}}, DateCase{"31/02/2020", {}}, DateCase{"", {}},
                                           DateCase{"29/02/2003", {}}, DateCase{"abc", {}}, DateCase{"12", {}},
                                           DateCase{"1/2/3/4", {}}, DateCase{"12/", {}}, DateCase{"/12", {}},
                                           DateCase{"00/00/0000", {}}, DateCase{"24:00", {}}, DateCase{"12:60", {}},
                                           DateCase{"1/1/20200", {}}, DateCase{"31/12/2020 25:00", {}},
                                           DateCase{"31/12/2020 10", {}}, DateCase{"1/1/2020x", {}},
                                           DateCase{"13:00 pm", {}}));

TEST(RegionalDates, FollowTheOrderOfTheMachine) {
    const RegionalSettings italian = regionalSettings();
    regionalSettings().dateOrder = RegionalSettings::DateOrder::MonthDayYear;
    EXPECT_EQ(parseDate("1/2/2020"), day(2020, 1, 2));
    EXPECT_EQ(parseDate("13/2/2020"), day(2020, 2, 13));
    EXPECT_EQ(formatDate(Date::of(2020, 1, 2)), "01/02/2020");
    regionalSettings().dateOrder = RegionalSettings::DateOrder::YearMonthDay;
    EXPECT_EQ(formatDate(Date::of(2020, 1, 2)), "2020/01/02");
    regionalSettings() = italian;
}

TEST(TextOfADate, HasTheTimeUnlessItIsMidnight) {
    EXPECT_EQ(toText(Date::of(2004, 3, 7)), "07/03/2004");
    EXPECT_EQ(toText(Date::of(2004, 3, 7, 8, 5, 9)), "07/03/2004 08:05:09");
    EXPECT_EQ(toText(Date::of(1899, 12, 30)), "00:00:00");
    EXPECT_EQ(toText(Date::of(1899, 12, 30, 12, 30)), "12:30:00");
}

TEST(DatesAsNumbers, CountDaysFromTheEndOf1899) {
    EXPECT_EQ(toDouble(Date::of(1900, 1, 1)), 2);
    EXPECT_EQ(toDouble(Date::of(2004, 3, 7, 12)), 38053.5);
    EXPECT_EQ(toDate(38053.5), Date::of(2004, 3, 7, 12));
    EXPECT_EQ(toDate(-1.25), Date::of(1899, 12, 29, 6));
    EXPECT_EQ(toDouble(Date::of(1899, 12, 29, 6)), -1.25);
    EXPECT_TRUE(raises(kOverflow, [] { toDate(3e6); }));
}

TEST(Calendar, KnowsItsDays) {
    const Date date = Date::of(2004, 2, 29, 23, 59, 59, 999);
    EXPECT_EQ(date.year(), 2004);
    EXPECT_EQ(date.month(), 2);
    EXPECT_EQ(date.dayOfMonth(), 29);
    EXPECT_EQ(date.millisecond, 86'399'999);
    EXPECT_EQ(Date::of(1970, 1, 1).day, 0);
    EXPECT_TRUE(raises(kTypeMismatch, [] { Date::of(2003, 2, 29); }));
    EXPECT_TRUE(raises(kTypeMismatch, [] { Date::of(2003, 13, 1); }));
    EXPECT_TRUE(raises(kTypeMismatch, [] { Date::of(2003, 1, 1, 24); }));
}

TEST(Calendar, RollsOverTheEndOfMonthsAndYears) {
    EXPECT_EQ(Date::rolling(2003, 2, 29), Date::of(2003, 3, 1));
    EXPECT_EQ(Date::rolling(2003, 13, 1), Date::of(2004, 1, 1));
    EXPECT_EQ(Date::rolling(2003, 0, 1), Date::of(2002, 12, 1));
    EXPECT_EQ(Date::rolling(2003, -11, 1), Date::of(2002, 1, 1));
    EXPECT_EQ(Date::rolling(2003, -12, 1), Date::of(2001, 12, 1));
    EXPECT_EQ(Date::rolling(2004, 3, 0), Date::of(2004, 2, 29));
}

TEST(Today, IsTheDayThatWasSet) {
    setToday(Date::of(2004, 3, 7));
    EXPECT_EQ(today(), Date::of(2004, 3, 7));
    setToday({});
    EXPECT_GT(today(), Date::of(2024, 1, 1));
}

} // namespace
} // namespace ado
