#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

/// The parts of the server's datetime. In storage it is the text `YYYY-MM-DD hh:mm:ss.mmm`.
struct CalendarDate {
    int year = 1900, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0, millisecond = 0;

    /// Reads a text as the storage has it, without checking it.
    static CalendarDate stored(std::string_view text);
    /// Days since 1900-01-01 and ticks, 300 a second. Throws 242 outside the years 1753 to 9999.
    static CalendarDate ofTicks(std::int64_t days, std::int64_t ticks);

    /// Days since 1900-01-01; the date must exist.
    std::int64_t days() const;
    /// Ticks since midnight, rounded: the server keeps milliseconds that end in 0, 3 and 7.
    std::int64_t ticks() const;
    std::string text() const;
};

constexpr std::int64_t kTicksOfSecond = 300;
constexpr std::int64_t kTicksOfDay = kTicksOfSecond * 60 * 60 * 24;

} // namespace engine
