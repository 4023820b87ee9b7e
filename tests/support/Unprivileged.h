#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace support {

/// Runs `work` in a child process that permission bits bind, even where the tests run as root: there the child is
/// another user, to whom `tree` is given. Gives back what `work` gave, or how the child died.
std::string unprivileged(const std::filesystem::path& tree, const std::function<std::string()>& work);

} // namespace support
