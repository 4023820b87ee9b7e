#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace support {

/// Runs `work` in a child process whose access is limited by file permissions, also where the tests run as root: the
/// child then runs as another user, who gets `tree`. Returns the result of `work`, or how the child ended. Throws
/// std::logic_error where the system doesn't offer it (see Capabilities.h).
std::string unprivileged(const std::filesystem::path& tree, const std::function<std::string()>& work);

} // namespace support
