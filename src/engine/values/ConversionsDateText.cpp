#include "engine/errors/ValueErrors.h"
#include "engine/values/CalendarDate.h"
#include "engine/values/Conversions.h"

#include <array>
#include <cstdio>

namespace engine {
namespace {

/// Y year, y the same or, of a style below 100, its last two digits, M month, N its name, D day, d the same filled with
/// a blank, H hour, h hour of the half day filled with a blank, m minute, s second, f millisecond, A half of the day;
/// everything else stands for itself.
struct StyleText {
    int style;
    const char* layout;
};

constexpr std::array kStyleTexts{
    StyleText{0, "N d Y h:mA"},     StyleText{1, "M/D/y"},          StyleText{2, "y.M.D"},
    StyleText{3, "D/M/y"},          StyleText{4, "D.M.y"},          StyleText{5, "D-M-y"},
    StyleText{6, "D N y"},          StyleText{7, "N D, y"},         StyleText{8, "H:m:s"},
    StyleText{9, "N d Y h:m:s:fA"}, StyleText{10, "M-D-y"},         StyleText{11, "y/M/D"},
    StyleText{12, "yMD"},           StyleText{13, "D N Y H:m:s:f"}, StyleText{14, "H:m:s:f"},
    StyleText{20, "Y-M-D H:m:s"},   StyleText{21, "Y-M-D H:m:s.f"},
};

constexpr int kInternationalStyle = 126;
constexpr std::array<const char*, 12> kMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

const char* layoutOf(int style, const CalendarDate& date) {
    if (style == kInternationalStyle) {
        return date.millisecond == 0 ? "Y-M-DTH:m:s" : "Y-M-DTH:m:s.f";
    }
    for (const StyleText& entry : kStyleTexts) {
        if (isStyle(entry.style, style)) {
            return entry.layout;
        }
    }
    throw errors::dateStyleOfText(style, "datetime");
}

std::string filled(int number, int width, char fill) {
    const std::string digits = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(width);
    return digits.size() < wanted ? std::string(wanted - digits.size(), fill) + digits : digits;
}

std::string piece(char letter, int style, const CalendarDate& date) {
    switch (letter) {
    case 'y':
        if (style < 100) {
            return filled(date.year % 100, 2, '0');
        }
        [[fallthrough]];
    case 'Y':
        return filled(date.year, 4, '0');
    case 'M':
        return filled(date.month, 2, '0');
    case 'N':
        return kMonthNames[static_cast<std::size_t>(date.month - 1)];
    case 'D':
        return filled(date.day, 2, '0');
    case 'd':
        return filled(date.day, 2, ' ');
    case 'H':
        return filled(date.hour, 2, '0');
    case 'h':
        return filled((date.hour + 11) % 12 + 1, 2, ' ');
    case 'm':
        return filled(date.minute, 2, '0');
    case 's':
        return filled(date.second, 2, '0');
    case 'f':
        return filled(date.millisecond, 3, '0');
    case 'A':
        return date.hour < 12 ? "AM" : "PM";
    default:
        return {letter};
    }
}

} // namespace

std::string dateText(std::string_view dateTime, std::optional<int> style) {
    const CalendarDate date = CalendarDate::stored(dateTime);
    std::string text;
    for (const char* letter = layoutOf(style.value_or(0), date); *letter != '\0'; ++letter) {
        text += piece(*letter, style.value_or(0), date);
    }
    return text;
}

} // namespace engine
