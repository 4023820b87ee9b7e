#pragma once

#include "engine/values/Decimal.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace engine {

inline constexpr int kMostPlaces = 22;
inline constexpr std::int64_t kBeyond = 1'000'000'000'000'000; // a digit more than is kept

/// Digits without their point, and how many of them stand behind it.
inline Decimal decimal(std::int64_t digits, int places) {
    std::string text = std::to_string(std::abs(digits));
    text.insert(0, std::max<std::size_t>(static_cast<std::size_t>(places) + 1, text.size()) - text.size(), '0');
    text.insert(text.size() - static_cast<std::size_t>(places), ".");
    return *Decimal::parse((digits < 0 ? "-" : "") + text, places);
}

} // namespace engine
