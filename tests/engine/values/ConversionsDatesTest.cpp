#include "engine/ExpectError.h"
#include "engine/values/Conversions.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace engine {
namespace {

const std::string kGarbage = "241 Conversion failed when converting date and/or time from character string.";
const std::string kOutOfRange =
    "242 The conversion of a varchar data type to a datetime data type resulted in an out-of-range value.";

constexpr DateOrder kMonthFirst = DateOrder::MonthDayYear;
constexpr DateOrder kDayFirst = DateOrder::DayMonthYear;
constexpr DateOrder kYearFirst = DateOrder::YearMonthDay;

struct Case {
    const char* text;
    std::optional<int> style;
    DateOrder order;
    std::string result; ///< a date alone stands for its midnight
};

void expectAll(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        std::string result;
        const std::string error = errorOf([&] { result = toDateTime(c.text, c.style, c.order); });
        const std::string expected = c.result.size() == 10 ? c.result + " 00:00:00.000" : c.result;
        EXPECT_EQ(result.empty() ? error : result, expected) << '"' << c.text << "\" style " << c.style.value_or(-1)
                                                             << (c.order == kDayFirst     ? " day first"
                                                                 : c.order == kMonthFirst ? " month first"
                                                                                          : " year first");
    }
}

TEST(DateOfText, WithoutAStyleFollowsTheSession) {
    expectAll({
        {"20040307", {}, kMonthFirst, "2004-03-07"},
        {"20040307", {}, kDayFirst, "2004-03-07"},
        {"040307", {}, kDayFirst, "2004-03-07"},
        {"2004", {}, kMonthFirst, "2004-01-01"},
        {"2004-03-07", {}, kMonthFirst, "2004-03-07"},
        {"2004-03-07", {}, kDayFirst, "2004-07-03"},
        {"2004-03-17", {}, kDayFirst, kOutOfRange},
        {"2004-03-17T10:11:12", {}, kDayFirst, "2004-03-17 10:11:12.000"},
        {"7/3/2004", {}, kDayFirst, "2004-03-07"},
        {"7/3/2004", {}, kMonthFirst, "2004-07-03"},
        {"7.3.04", {}, kDayFirst, "2004-03-07"},
        {"7-3-50", {}, kDayFirst, "1950-03-07"},
        {"7-3-49", {}, kDayFirst, "2049-03-07"},
        {"31/12/2020", {}, kDayFirst, "2020-12-31"},
        {"31/12/2020", {}, kMonthFirst, kOutOfRange},
        {"04.3.7", {}, kYearFirst, "2004-03-07"},
        {"2004-03-07", {}, kYearFirst, "2004-03-07"},
        {"3/7/2004", {}, kYearFirst, "2004-03-07"},
        {"31/12/20", {}, kYearFirst, "2031-12-20"},
        {"20/31/12", {}, kYearFirst, kOutOfRange},
        {"", {}, kMonthFirst, "1900-01-01"},
        {"   ", {}, kMonthFirst, "1900-01-01"},
        {" 20040307 ", {}, kMonthFirst, "2004-03-07"},
    });
}

TEST(DateOfText, WithAStyleFollowsTheStyle) {
    expectAll({
        {"2004-3-7", 102, kDayFirst, "2004-03-07"},
        {"2004-3-7", 102, kMonthFirst, "2004-03-07"},
        {"2004.3.7", 102, kMonthFirst, "2004-03-07"},
        {"2004/03/07", 111, kDayFirst, "2004-03-07"},
        {"04.03.07", 102, kDayFirst, "2004-03-07"},
        {"07/03/2004", 103, kMonthFirst, "2004-03-07"},
        {"07/03/2004", 101, kDayFirst, "2004-07-03"},
        {"07.03.2004", 104, kMonthFirst, "2004-03-07"},
        {"07-03-2004", 105, kMonthFirst, "2004-03-07"},
        {"7-3-2004", 5, kMonthFirst, "2004-03-07"},
        {"20040307", 112, kDayFirst, "2004-03-07"},
        {"2004-03-07 15:16:17", 120, kDayFirst, "2004-03-07 15:16:17.000"},
        {"2004-03-07 15:16:17.123", 121, kDayFirst, "2004-03-07 15:16:17.123"},
        {"2004-03-07T15:16:17", 126, kDayFirst, "2004-03-07 15:16:17.000"},
        {"2004-31-12", 102, kMonthFirst, kOutOfRange},
        {"20040307", 999, kMonthFirst, "9809 The style 999 is not supported for conversions from varchar to datetime."},
        {"", 102, kMonthFirst, "1900-01-01"},
    });
}

TEST(DateOfText, HasATime) {
    expectAll({
        {"20040307 10:11", {}, kMonthFirst, "2004-03-07 10:11:00.000"},
        {"20040307 1:02:03 PM", {}, kMonthFirst, "2004-03-07 13:02:03.000"},
        {"20040307 12:00am", {}, kMonthFirst, "2004-03-07"},
        {"20040307 12:00PM", {}, kMonthFirst, "2004-03-07 12:00:00.000"},
        {"10:11:12", {}, kMonthFirst, "1900-01-01 10:11:12.000"},
        {"20040307 10:11:12.5", {}, kMonthFirst, "2004-03-07 10:11:12.500"},
        {"20040307 10:11:12:5", {}, kMonthFirst, "2004-03-07 10:11:12.007"},
        {"20040307 24:00", {}, kMonthFirst, kOutOfRange},
        {"20040307 10:60", {}, kMonthFirst, kOutOfRange},
        {"20040307 10:10:60", {}, kMonthFirst, kOutOfRange},
        {"20040307 13:00PM", {}, kMonthFirst, kOutOfRange},
        {"20040307 10", {}, kMonthFirst, kGarbage},
        {"20040307 10:11:12.1234", {}, kMonthFirst, kGarbage},
        {"20040307 10:11 XM", {}, kMonthFirst, kGarbage},
    });
}

TEST(DateOfText, KeepsThirdsOfAHundredthOfASecond) {
    constexpr struct {
        const char* written;
        const char* kept;
    } kCases[] = {{"001", "000"}, {"002", "003"}, {"004", "003"}, {"005", "007"},
                  {"008", "007"}, {"009", "010"}, {"998", "997"}};
    for (const auto& c : kCases) {
        EXPECT_EQ(toDateTime(std::string("20040307 10:11:12.") + c.written, {}),
                  std::string("2004-03-07 10:11:12.") + c.kept);
    }
    EXPECT_EQ(toDateTime("20041231 23:59:59.999", {}), "2005-01-01 00:00:00.000");
    EXPECT_EQ(errorOf([] { toDateTime("99991231 23:59:59.999", {}); }), kOutOfRange);
}

TEST(DateOfText, OutsideTheCalendarIsRefused) {
    expectAll({
        {"20040230", {}, kMonthFirst, kOutOfRange},
        {"20040229", {}, kMonthFirst, "2004-02-29"},
        {"20030229", {}, kMonthFirst, kOutOfRange},
        {"20041301", {}, kMonthFirst, kOutOfRange},
        {"20040001", {}, kMonthFirst, kOutOfRange},
        {"20040100", {}, kMonthFirst, kOutOfRange},
        {"17530101", {}, kMonthFirst, "1753-01-01"},
        {"17521231", {}, kMonthFirst, kOutOfRange},
        {"99991231", {}, kMonthFirst, "9999-12-31"},
        {"0000-01-01", 102, kMonthFirst, kOutOfRange},
        {"32/1/2004", {}, kDayFirst, kOutOfRange},
    });
}

TEST(DateOfText, HasItsMonthByName) {
    for (const char* text :
         {"Mar 7 2004", "March 7, 2004", "mar 07,2004", "7 Mar 2004", "07-MAR-2004", "7 march, 2004", "2004 mar 7",
          "2004 7 Mar", "Mar 2004 7", "7 2004 mar", "Mar 7 04", "7/Mar/04", "  Mar  7  2004 "}) {
        for (const DateOrder order : {kMonthFirst, kDayFirst, kYearFirst}) {
            EXPECT_EQ(toDateTime(text, {}, order), "2004-03-07 00:00:00.000") << text;
        }
    }
    expectAll({
        {"Mar 2004", {}, kMonthFirst, "2004-03-01"},
        {"sep 7 2004 10:11", {}, kMonthFirst, "2004-09-07 10:11:00.000"},
        {"7 Dec 2004 3PM", {}, kMonthFirst, "2004-12-07 15:00:00.000"},
        {"Dec 2004 12:00:01.5 am", {}, kMonthFirst, "2004-12-01 00:00:01.500"},
        {"Mar 7 50", {}, kMonthFirst, "1950-03-07"},
        {"Feb 30 2004", {}, kMonthFirst, kOutOfRange},
    });
    for (const char* text : {"Mar", "Mar 7", "Marc 7 2004", "Mar Apr 2004", "Mar 7 2004x", "7 Mar 2004 3",
                             "Mar 7 8 2004", "Mar 7 204", "gen 7 2004", "marzo 7 2004", "Mar 7 2004T10:11:12"}) {
        EXPECT_EQ(errorOf([&] { toDateTime(text, {}); }), kGarbage) << text;
    }
}

TEST(DateOfText, HasAnHourOfHalfADay) {
    expectAll({
        {"3PM", {}, kMonthFirst, "1900-01-01 15:00:00.000"},
        {"3 pm", {}, kMonthFirst, "1900-01-01 15:00:00.000"},
        {"12am", {}, kMonthFirst, "1900-01-01"},
        {"2004-03-07 11AM", {}, kMonthFirst, "2004-03-07 11:00:00.000"},
        {"13PM", {}, kMonthFirst, kOutOfRange},
    });
    for (const char* text : {"3P", "3XM", "PM", "3PM 4", "3 P M"}) {
        EXPECT_EQ(errorOf([&] { toDateTime(text, {}); }), kGarbage) << text;
    }
}

TEST(DateOfText, InTheInternationalFormHasAllItsDigits) {
    expectAll({
        {"2022-01-22T13:34:12", {}, kDayFirst, "2022-01-22 13:34:12.000"},
        {"2022-01-22T13:34:12.123", {}, kDayFirst, "2022-01-22 13:34:12.123"},
        {"20220122T13:34:12", {}, kDayFirst, "2022-01-22 13:34:12.000"},
    });
    for (const char* text : {"2022-1-22T13:34:12.123", "2022-01-2T13:34:12", "2022-01-22T3:34:12", "2022-01-22T13:34",
                             "2022-01-22T13", "2022-01-22T13:4:12", "2022-01-22T13:34:12PM", "2022-01-22T 13:34:12",
                             "2022-01-22T", "2022/01/22T13:34:12"}) {
        EXPECT_EQ(errorOf([&] { toDateTime(text, {}); }), kGarbage) << text;
    }
}

TEST(DateOfText, GarbageIsRefused) {
    for (const char* text :
         {"abc",          "1/2",     "1//2",      "1/2/3/4",    "1/2/345",     "12345",        "123456789",
          "123456789012", "2004-03", "20040307x", "2004-3-7T",  "2004-3-7T10", "-1/2/2004",    "1/2/2004 ,",
          "7 3 2004",     ":",       "/",         "111/1/2004", "1/2004/3",    "\u0663/1/2004"}) {
        EXPECT_EQ(errorOf([&] { toDateTime(text, {}); }), kGarbage) << text;
    }
}

TEST(DateOfNumber, CountsDaysFromNineteenHundred) {
    EXPECT_EQ(toDateTime(0.0), "1900-01-01 00:00:00.000");
    EXPECT_EQ(toDateTime(1.5), "1900-01-02 12:00:00.000");
    EXPECT_EQ(toDateTime(-0.25), "1899-12-31 18:00:00.000");
    EXPECT_EQ(toDateTime(-53690.0), "1753-01-01 00:00:00.000");
    EXPECT_EQ(errorNumberOf([] { toDateTime(-53691.0); }), 242);
    EXPECT_EQ(errorNumberOf([] { toDateTime(2958464.0); }), 242);
    EXPECT_EQ(errorNumberOf([] { toDateTime(1e30); }), 8115);
    EXPECT_EQ(daysOf("1900-01-02 12:00:00.000"), 1.5);
    EXPECT_EQ(daysOf("1899-12-31 18:00:00.000"), -0.25);
}

TEST(DateOfNumber, ComesBackFromItsDays) {
    for (const char* text : {"1753-01-01 00:00:00.000", "2004-02-29 23:59:59.997", "9999-12-31 12:34:56.003"}) {
        EXPECT_EQ(toDateTime(daysOf(text)), text);
    }
}

TEST(DateText, FollowsTheStyle) {
    const std::string date = "2004-03-07 15:06:09.123";
    const struct {
        std::optional<int> style;
        const char* text;
    } cases[] = {
        {{}, "Mar  7 2004  3:06PM"},
        {100, "Mar  7 2004  3:06PM"},
        {101, "03/07/2004"},
        {1, "03/07/04"},
        {102, "2004.03.07"},
        {103, "07/03/2004"},
        {104, "07.03.2004"},
        {105, "07-03-2004"},
        {106, "07 Mar 2004"},
        {107, "Mar 07, 2004"},
        {108, "15:06:09"},
        {109, "Mar  7 2004  3:06:09:123PM"},
        {110, "03-07-2004"},
        {111, "2004/03/07"},
        {112, "20040307"},
        {12, "040307"},
        {113, "07 Mar 2004 15:06:09:123"},
        {114, "15:06:09:123"},
        {120, "2004-03-07 15:06:09"},
        {121, "2004-03-07 15:06:09.123"},
        {126, "2004-03-07T15:06:09.123"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(dateText(date, c.style), c.text) << c.style.value_or(-1);
    }
    EXPECT_EQ(dateText("2004-03-07 00:00:00.000", {}), "Mar  7 2004 12:00AM");
    EXPECT_EQ(dateText("2004-03-07 12:00:00.000", 126), "2004-03-07T12:00:00");
    EXPECT_EQ(errorOf([&] { dateText(date, 99); }),
              "281 99 is not a valid style number when converting from datetime to a character string.");
}

} // namespace
} // namespace engine
