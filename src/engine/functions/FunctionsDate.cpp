#include "engine/errors/Error.h"
#include "engine/errors/FunctionErrors.h"
#include "engine/functions/FunctionRows.h"
#include "engine/values/Ascii.h"
#include "engine/values/CalendarDate.h"
#include "engine/values/Conversions.h"
#include "os/Machine.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <limits>

namespace engine {

namespace {

enum class Part { Year, Quarter, Month, DayOfYear, Day, Week, WeekDay, Hour, Minute, Second, Millisecond };

struct PartName {
    std::string_view name;
    Part part;
};

constexpr std::array kParts = std::to_array<PartName>({
    {"year", Part::Year},       {"yy", Part::Year},
    {"yyyy", Part::Year},       {"quarter", Part::Quarter},
    {"qq", Part::Quarter},      {"q", Part::Quarter},
    {"month", Part::Month},     {"mm", Part::Month},
    {"m", Part::Month},         {"dayofyear", Part::DayOfYear},
    {"dy", Part::DayOfYear},    {"y", Part::DayOfYear},
    {"day", Part::Day},         {"dd", Part::Day},
    {"d", Part::Day},           {"week", Part::Week},
    {"wk", Part::Week},         {"ww", Part::Week},
    {"weekday", Part::WeekDay}, {"dw", Part::WeekDay},
    {"w", Part::WeekDay},       {"hour", Part::Hour},
    {"hh", Part::Hour},         {"minute", Part::Minute},
    {"mi", Part::Minute},       {"n", Part::Minute},
    {"second", Part::Second},   {"ss", Part::Second},
    {"s", Part::Second},        {"millisecond", Part::Millisecond},
    {"ms", Part::Millisecond},
});

/// How long a part is: so many months, or else so many seconds; nothing for the milliseconds.
struct Span {
    int months;
    std::int64_t seconds;
};

Span spanOf(Part part) {
    constexpr std::int64_t kDay = 86'400;
    constexpr std::array kSpans = std::to_array<Span>( // in the order of Part
        {{12, 0}, {3, 0}, {1, 0}, {0, kDay}, {0, kDay}, {0, 7 * kDay}, {0, kDay}, {0, 3600}, {0, 60}, {0, 1}, {0, 0}});
    return kSpans[static_cast<std::size_t>(part)];
}

constexpr int kMonthsOfYear = 12;
constexpr int kMonthsOfQuarter = 3;
constexpr int kDaysOfWeek = 7;

Part partOf(const std::string& name, const char* function) {
    const std::string small = smallLetters(name);
    const auto found =
        std::find_if(kParts.begin(), kParts.end(), [&](const auto& entry) { return entry.name == small; });
    if (found == kParts.end()) {
        throw errors::unknownDatePart(name, function);
    }
    return found->part;
}

std::int64_t floorDivide(std::int64_t value, std::int64_t by) {
    return value / by - (value % by < 0 ? 1 : 0);
}

int daysInMonth(int year, int month) {
    CalendarDate first;
    first.year = month == kMonthsOfYear ? year + 1 : year;
    first.month = month == kMonthsOfYear ? 1 : month + 1;
    CalendarDate begin;
    begin.year = year;
    begin.month = month;
    return static_cast<int>(first.days() - begin.days());
}

Scalar addMonths(CalendarDate date, std::int64_t months) {
    constexpr std::int64_t kFirstYear = 1753;
    constexpr std::int64_t kLastYear = 9999;
    const std::int64_t total = std::int64_t{date.year} * kMonthsOfYear + date.month - 1 + months;
    const std::int64_t year = floorDivide(total, kMonthsOfYear);
    if (year < kFirstYear || year > kLastYear) {
        throw errors::dateAdditionOverflow();
    }
    date.year = static_cast<int>(year);
    date.month = static_cast<int>(total - year * kMonthsOfYear) + 1;
    date.day = std::min(date.day, daysInMonth(date.year, date.month));
    return date.text();
}

Scalar addTicks(const CalendarDate& date, std::int64_t ticks) {
    try {
        return CalendarDate::ofTicks(date.days(), date.ticks() + ticks).text();
    } catch (const Error&) {
        throw errors::dateAdditionOverflow();
    }
}

Scalar dateAdd(FunctionContext& /*context*/, Arguments arguments) {
    const std::int64_t number = integerAt(arguments, 1);
    const CalendarDate date = CalendarDate::stored(textAt(arguments, 2));
    const Part part = partOf(textAt(arguments, 0), "dateadd");
    const Span span = spanOf(part);
    if (span.months > 0) {
        return addMonths(date, number * span.months);
    }
    return addTicks(date, part == Part::Millisecond
                              ? floorDivide(number * kTicksOfSecond + 500, 1000) // to the nearest tick
                              : number * span.seconds * kTicksOfSecond);
}

/// How many times the part has begun anew up to a date: DATEDIFF is the difference of two such numbers.
std::int64_t beginningsUpTo(const CalendarDate& date, Part part) {
    const Span span = spanOf(part);
    if (span.months > 0) {
        return (std::int64_t{date.year} * kMonthsOfYear + date.month - 1) / span.months;
    }
    const std::int64_t seconds = ((date.days() * 24 + date.hour) * 60 + date.minute) * 60 + date.second;
    if (part == Part::Millisecond) {
        return seconds * 1000 + date.millisecond;
    }
    // 1900-01-01 was a Monday, and weeks begin on Sundays.
    return floorDivide(seconds + (part == Part::Week ? spanOf(Part::Day).seconds : 0), span.seconds);
}

Scalar dateDiff(FunctionContext& /*context*/, Arguments arguments) {
    const Part part = partOf(textAt(arguments, 0), "datediff");
    const std::int64_t difference = beginningsUpTo(CalendarDate::stored(textAt(arguments, 2)), part) -
                                    beginningsUpTo(CalendarDate::stored(textAt(arguments, 1)), part);
    if (difference > std::numeric_limits<std::int32_t>::max() ||
        difference < std::numeric_limits<std::int32_t>::min()) {
        throw errors::dateDifferenceOverflow();
    }
    return difference;
}

/// Weeks begun up to a date. 1900-01-01, day 0, was a Monday.
std::int64_t weeksUpTo(const CalendarDate& date, int firstDayOfWeek) {
    return floorDivide(date.days() - (firstDayOfWeek - 1), kDaysOfWeek);
}

std::int64_t dayOfWeek(const CalendarDate& date, int firstDayOfWeek) {
    const std::int64_t days = date.days() - (firstDayOfWeek - 1);
    return days - floorDivide(days, kDaysOfWeek) * kDaysOfWeek + 1;
}

Scalar datePart(FunctionContext& context, Arguments arguments) {
    const CalendarDate date = CalendarDate::stored(textAt(arguments, 1));
    CalendarDate newYear;
    newYear.year = date.year;
    const Part part = partOf(textAt(arguments, 0), "datepart");
    switch (part) {
    case Part::Quarter:
        return std::int64_t{(date.month - 1) / kMonthsOfQuarter + 1};
    case Part::Month:
        return std::int64_t{date.month};
    case Part::DayOfYear:
        return date.days() - newYear.days() + 1;
    case Part::Day:
        return std::int64_t{date.day};
    case Part::Week:
        return weeksUpTo(date, context.firstDayOfWeek) - weeksUpTo(newYear, context.firstDayOfWeek) + 1;
    case Part::WeekDay:
        return dayOfWeek(date, context.firstDayOfWeek);
    case Part::Hour:
        return std::int64_t{date.hour};
    case Part::Minute:
        return std::int64_t{date.minute};
    case Part::Second:
        return std::int64_t{date.second};
    case Part::Millisecond:
        return std::int64_t{date.millisecond};
    case Part::Year:
        break;
    }
    return std::int64_t{date.year};
}

template<int CalendarDate::*part>
Scalar partAlone(FunctionContext& /*context*/, Arguments arguments) {
    return std::int64_t{CalendarDate::stored(textAt(arguments, 0)).*part};
}

Scalar getDate(FunctionContext& context, Arguments /*arguments*/) {
    if (context.now.empty()) {
        context.now = currentTime();
    }
    return context.now;
}

Scalar isDate(FunctionContext& context, Arguments arguments) {
    const auto* text = std::get_if<std::string>(&arguments[0]);
    if (text == nullptr) {
        return std::int64_t{0};
    }
    try {
        toDateTime(*text, std::nullopt, context.dateOrder);
        return std::int64_t{!withoutTrailingBlanks(*text).empty()};
    } catch (const Error&) {
        return std::int64_t{0};
    }
}

constexpr FunctionRow kFunctions[] = {
    {"DATEADD", {kDatePart, kInt, kDate}, Result::DateTime, dateAdd},
    {"DATEDIFF", {kDatePart, kDate, kDate}, Result::Int, dateDiff},
    {"DATEPART", {kDatePart, kDate}, Result::Int, datePart},
    {"DAY", {kDate}, Result::Int, partAlone<&CalendarDate::day>},
    {"GETDATE", {}, Result::DateTime, getDate},
    {"ISDATE", {kAny}, Result::Int, isDate, kNullsTaken},
    {"MONTH", {kDate}, Result::Int, partAlone<&CalendarDate::month>},
    {"YEAR", {kDate}, Result::Int, partAlone<&CalendarDate::year>},
};

} // namespace

std::span<const FunctionRow> dateFunctions() {
    return kFunctions;
}

std::string currentTime() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::tm local = os::localTime(system_clock::to_time_t(now));
    CalendarDate date;
    date.year = local.tm_year + 1900;
    date.month = local.tm_mon + 1;
    date.day = local.tm_mday;
    date.hour = local.tm_hour;
    date.minute = local.tm_min;
    date.second = std::min(local.tm_sec, 59);
    date.millisecond = static_cast<int>(duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000);
    return CalendarDate::ofTicks(date.days(), date.ticks()).text();
}

} // namespace engine
