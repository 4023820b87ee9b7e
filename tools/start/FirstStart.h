#pragma once

#include <filesystem>
#include <system_error>

namespace start {

/// Whether drive C tells where the server is. Without that the console ends at its first step.
bool isSetUp();
/// Tells what is missing and offers the sample workstation instead. True where it was laid down.
bool setUp();
/// Tells that the console, which lies there, doesn't start, and the system's reason.
void tellNotStarted(const std::filesystem::path& console, std::error_code reason);

} // namespace start
