#pragma once

#include "desktop/XConnection.h"

#include <QImage>

#include <filesystem>

namespace desktop {

/// What the screen shows.
QImage picture(const XConnection& x);
/// Writes it to a file; its folders are created.
void writePicture(const QImage& picture, const std::filesystem::path& file);

} // namespace desktop
