#pragma once

#include <string>

namespace engine {

/// A salted hash that carries its own method and salt, for storing. Throws std::runtime_error where the system has
/// no such method.
std::string hashPassword(const std::string& password);
/// A text that can't be hashed, for its length or a NUL in it, is nobody's password.
bool passwordMatches(const std::string& password, const std::string& hash);

} // namespace engine
