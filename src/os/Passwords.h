#pragma once

#include <string>

namespace os {

/// A salted hash that carries its own method and salt, for storing: SHA-512-crypt ("$6$"), the same on every system.
/// Throws std::runtime_error where the system has no such method.
std::string hashPassword(const std::string& password);
/// False for a text that can't be hashed, because of its length or a NUL in it.
bool passwordMatches(const std::string& password, const std::string& hash);

} // namespace os
