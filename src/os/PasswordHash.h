#pragma once

#include <cstddef>
#include <string>

namespace os {

/// The longest password that can be hashed, in bytes.
inline constexpr std::size_t kLongestPassword = 511;

/// A setting with a new salt, "$6$<salt>". Throws std::runtime_error.
std::string newSetting();
/// The hash of a password with the setting that a setting or a hash begins with. Throws std::runtime_error.
std::string hashed(const std::string& password, const std::string& setting);

} // namespace os
