#pragma once

#include "platform/DriveC.h"

#include <functional>
#include <optional>
#include <string>

namespace platform {

/// The path of the first file on the drive with that name, in any case. The files of a folder come before the folders
/// in it, both in the order of their names. Links are neither followed nor found, and folders that can't be read are
/// passed over. `pause` is called ahead of each folder.
std::optional<std::string> findFile(const DriveC& drive, const std::string& name, const std::function<void()>& pause);

} // namespace platform
