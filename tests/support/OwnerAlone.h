#pragma once

#include <filesystem>

namespace support {

/// Whether the owner of a file or folder has every right to it that one needs, and nobody else any.
bool isForOwnerAlone(const std::filesystem::path& path);

} // namespace support
