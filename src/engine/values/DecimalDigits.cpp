#include "engine/values/DecimalDigits.h"

#include "engine/values/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace engine {
namespace {

constexpr int kSignificantDigits = 15;
constexpr std::size_t kLongestDouble = 400; // digits of the largest one, written out

/// Adds one to the last digit; true when it carries out of the first.
bool increment(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return false;
        }
        *digit = '0';
    }
    return true;
}

} // namespace

std::optional<DecimalDigits> DecimalDigits::parse(std::string_view text) {
    DecimalDigits digits;
    digits.negative_ = text.starts_with('-');
    if (digits.negative_ || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const std::size_t point = text.find('.');
    digits.whole_ = text.substr(0, point);
    if (point != std::string_view::npos) {
        digits.fraction_ = text.substr(point + 1);
    }
    if (digits.whole_.empty() && digits.fraction_.empty()) {
        return std::nullopt;
    }
    if (!isAllDigits(digits.whole_) || !isAllDigits(digits.fraction_)) {
        return std::nullopt;
    }
    digits.dropLeadingZeros();
    return digits;
}

DecimalDigits DecimalDigits::of(double number, int scale) {
    std::array<char, kLongestDouble> buffer{};
    const double size = std::abs(number);
    const int whole = size < 1 ? 1 : static_cast<int>(std::log10(size)) + 1;
    std::to_chars_result written{};
    if (whole + scale < kSignificantDigits) {
        written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed,
                                kSignificantDigits - whole);
    } else {
        written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    }
    return *parse({buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data())});
}

void DecimalDigits::roundTo(int scale) {
    const auto places = static_cast<std::size_t>(scale);
    if (fraction_.size() <= places) {
        fraction_.resize(places, '0');
        return;
    }
    const bool up = fraction_[places] >= '5';
    fraction_.resize(places);
    if (up && increment(fraction_) && increment(whole_)) {
        whole_.insert(whole_.begin(), '1');
    }
}

double DecimalDigits::value() const {
    const std::string digits = text();
    double number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::string DecimalDigits::text() const {
    std::string text = whole_.empty() ? "0" : whole_;
    if (!fraction_.empty()) {
        text += '.' + fraction_;
    }
    const bool zero = text.find_first_not_of("0.") == std::string::npos;
    return negative_ && !zero ? '-' + text : text;
}

void DecimalDigits::dropLeadingZeros() {
    whole_.erase(0, std::min(whole_.find_first_not_of('0'), whole_.size()));
}

} // namespace engine
