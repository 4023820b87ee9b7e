#include "engine/values/CalendarDate.h"

#include "engine/errors/ValueErrors.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace engine {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::sys_days kEpoch{1900y / 1 / 1};
constexpr std::int64_t kFirstDay = (std::chrono::sys_days{1753y / 1 / 1} - kEpoch).count();
constexpr std::int64_t kLastDay = (std::chrono::sys_days{9999y / 12 / 31} - kEpoch).count();

int number(std::string_view text, std::size_t place, std::size_t length) {
    int value = 0;
    if (text.size() >= place + length) {
        std::from_chars(text.data() + place, text.data() + place + length, value);
    }
    return value;
}

} // namespace

CalendarDate CalendarDate::stored(std::string_view text) {
    return {number(text, 0, 4),  number(text, 5, 2),  number(text, 8, 2), number(text, 11, 2),
            number(text, 14, 2), number(text, 17, 2), number(text, 20, 3)};
}

CalendarDate CalendarDate::ofTicks(std::int64_t days, std::int64_t ticks) {
    days += ticks / kTicksOfDay;
    ticks %= kTicksOfDay;
    if (ticks < 0) {
        ticks += kTicksOfDay;
        --days;
    }
    if (days < kFirstDay || days > kLastDay) {
        throw errors::dateOutOfRange();
    }
    const std::chrono::year_month_day date{kEpoch + std::chrono::days{days}};
    const auto seconds = static_cast<int>(ticks / kTicksOfSecond);
    const auto rest = static_cast<int>(ticks % kTicksOfSecond);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60,
            (rest * 10 + 1) / 3};
}

std::int64_t CalendarDate::days() const {
    const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    return (std::chrono::sys_days{date} - kEpoch).count();
}

std::int64_t CalendarDate::ticks() const {
    const std::int64_t seconds = (hour * 60 + minute) * 60 + second;
    return seconds * kTicksOfSecond + (millisecond * 3 + 5) / 10;
}

std::string CalendarDate::text() const {
    std::array<char, 96> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02d %02d:%02d:%02d.%03d", year, month, day, hour, minute,
                  second, millisecond);
    return buffer.data();
}

} // namespace engine
