#include "ado/Value.h"

#include "ado/Error.h"

#include <array>
#include <chrono>
#include <cmath>

namespace ado {

namespace {

std::chrono::year_month_day calendarDay(std::int32_t day) {
    return std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(day)));
}

bool within(int value, int low, int high) {
    return value >= low && value <= high;
}

} // namespace

Date Date::of(int year, int month, int day, int hour, int minute, int second, int millisecond) {
    using namespace std::chrono;
    const year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day)));
    const bool timeExists =
        within(hour, 0, 23) && within(minute, 0, 59) && within(second, 0, 59) && within(millisecond, 0, 999);
    if (!within(year, 1, 9999) || !within(month, 1, 12) || !within(day, 1, 31) || !date.ok() || !timeExists) {
        throw Error(kTypeMismatch);
    }
    return {static_cast<std::int32_t>(sys_days(date).time_since_epoch().count()),
            ((hour * 60 + minute) * 60 + second) * 1000 + millisecond};
}

Date Date::rolling(int year, int month, int day) {
    using namespace std::chrono;
    const int months = month - 1;
    const int years = months >= 0 ? months / 12 : -((11 - months) / 12);
    const Date first = of(year + years, months - years * 12 + 1, 1);
    return {first.day + day - 1, 0};
}

int Date::year() const {
    return static_cast<int>(calendarDay(day).year());
}
int Date::month() const {
    return static_cast<int>(static_cast<unsigned>(calendarDay(day).month()));
}
int Date::dayOfMonth() const {
    return static_cast<int>(static_cast<unsigned>(calendarDay(day).day()));
}

double Decimal::toDouble() const {
    static constexpr std::array<double, 19> kPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                                       1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
    const auto number = static_cast<double>(unscaled);
    if (scale >= 0 && scale < static_cast<int>(kPowers.size())) {
        return number / kPowers[static_cast<std::size_t>(scale)];
    }
    return number / std::pow(10.0, scale);
}

} // namespace ado
