#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace engine {

/// What the operating system knows of the machine and the process.
std::string hostName();
std::int64_t processNumber();
std::tm localTime(std::time_t time);

} // namespace engine
