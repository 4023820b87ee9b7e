#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

/// The server's datetime taken to pieces. In storage it is the text `YYYY-MM-DD hh:mm:ss.mmm`.
struct CalendarDate {
    int year = 1900, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0, millisecond = 0;

    /// Of a text in storage, which is trusted.
    static CalendarDate stored(std::string_view text);
    /// Ticks are thirds of a hundredth of a second. Throws 242 outside 1753 to 9999.
    static CalendarDate ofTicks(std::int64_t days, std::int64_t ticks);

    /// Days since 1900-01-01; the date must exist.
    std::int64_t days() const;
    /// Of the day, rounded: the server keeps .000, .003, .007.
    std::int64_t ticks() const;
    std::string text() const;
};

constexpr std::int64_t ticksOfSecond = 300;
constexpr std::int64_t ticksOfDay = ticksOfSecond * 60 * 60 * 24;

} // namespace engine
