// Dates to texts and texts to dates, by the regional settings.

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "ado/Text.h"
#include "os/Machine.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <vector>

namespace ado {

namespace {

// The day of a time without a date.
constexpr std::int32_t kZeroDay = -25569;
constexpr int kMillisecondsOfSecond = 1000;

using Order = RegionalSettings::DateOrder;

std::optional<Date>& fixedToday() {
    static std::optional<Date> day;
    return day;
}

/// Line ends are no blanks here.
bool isSpace(char c) {
    return c == ' ' || c == '\t';
}

struct Piece {
    int number = 0;
    int digits = 0;
    char separator = 0; ///< the character after the number, 0 at the end
};

/// The numbers of a text and their separators. Blanks around a separator are ignored.
std::optional<std::vector<Piece>> pieces(std::string_view text) {
    std::vector<Piece> found;
    std::size_t at = 0;
    const auto skipBlanks = [&] {
        while (at < text.size() && isSpace(text[at])) {
            ++at;
        }
    };
    for (;;) {
        skipBlanks();
        Piece piece;
        for (; at < text.size() && isDigit(text[at]); ++at, ++piece.digits) {
            if (piece.digits == 4) {
                return std::nullopt;
            }
            piece.number = piece.number * 10 + (text[at] - '0');
        }
        if (piece.digits == 0) {
            return std::nullopt;
        }
        const std::size_t end = at;
        skipBlanks();
        if (at < text.size() && std::string_view("/-.:").find(text[at]) != std::string_view::npos) {
            piece.separator = text[at++];
        } else if (at < text.size() && at > end && isDigit(text[at])) {
            piece.separator = ' ';
        }
        found.push_back(piece);
        if (at == text.size()) {
            return piece.separator == 0 ? std::optional(found) : std::nullopt;
        }
        if (piece.separator == 0) {
            return std::nullopt;
        }
    }
}

std::optional<int> yearOf(const Piece& piece) {
    if (piece.digits >= 3) {
        return piece.number >= 100 ? std::optional(piece.number) : std::nullopt;
    }
    return piece.number <= 29 ? 2000 + piece.number : 1900 + piece.number;
}

std::optional<Date> dateOf(std::optional<int> year, const Piece& month, const Piece& day) {
    using namespace std::chrono;
    if (!year || month.digits > 2 || day.digits > 2) {
        return std::nullopt;
    }
    const year_month_day date(std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(month.number)),
                              std::chrono::day(static_cast<unsigned>(day.number)));
    if (!date.ok()) {
        return std::nullopt;
    }
    return Date{static_cast<std::int32_t>(sys_days(date).time_since_epoch().count()), 0};
}

std::optional<Date> inOrder(Order order, const Piece& a, const Piece& b, const Piece& c) {
    switch (order) {
    case Order::DayMonthYear:
        return dateOf(yearOf(c), b, a);
    case Order::MonthDayYear:
        return dateOf(yearOf(c), a, b);
    case Order::YearMonthDay:
        return dateOf(yearOf(a), b, c);
    }
    return std::nullopt;
}

/// Read in the order of the regional settings, or where that gives no existing date in the other orders.
std::optional<Date> fullDate(const Piece& a, const Piece& b, const Piece& c) {
    for (const Order order :
         {regionalSettings().dateOrder, Order::DayMonthYear, Order::MonthDayYear, Order::YearMonthDay}) {
        if (const auto date = inOrder(order, a, b, c)) {
            return date;
        }
    }
    return dateOf(yearOf(a), c, b);
}

/// Day and month of the current year, or else month and year, which give the month's first day.
std::optional<Date> shortDate(const Piece& a, const Piece& b) {
    const int year = today().year();
    const bool dayFirst = regionalSettings().dateOrder == Order::DayMonthYear;
    const Piece first{1, 1, 0};
    for (const auto& date :
         {dayFirst ? dateOf(year, b, a) : dateOf(year, a, b), dayFirst ? dateOf(year, a, b) : dateOf(year, b, a),
          dateOf(yearOf(b), a, first), dateOf(yearOf(a), b, first)}) {
        if (date) {
            return date;
        }
    }
    return std::nullopt;
}

bool dividedBy(const std::vector<Piece>& parts, std::size_t from, std::size_t to, std::string_view separators) {
    for (std::size_t i = from; i + 1 < to; ++i) {
        if (separators.find(parts[i].separator) == std::string_view::npos) {
            return false;
        }
    }
    return true;
}

enum class Half { None, Morning, Afternoon };

std::optional<std::int32_t> timeOf(const std::vector<Piece>& parts, std::size_t from, Half half) {
    const std::size_t count = parts.size() - from;
    if (count > 3 || (count < 2 && half == Half::None) || !dividedBy(parts, from, parts.size(), ":.")) {
        return std::nullopt;
    }
    std::array<int, 3> units{};
    for (std::size_t i = 0; i < count; ++i) {
        if (parts[from + i].digits > 2) {
            return std::nullopt;
        }
        units[i] = parts[from + i].number;
    }
    auto& [hour, minute, second] = units;
    if (half != Half::None) {
        if (hour > 12) {
            return std::nullopt;
        }
        hour = hour % 12 + (half == Half::Afternoon ? 12 : 0);
    }
    if (hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    return ((hour * 60 + minute) * 60 + second) * kMillisecondsOfSecond;
}

std::optional<Date> dateAlone(const std::vector<Piece>& parts, std::size_t count) {
    if (!dividedBy(parts, 0, count, "/-. ")) {
        return std::nullopt;
    }
    if (count == 3) {
        return fullDate(parts[0], parts[1], parts[2]);
    }
    return count == 2 ? shortDate(parts[0], parts[1]) : std::nullopt;
}

std::optional<Date> dateAndTime(const std::vector<Piece>& parts, Half half) {
    for (const std::size_t count : {std::size_t{3}, std::size_t{2}}) {
        if (parts.size() <= count || parts[count - 1].separator != ' ') {
            continue;
        }
        auto date = dateAlone(parts, count);
        const auto time = timeOf(parts, count, half);
        if (!date || !time) {
            continue;
        }
        date->millisecond = *time;
        return date;
    }
    return std::nullopt;
}

/// Replaces a month's name by its number with separators around it. True where there was a name.
void spellOutMonth(std::string& text) {
    static constexpr std::array<std::string_view, 12> kMonths = {"gennaio",   "febbraio", "marzo",    "aprile",
                                                                 "maggio",    "giugno",   "luglio",   "agosto",
                                                                 "settembre", "ottobre",  "novembre", "dicembre"};
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto begin = std::ranges::find_if(text, isLetter);
    const auto end = std::find_if_not(begin, text.end(), isLetter);
    const std::string_view word(begin, end);
    for (std::size_t month = 0; month < kMonths.size(); ++month) {
        if (word == kMonths[month] || word == kMonths[month].substr(0, 3)) {
            text.replace(begin, end, " " + std::to_string(month + 1) + " ");
            return;
        }
    }
}

Half takeHalf(std::string& text) {
    for (const auto& [word, half] : {std::pair{"am", Half::Morning}, std::pair{"pm", Half::Afternoon}}) {
        if (text.ends_with(word)) {
            text.resize(text.size() - 2);
            return half;
        }
    }
    return Half::None;
}

std::string padded(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string formatTime(std::int32_t millisecond) {
    const int seconds = millisecond / kMillisecondsOfSecond;
    return padded(seconds / 3600, 2) + ":" + padded(seconds / 60 % 60, 2) + ":" + padded(seconds % 60, 2);
}

std::string formatDay(Date date) {
    const RegionalSettings& settings = regionalSettings();
    const std::string day = padded(date.dayOfMonth(), 2), month = padded(date.month(), 2);
    const std::string year = padded(date.year(), 4);
    const std::string divider(1, settings.dateSeparator);
    switch (settings.dateOrder) {
    case Order::MonthDayYear:
        return month + divider + day + divider + year;
    case Order::YearMonthDay:
        return year + divider + month + divider + day;
    case Order::DayMonthYear:
        break;
    }
    return day + divider + month + divider + year;
}

} // namespace

Date today() {
    if (fixedToday()) {
        return *fixedToday();
    }
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm local = os::localTime(now);
    return Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

void setToday(std::optional<Date> day) {
    fixedToday() = day;
}

std::optional<Date> parseDate(std::string_view text) {
    std::string plain = lowered(text);
    const Half half = takeHalf(plain);
    spellOutMonth(plain);
    const auto parts = pieces(plain);
    if (!parts) {
        return std::nullopt;
    }
    if (const auto time = timeOf(*parts, 0, half)) {
        return Date{kZeroDay, *time};
    }
    if (const auto date = dateAndTime(*parts, half)) {
        return date;
    }
    return half == Half::None ? dateAlone(*parts, parts->size()) : std::nullopt;
}

std::string formatDate(Date date) {
    if (date.day == kZeroDay) {
        return formatTime(date.millisecond);
    }
    return date.millisecond == 0 ? formatDay(date) : formatDay(date) + " " + formatTime(date.millisecond);
}

} // namespace ado
