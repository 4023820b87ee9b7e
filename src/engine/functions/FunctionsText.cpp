#include "engine/errors/FunctionErrors.h"
#include "engine/functions/FunctionRows.h"
#include "engine/values/Ascii.h"
#include "engine/values/Collation.h"
#include "engine/values/CollationCharacters.h"
#include "engine/values/Conversions.h"

#include <algorithm>
#include <cmath>

namespace engine {

namespace {

constexpr std::int64_t kUsualWidth = 10;

/// Byte offsets of the characters, the end last.
std::vector<std::size_t> offsetsOf(std::string_view text) {
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (startsCharacter(text[i])) {
            offsets.push_back(i);
        }
    }
    offsets.push_back(text.size());
    return offsets;
}

/// The characters from `first` to `last` - 1, as far as the text has them.
std::string slice(const std::string& text, std::int64_t first, std::int64_t last) {
    const auto offsets = offsetsOf(text);
    const auto size = static_cast<std::int64_t>(offsets.size()) - 1;
    first = std::clamp<std::int64_t>(first, 0, size);
    last = std::clamp<std::int64_t>(last, first, size);
    const std::size_t begin = offsets[static_cast<std::size_t>(first)];
    return text.substr(begin, offsets[static_cast<std::size_t>(last)] - begin);
}

void refuseNegative(std::int64_t length, const errors::ErrorText<>& refused) {
    if (length < 0) {
        throw refused();
    }
}

Scalar len(FunctionContext& /*context*/, Arguments arguments) {
    return static_cast<std::int64_t>(characters(withoutTrailingBlanks(textAt(arguments, 0))));
}

template<std::string (*map)(std::string_view)>
Scalar mapped(FunctionContext& /*context*/, Arguments arguments) {
    return map(textAt(arguments, 0));
}

Scalar leftTrim(FunctionContext& /*context*/, Arguments arguments) {
    const std::string& text = textAt(arguments, 0);
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first);
}

Scalar rightTrim(FunctionContext& /*context*/, Arguments arguments) {
    return std::string(withoutTrailingBlanks(textAt(arguments, 0)));
}

Scalar leftPart(FunctionContext& /*context*/, Arguments arguments) {
    refuseNegative(integerAt(arguments, 1), errors::invalidLengthOfPart);
    return slice(textAt(arguments, 0), 0, integerAt(arguments, 1));
}

Scalar rightPart(FunctionContext& /*context*/, Arguments arguments) {
    refuseNegative(integerAt(arguments, 1), errors::invalidLengthOfRight);
    const auto size = static_cast<std::int64_t>(characters(textAt(arguments, 0)));
    return slice(textAt(arguments, 0), size - integerAt(arguments, 1), size);
}

Scalar substring(FunctionContext& /*context*/, Arguments arguments) {
    refuseNegative(integerAt(arguments, 2), errors::invalidLengthOfPart);
    const std::int64_t first = integerAt(arguments, 1) - 1;
    return slice(textAt(arguments, 0), first, first + integerAt(arguments, 2));
}

Scalar reverse(FunctionContext& /*context*/, Arguments arguments) {
    const std::string& text = textAt(arguments, 0);
    const auto offsets = offsetsOf(text);
    std::string result;
    for (std::size_t i = offsets.size() - 1; i > 0; --i) {
        result += text.substr(offsets[i - 1], offsets[i] - offsets[i - 1]);
    }
    return result;
}

/// Place of the first character sequence that is `wanted` under the collation, from the character `start`; -1: none.
std::int64_t findText(std::string_view text, const std::vector<std::size_t>& offsets, std::string_view wanted,
                      std::size_t start) {
    const std::size_t length = characters(wanted);
    const std::string key = upper(wanted);
    for (std::size_t i = start; i + length < offsets.size(); ++i) {
        if (upper(text.substr(offsets[i], offsets[i + length] - offsets[i])) == key) {
            return static_cast<std::int64_t>(i);
        }
    }
    return -1;
}

Scalar charIndex(FunctionContext& /*context*/, Arguments arguments) {
    const std::string& wanted = textAt(arguments, 0);
    const std::int64_t start = arguments.size() > 2 ? std::max<std::int64_t>(integerAt(arguments, 2) - 1, 0) : 0;
    if (wanted.empty()) {
        return std::int64_t{0};
    }
    return findText(textAt(arguments, 1), offsetsOf(textAt(arguments, 1)), wanted, static_cast<std::size_t>(start)) + 1;
}

Scalar replace(FunctionContext& /*context*/, Arguments arguments) {
    const std::string& text = textAt(arguments, 0);
    const std::string& wanted = textAt(arguments, 1);
    if (wanted.empty()) {
        return text;
    }
    const auto offsets = offsetsOf(text);
    const std::size_t length = characters(wanted);
    std::string result;
    std::size_t done = 0;
    for (std::int64_t found = findText(text, offsets, wanted, 0); found >= 0;
         found = findText(text, offsets, wanted, done)) {
        const auto place = static_cast<std::size_t>(found);
        result += text.substr(offsets[done], offsets[place] - offsets[done]);
        result += textAt(arguments, 2);
        done = place + length;
    }
    return result + text.substr(offsets[done]);
}

Scalar replicated(const std::string& text, std::int64_t times) {
    if (times < 0) {
        return {};
    }
    constexpr std::size_t kMostBytes = std::size_t{4} * kLongestText; // what is too long is cut to its type later
    std::string result;
    while (times-- > 0 && !text.empty() && result.size() + text.size() <= kMostBytes) {
        result += text;
    }
    return result;
}

Scalar space(FunctionContext& /*context*/, Arguments arguments) {
    return replicated(" ", integerAt(arguments, 0));
}

Scalar replicate(FunctionContext& /*context*/, Arguments arguments) {
    return replicated(textAt(arguments, 0), integerAt(arguments, 1));
}

Scalar str(FunctionContext& /*context*/, Arguments arguments) {
    constexpr std::int64_t kMostDecimals = 16;
    const std::int64_t width = arguments.size() > 1 ? integerAt(arguments, 1) : kUsualWidth;
    const std::int64_t decimals = arguments.size() > 2 ? integerAt(arguments, 2) : 0;
    if (width < 0 || width > kLongestText || decimals < 0) {
        return {};
    }
    const int shown = static_cast<int>(std::min(decimals, kMostDecimals));
    const double number = numberAt(arguments, 0);
    const double scale = std::pow(10.0, shown);
    const double scaled = std::round(number * scale);
    std::string text = printed(std::isfinite(scaled) ? scaled / scale : number, std::chars_format::fixed, shown);
    const std::size_t whole = std::min(text.find('.'), text.size());
    const auto wide = static_cast<std::size_t>(width);
    if (whole > wide) {
        return std::string(wide, '*');
    }
    text.resize(std::min(text.size(), wide));
    return std::string(wide - text.size(), ' ') + text;
}

Scalar dataLength(FunctionContext& /*context*/, Arguments arguments) {
    const DataType type = decodeType(integerAt(arguments, 1));
    if (const auto* text = std::get_if<std::string>(&arguments[0]); text != nullptr && type.isText()) {
        return static_cast<std::int64_t>(characters(*text) * (type.isNational() ? 2 : 1));
    }
    constexpr std::array kBytes{8, 1, 1, 2, 4, 8, 0, 4}; // in the order of DataType::Kind
    if (type.kind != DataType::Kind::Decimal) {
        const auto place = static_cast<std::size_t>(type.kind);
        return std::int64_t{place < kBytes.size() ? kBytes[place] : kBytes[0]};
    }
    return std::int64_t{type.isMoney()         ? kMoneyLength
                        : type.precision <= 9  ? 5
                        : type.precision <= 19 ? 9
                        : type.precision <= 28 ? 13
                                               : 17};
}

constexpr FunctionRow kFunctions[] = {
    {"CHARINDEX", {kText, kText, optional(kInt)}, Result::Int, charIndex},
    {"DATALENGTH", {kTyped}, Result::Int, dataLength},
    {"LEFT", {kText, kInt}, Result::TextAsFirst, leftPart},
    {"LEN", {kText}, Result::Int, len},
    {"LOWER", {kText}, Result::TextAsFirst, mapped<lower>},
    {"LTRIM", {kText}, Result::TextAsFirst, leftTrim},
    {"REPLACE", {kText, kText, kText}, Result::LongText, replace},
    {"REPLICATE", {kText, kInt}, Result::LongText, replicate},
    {"REVERSE", {kText}, Result::TextAsFirst, reverse},
    {"RIGHT", {kText, kInt}, Result::TextAsFirst, rightPart},
    {"RTRIM", {kText}, Result::TextAsFirst, rightTrim},
    {"SPACE", {kInt}, Result::LongText, space},
    {"STR", {kFloat, optional(kInt), optional(kInt)}, Result::LongText, str},
    {"SUBSTRING", {kWritten, kInt, kInt}, Result::TextAsFirst, substring},
    {"UPPER", {kText}, Result::TextAsFirst, mapped<upper>},
};

} // namespace

std::span<const FunctionRow> textFunctions() {
    return kFunctions;
}

} // namespace engine
