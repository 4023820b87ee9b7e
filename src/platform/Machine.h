#pragma once

// What the program needs from the operating system. Each system has one source file that implements it.

#include <filesystem>
#include <string>
#include <string_view>

namespace platform::machine {

/// The whole host name, domain included.
std::string hostName();
std::filesystem::path programFile();
/// The folder used as drive C: $VABO_DRIVE_C, or else `vabo/c` in the user's data folder.
std::filesystem::path driveC();

/// Replaces a file by these bytes, by default readable by its owner only, and returns when they are on the disk. A kill
/// or a power cut leaves the old file or the new one. Throws std::system_error.
void replaceFile(const std::filesystem::path& file, std::string_view bytes,
                 std::filesystem::perms permissions = std::filesystem::perms::owner_read |
                                                      std::filesystem::perms::owner_write);
/// Throws std::system_error.
void makePrivateFolder(const std::filesystem::path& folder);

} // namespace platform::machine
