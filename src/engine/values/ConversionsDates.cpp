#include "engine/errors/ValueErrors.h"
#include "engine/values/CalendarDate.h"
#include "engine/values/Conversions.h"
#include "engine/values/DateReader.h"

#include <array>
#include <cmath>

namespace engine {
namespace {

struct StyleOrder {
    int style;
    std::optional<DateOrder> order; ///< none: the order of the session
};

constexpr auto kYearFirst = DateOrder::YearMonthDay;
constexpr auto kMonthFirst = DateOrder::MonthDayYear;
constexpr auto kDayFirstOrder = DateOrder::DayMonthYear;

/// How a style that reads a text orders its numbers; a year of two digits may stand wherever one of four does.
constexpr std::array kStyleOrders{
    StyleOrder{0, {}},
    StyleOrder{9, {}},
    StyleOrder{1, kMonthFirst},
    StyleOrder{10, kMonthFirst},
    StyleOrder{2, kYearFirst},
    StyleOrder{11, kYearFirst},
    StyleOrder{12, kYearFirst},
    StyleOrder{20, kYearFirst},
    StyleOrder{21, kYearFirst},
    StyleOrder{126, kYearFirst},
    StyleOrder{3, kDayFirstOrder},
    StyleOrder{4, kDayFirstOrder},
    StyleOrder{5, kDayFirstOrder},
};

DateOrder orderOf(std::optional<int> style, DateOrder session) {
    if (!style) {
        return session;
    }
    for (const StyleOrder& entry : kStyleOrders) {
        if (isStyle(entry.style, *style)) {
            return entry.order.value_or(session);
        }
    }
    throw errors::dateStyleFromText(*style);
}

} // namespace

std::string toDateTime(std::string_view text, std::optional<int> style, DateOrder order) {
    const CalendarDate date = readDate(text, orderOf(style, order));
    return CalendarDate::ofTicks(date.days(), date.ticks()).text();
}

std::string toDateTime(double days) {
    constexpr double kFarthest = 4e6; // well outside the range of years, well inside an integer's
    if (!(std::abs(days) < kFarthest)) {
        throw errors::conversionOverflow("expression", "datetime");
    }
    const double whole = std::floor(days);
    const auto ticks = std::llround((days - whole) * static_cast<double>(kTicksOfDay));
    return CalendarDate::ofTicks(static_cast<std::int64_t>(whole), ticks).text();
}

double daysOf(std::string_view dateTime) {
    const CalendarDate date = CalendarDate::stored(dateTime);
    return static_cast<double>(date.days()) + static_cast<double>(date.ticks()) / static_cast<double>(kTicksOfDay);
}

} // namespace engine
