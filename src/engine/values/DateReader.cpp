#include "engine/values/DateReader.h"

#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"
#include "engine/values/DateCursor.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace engine {
namespace {

/// Reads a date and a time from a text; every refusal is 241, or 242 where a number is out of its range.
class Reader : DateCursor {
public:
    Reader(std::string_view text, DateOrder order) : DateCursor(text), order_(order) {}

    CalendarDate read() {
        skipBlanks();
        if (atEnd()) {
            return date_;
        }
        if (hasMonthName()) {
            readNamed();
            readTimeBehind();
        } else if (const DateNumber first = number(); isTimeBehindNumber()) {
            readTime(first);
        } else if (readNumbers(first)) {
            readInternationalTime();
        } else {
            readTimeBehind();
        }
        skipBlanks();
        if (!atEnd()) {
            refuse();
        }
        checkRanges();
        return date_;
    }

private:
    /// Behind a date: nothing, or a time behind a blank.
    void readTimeBehind() {
        const bool blank = takesBlank();
        skipBlanks();
        if (!atEnd()) {
            blank ? readTime(number()) : refuse();
        }
    }

    /// A name of three letters or more; a T or AM isn't one.
    bool hasMonthName() const {
        std::size_t run = 0;
        for (const char character : text_) {
            run = isLetter(character) ? run + 1 : 0;
            if (run == 3) {
                return true;
            }
        }
        return false;
    }

    /// Month by name, day and year around it in any order: the year has four digits or stands behind the day.
    void readNamed() {
        std::vector<DateNumber> numbers;
        bool named = false;
        while (numbers.size() + (named ? 1 : 0) < 3 && !atEnd()) {
            const std::size_t here = place_;
            if (isLetter(peek())) {
                if (named) {
                    refuse();
                }
                named = true;
                date_.month = month();
            } else {
                numbers.push_back(number());
                if (isTimeBehindNumber()) {
                    numbers.pop_back();
                    place_ = here;
                    break;
                }
            }
            skipBetween();
        }
        // The blank ahead of a time.
        while (place_ > 0 && text_[place_ - 1] == ' ') {
            --place_;
        }
        if (!named || numbers.empty()) {
            refuse();
        }
        const auto year = std::find_if(numbers.begin(), numbers.end(), [](DateNumber one) { return one.digits == 4; });
        if (year != numbers.end()) {
            date_.year = year->value;
            numbers.erase(year);
        } else if (numbers.size() == 2) {
            date_.year = yearOfShort(numbers.back());
            numbers.pop_back();
        } else {
            refuse();
        }
        if (!numbers.empty()) {
            date_.day = shortNumber(numbers.front());
        }
    }

    int month() {
        constexpr std::array<std::string_view, 12> kNames{"january",   "february", "march",    "april",
                                                          "may",       "june",     "july",     "august",
                                                          "september", "october",  "november", "december"};
        std::string name;
        while (isLetter(peek())) {
            name += smallLetter(text_[place_++]);
        }
        const auto* const found = std::find_if(kNames.begin(), kNames.end(), [&](std::string_view one) {
            return name == one || (name.size() == 3 && one.starts_with(name));
        });
        if (found == kNames.end()) {
            refuse();
        }
        return static_cast<int>(found - kNames.begin()) + 1;
    }

    /// True where a time must follow behind a `T`.
    bool readNumbers(DateNumber first) {
        if (!isSeparator(peek())) {
            readUnseparated(first);
            return peek() == 'T';
        }
        const char separator = text_[place_++];
        const DateNumber second = number();
        if (!isSeparator(peek())) {
            refuse();
        }
        ++place_;
        const DateNumber third = number();
        // The form with a T is the international one, whatever the order of the session.
        const bool international = separator == '-' && first.digits == 4 && peek() == 'T';
        if (international && (second.digits != 2 || third.digits != 2)) {
            refuse();
        }
        setDate(first, second, third, international ? DateOrder::YearMonthDay : order_);
        return international;
    }

    static bool isSeparator(char character) { return character == '/' || character == '-' || character == '.'; }

    void readUnseparated(DateNumber number) {
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

    void setDate(DateNumber first, DateNumber second, DateNumber third, DateOrder order) {
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

    void setMonthAndDay(DateNumber first, DateNumber second, bool dayFirst) {
        if (first.digits > 2 || second.digits > 2) {
            refuse();
        }
        date_.month = dayFirst ? second.value : first.value;
        date_.day = dayFirst ? first.value : second.value;
    }

    static int yearOfShort(DateNumber year) {
        if (year.digits > 2) {
            refuse();
        }
        return yearOfTwoDigits(year.value);
    }

    static int yearOfTwoDigits(int year) {
        constexpr int kLastOfThisCentury = 49;
        return year + (year <= kLastOfThisCentury ? 2000 : 1900);
    }

    /// All of it, two digits each: `T10:11:12.123`.
    void readInternationalTime() {
        takes('T');
        for (int* part : {&date_.hour, &date_.minute, &date_.second}) {
            const DateNumber two = number();
            if (two.digits != 2 || (part != &date_.second && !takes(':'))) {
                refuse();
            }
            *part = two.value;
        }
        if (takes('.')) {
            date_.millisecond = fraction(number());
        }
    }

    void readTime(DateNumber hour) {
        date_.hour = shortNumber(hour);
        if (peek() != ':') {
            if (!readHalfOfDay()) {
                refuse();
            }
            return;
        }
        takes(':');
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

    static int shortNumber(DateNumber number) {
        if (number.digits > 2) {
            refuse();
        }
        return number.value;
    }

    static int fraction(DateNumber number) {
        constexpr std::array<int, 4> kScales{0, 100, 10, 1};
        if (number.digits > 3) {
            refuse();
        }
        return number.value * kScales[static_cast<std::size_t>(number.digits)];
    }

    bool readHalfOfDay() {
        skipBlanks();
        const bool afternoon = takes('P') || takes('p');
        if (!afternoon && !takes('A') && !takes('a')) {
            return false;
        }
        if (!takes('M') && !takes('m')) {
            refuse();
        }
        if (date_.hour == 0 || date_.hour > 12) {
            throw errors::dateOutOfRange();
        }
        date_.hour = date_.hour % 12 + (afternoon ? 12 : 0);
        return true;
    }

    void checkRanges() const {
        const std::chrono::year_month_day day{std::chrono::year{date_.year},
                                              std::chrono::month{static_cast<unsigned>(date_.month)},
                                              std::chrono::day{static_cast<unsigned>(date_.day)}};
        if (!day.ok() || date_.hour > 23 || date_.minute > 59 || date_.second > 59 || date_.millisecond > 999) {
            throw errors::dateOutOfRange();
        }
    }

    DateOrder order_;
    CalendarDate date_;
};

} // namespace

CalendarDate readDate(std::string_view text, DateOrder order) {
    return Reader(text, order).read();
}

} // namespace engine
