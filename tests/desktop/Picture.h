#pragma once

#include "desktop/XConnection.h"

#include <filesystem>

namespace desktop {

/// Writes what the screen shows to a file; its folders are created.
void takePicture(const XConnection& x, const std::filesystem::path& file);

} // namespace desktop
