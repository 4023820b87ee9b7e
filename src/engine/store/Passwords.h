#pragma once

#include <string>

namespace engine {

/// A salted hash that carries its own method and salt, for storing. Throws std::runtime_error where the system has
/// no such method.
std::string hashPassword(const std::string& password);
/// False for a text that can't be hashed, because of its length or a NUL in it.
bool passwordMatches(const std::string& password, const std::string& hash);

} // namespace engine
