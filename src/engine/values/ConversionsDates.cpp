#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"
#include "engine/values/CalendarDate.h"
#include "engine/values/Conversions.h"

#include <array>
#include <chrono>
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
    StyleOrder{100, {}},
    StyleOrder{9, {}},
    StyleOrder{109, {}},
    StyleOrder{1, kMonthFirst},
    StyleOrder{101, kMonthFirst},
    StyleOrder{10, kMonthFirst},
    StyleOrder{110, kMonthFirst},
    StyleOrder{2, kYearFirst},
    StyleOrder{102, kYearFirst},
    StyleOrder{11, kYearFirst},
    StyleOrder{111, kYearFirst},
    StyleOrder{12, kYearFirst},
    StyleOrder{112, kYearFirst},
    StyleOrder{20, kYearFirst},
    StyleOrder{120, kYearFirst},
    StyleOrder{21, kYearFirst},
    StyleOrder{121, kYearFirst},
    StyleOrder{126, kYearFirst},
    StyleOrder{3, kDayFirstOrder},
    StyleOrder{103, kDayFirstOrder},
    StyleOrder{4, kDayFirstOrder},
    StyleOrder{104, kDayFirstOrder},
    StyleOrder{5, kDayFirstOrder},
    StyleOrder{105, kDayFirstOrder},
};

DateOrder orderOf(std::optional<int> style, DateOrder session) {
    if (!style) {
        return session;
    }
    for (const StyleOrder& entry : kStyleOrders) {
        if (entry.style == *style) {
            return entry.order.value_or(session);
        }
    }
    throw errors::dateStyleFromText(*style);
}

struct Number {
    int value = 0;
    int digits = 0;
};

/// Reads a date and a time from a text; every refusal is 241, or 242 where a number is out of its range.
class Reader {
public:
    Reader(std::string_view text, DateOrder order) : text_(text), order_(order) {}

    CalendarDate read() {
        skipBlanks();
        if (atEnd()) {
            return date_;
        }
        const Number first = number();
        if (peek() == ':') {
            readTime(first);
        } else {
            const bool marked = readDate(first);
            const bool time = marked ? takes('T') : takesBlank();
            skipBlanks();
            if (marked && time) {
                readTime(number());
            } else if (!atEnd()) {
                time ? readTime(number()) : refuse();
            }
        }
        skipBlanks();
        if (!atEnd()) {
            refuse();
        }
        checkRanges();
        return date_;
    }

private:
    [[noreturn]] static void refuse() { throw errors::dateConversion(); }

    bool atEnd() const { return place_ == text_.size(); }
    char peek() const { return atEnd() ? '\0' : text_[place_]; }
    bool takes(char wanted) {
        const bool found = peek() == wanted;
        place_ += found ? 1 : 0;
        return found;
    }
    bool takesBlank() { return takes(' '); }
    void skipBlanks() {
        while (takesBlank()) {
        }
    }

    Number number() {
        constexpr int kLongest = 8;
        Number number;
        while (isDigit(peek())) {
            number.value = number.value * 10 + (text_[place_++] - '0');
            if (++number.digits > kLongest) {
                refuse();
            }
        }
        if (number.digits == 0) {
            refuse();
        }
        return number;
    }

    /// True where a time may follow behind a `T`.
    bool readDate(Number first) {
        if (!isSeparator(peek())) {
            readUnseparated(first);
            return peek() == 'T';
        }
        const char separator = text_[place_++];
        const Number second = number();
        if (!isSeparator(peek())) {
            refuse();
        }
        ++place_;
        const Number third = number();
        // The form with a T is the international one, whatever the order of the session.
        const bool international = separator == '-' && first.digits == 4 && peek() == 'T';
        setDate(first, second, third, international ? DateOrder::YearMonthDay : order_);
        return international;
    }

    static bool isSeparator(char character) { return character == '/' || character == '-' || character == '.'; }

    void readUnseparated(Number number) {
        switch (number.digits) {
        case 8:
            date_.year = number.value / 10000;
            break;
        case 6:
            date_.year = yearOfTwoDigits(number.value / 10000);
            break;
        case 4:
            date_.year = number.value;
            return;
        default:
            refuse();
        }
        date_.month = number.value / 100 % 100;
        date_.day = number.value % 100;
    }

    void setDate(Number first, Number second, Number third, DateOrder order) {
        if (second.digits > 2) {
            refuse();
        }
        if (first.digits == 4) {
            date_.year = first.value;
            setMonthAndDay(second, third, order == DateOrder::DayMonthYear);
        } else if (third.digits == 4) {
            date_.year = third.value;
            setMonthAndDay(first, second, order == DateOrder::DayMonthYear);
        } else if (order == DateOrder::YearMonthDay) {
            date_.year = yearOfShort(first);
            setMonthAndDay(second, third, false);
        } else {
            date_.year = yearOfShort(third);
            setMonthAndDay(first, second, order == DateOrder::DayMonthYear);
        }
    }

    void setMonthAndDay(Number first, Number second, bool dayFirst) {
        if (first.digits > 2 || second.digits > 2) {
            refuse();
        }
        date_.month = dayFirst ? second.value : first.value;
        date_.day = dayFirst ? first.value : second.value;
    }

    static int yearOfShort(Number year) {
        if (year.digits > 2) {
            refuse();
        }
        return yearOfTwoDigits(year.value);
    }

    static int yearOfTwoDigits(int year) {
        constexpr int kLastOfThisCentury = 49;
        return year + (year <= kLastOfThisCentury ? 2000 : 1900);
    }

    void readTime(Number hour) {
        date_.hour = shortNumber(hour);
        if (!takes(':')) {
            refuse();
        }
        date_.minute = shortNumber(number());
        if (takes(':')) {
            date_.second = shortNumber(number());
            if (takes('.')) {
                date_.millisecond = fraction(number());
            } else if (takes(':')) {
                date_.millisecond = number().value;
            }
        }
        readHalfOfDay();
    }

    static int shortNumber(Number number) {
        if (number.digits > 2) {
            refuse();
        }
        return number.value;
    }

    static int fraction(Number number) {
        constexpr std::array<int, 4> kScales{0, 100, 10, 1};
        if (number.digits > 3) {
            refuse();
        }
        return number.value * kScales[static_cast<std::size_t>(number.digits)];
    }

    void readHalfOfDay() {
        skipBlanks();
        const bool afternoon = takes('P') || takes('p');
        if (!afternoon && !takes('A') && !takes('a')) {
            return;
        }
        if (!takes('M') && !takes('m')) {
            refuse();
        }
        if (date_.hour == 0 || date_.hour > 12) {
            throw errors::dateOutOfRange();
        }
        date_.hour = date_.hour % 12 + (afternoon ? 12 : 0);
    }

    void checkRanges() const {
        const std::chrono::year_month_day day{std::chrono::year{date_.year},
                                              std::chrono::month{static_cast<unsigned>(date_.month)},
                                              std::chrono::day{static_cast<unsigned>(date_.day)}};
        if (!day.ok() || date_.hour > 23 || date_.minute > 59 || date_.second > 59 || date_.millisecond > 999) {
            throw errors::dateOutOfRange();
        }
    }

    std::string_view text_;
    DateOrder order_;
    std::size_t place_ = 0;
    CalendarDate date_;
};

} // namespace

std::string toDateTime(std::string_view text, std::optional<int> style, DateOrder order) {
    const CalendarDate date = Reader(text, orderOf(style, order)).read();
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
