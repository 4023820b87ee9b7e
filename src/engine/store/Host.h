#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <string>

namespace engine {

/// What the operating system knows of the machine and the process.
std::string hostName();
std::int64_t processNumber();
/// Writing beyond the limit for the size of a file fails from now on like writing to a full disk, and doesn't end the
/// process.
void refuseTooLargeFiles();
std::tm localTime(std::time_t time);
/// Makes an empty file that nobody but its owner can ever open. Does nothing where there is one, or where none can be
/// made.
void makeFileOfOwner(const std::filesystem::path& file);

} // namespace engine
