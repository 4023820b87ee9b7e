#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace engine {

/// What the operating system knows of the machine and the process.
std::string hostName();
std::int64_t processNumber();
/// Writing beyond the limit for the size of a file fails from now on like writing to a full disk, and doesn't end the
/// process.
void refuseTooLargeFiles();
std::tm localTime(std::time_t time);

} // namespace engine
