#pragma once

// What the system knows of the machine, the process and the user.

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace os {

/// The whole host name, domain included. Empty where the system doesn't tell.
std::string hostName();
std::int64_t processNumber();
std::filesystem::path programFile();
/// Becomes another program, with the arguments that stand behind its name in this one's. Returns only where that isn't
/// possible, with the reason.
std::error_code become(const std::filesystem::path& program, const std::vector<std::string>& arguments);
/// The folder used as drive C: $VABO_DRIVE_C, or else the drive itself where the system has one, or `vabo/c` in the
/// user's data folder.
std::filesystem::path driveC();
std::tm localTime(std::time_t time);
/// Writing beyond the limit for the size of a file fails from now on like writing to a full disk, and doesn't end the
/// process.
void refuseTooLargeFiles();

} // namespace os
