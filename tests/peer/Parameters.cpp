#include "peer/Parameters.h"

#include "engine/values/CodePage.h"
#include "peer/WireTypes.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace peer {

namespace {

struct InvalidValue {};
struct UnknownType {};

std::string floatText(double number) {
    if (!std::isfinite(number)) {
        throw InvalidValue();
    }
    char digits[40];
    std::string text(digits,
                     std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::scientific).ptr);
    return text;
}

/// A decimal's bytes: 1 for positive, then its digits as a binary number.
std::string decimalText(const Bytes& bytes, int precision, int scale) {
    Bytes rest(bytes.rbegin(), bytes.rend() - 1); // the highest byte first
    std::string digits;
    while (std::any_of(rest.begin(), rest.end(), [](std::uint8_t byte) { return byte != 0; })) {
        unsigned carried = 0;
        for (std::uint8_t& byte : rest) {
            const unsigned present = carried * 256 + byte;
            byte = static_cast<std::uint8_t>(present / 10);
            carried = present % 10;
        }
        digits.insert(digits.begin(), static_cast<char>('0' + carried));
    }
    if (static_cast<int>(digits.size()) > precision || scale > precision) {
        throw InvalidValue();
    }
    const auto places = static_cast<std::size_t>(scale);
    digits.insert(0, digits.size() > places ? 0 : places + 1 - digits.size(), '0');
    if (scale > 0) {
        digits.insert(digits.size() - places, ".");
    }
    return (bytes[0] == 1 ? "" : "-") + digits;
}

std::string moneyText(std::int64_t units) {
    const std::uint64_t size = units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
    char text[40];
    std::snprintf(text, sizeof text, "%s%llu.%04llu", units < 0 ? "-" : "",
                  static_cast<unsigned long long>(size / 10000), static_cast<unsigned long long>(size % 10000));
    return text;
}

/// `days` count from 1900-01-01.
std::string dateText(std::int64_t days, std::int64_t milliseconds) {
    using namespace std::chrono;
    constexpr std::int64_t kFirst = -53690, kLast = 2958463; // 1753-01-01 and 9999-12-31
    if (days < kFirst || days > kLast || milliseconds < 0 || milliseconds >= 86'400'000) {
        throw InvalidValue();
    }
    const year_month_day date{sys_days{year{1900} / January / 1} + std::chrono::days{days}};
    char text[40];
    std::snprintf(text, sizeof text, "%04d%02u%02u %02d:%02d:%02d.%03d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(milliseconds / 3'600'000), static_cast<int>(milliseconds / 60'000 % 60),
                  static_cast<int>(milliseconds / 1000 % 60), static_cast<int>(milliseconds % 1000));
    return text;
}

/// A date of three bytes counts from the year 1.
std::int64_t daysOf(ByteReader& in) {
    constexpr std::int64_t kDaysBefore1900 = 693595;
    const std::int64_t low = in.u16();
    return low + (std::int64_t{in.u8()} << 16) - kDaysBefore1900;
}

std::string temporalText(const WireType& type, const Bytes& bytes) {
    ByteReader in(bytes);
    if (type.kind == WireKind::Date) {
        return dateText(daysOf(in), 0);
    }
    if (type.kind == WireKind::DateTime2) {
        std::int64_t units = 0;
        for (std::size_t i = 0; i + 3 < bytes.size(); ++i) {
            units |= std::int64_t{in.u8()} << (8 * i);
        }
        const double seconds = static_cast<double>(units) / std::pow(10.0, type.scale);
        return dateText(daysOf(in), static_cast<std::int64_t>(seconds * 1000));
    }
    if (bytes.size() == 4) {
        const std::int64_t days = in.u16();
        return dateText(days, in.u16() * 60'000LL);
    }
    const auto days = static_cast<std::int32_t>(in.u32());
    return dateText(days, (std::int64_t{in.u32()} * 10 + 1) / 3);
}

void setNumber(Parameter& parameter, std::string text) {
    parameter.constant = text;
    parameter.text = std::move(text);
}

void setText(Parameter& parameter, bool national, std::string text) {
    std::string quoted = national ? "N'" : "'";
    for (const char c : text) {
        quoted += c == '\'' ? "''" : std::string(1, c);
    }
    parameter.constant = quoted + "'";
    parameter.text = std::move(text);
}

void setValue(Parameter& parameter, const WireType& type, const Bytes& bytes) {
    if (!lengthFits(type, bytes.size())) {
        throw InvalidValue();
    }
    ByteReader in(bytes);
    switch (type.kind) {
    case WireKind::Integer:
        setNumber(parameter, bytes.size() == 1   ? std::to_string(in.u8())
                             : bytes.size() == 2 ? std::to_string(static_cast<std::int16_t>(in.u16()))
                             : bytes.size() == 4 ? std::to_string(static_cast<std::int32_t>(in.u32()))
                                                 : std::to_string(static_cast<std::int64_t>(in.u64())));
        return;
    case WireKind::Bit:
        setNumber(parameter, in.u8() != 0 ? "1" : "0");
        return;
    case WireKind::Float:
        setNumber(parameter, bytes.size() == 4 ? floatText(std::bit_cast<float>(in.u32()))
                                               : floatText(std::bit_cast<double>(in.u64())));
        return;
    case WireKind::Money: {
        const auto first = static_cast<std::int32_t>(in.u32()); // of eight bytes the higher half stands first
        setNumber(parameter, moneyText(bytes.size() == 4 ? first : std::int64_t{first} * (1LL << 32) + in.u32()));
        return;
    }
    case WireKind::Decimal:
        setNumber(parameter, decimalText(bytes, type.precision, type.scale));
        return;
    case WireKind::DateTime:
    case WireKind::Date:
    case WireKind::DateTime2:
        setText(parameter, false, temporalText(type, bytes));
        return;
    case WireKind::Text:
        setText(parameter, false, engine::fromCodePage({reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
        return;
    case WireKind::NationalText:
        setText(parameter, true, in.ucs2(bytes.size() / 2));
        return;
    case WireKind::Binary:
    case WireKind::Null:
        throw UnknownType(); // the dialect writes no constants of bytes
    }
}

} // namespace

Parameter readParameter(ByteReader& in, int ordinal) {
    constexpr std::uint8_t kByReference = 1, kDefault = 2;
    Parameter parameter;
    parameter.name = in.ucs2(in.u8());
    const std::uint8_t status = in.u8();
    parameter.byReference = (status & kByReference) != 0;
    parameter.isDefault = (status & kDefault) != 0;
    const std::size_t begin = in.place();
    WireType type;
    WireValue value;
    try {
        if (!readTyped(in, type, value)) {
            throw UnknownType();
        }
        const auto typed = in.at(begin, in.place() - begin);
        parameter.raw = Bytes(typed.begin(), typed.end());
        parameter.type = typeName(type);
        if (value) {
            setValue(parameter, type, *value);
        }
    } catch (const UnknownType&) {
        char digits[8];
        std::snprintf(digits, sizeof digits, "%02X", type.token);
        throw kUnknownType(ordinal, parameter.name, digits);
    } catch (const InvalidValue&) {
        throw kInvalidValue(ordinal, parameter.name, parameter.type);
    }
    return parameter;
}

} // namespace peer
