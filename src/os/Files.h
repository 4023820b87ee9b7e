#pragma once

// The names of files, and files and folders that their owner alone can read.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

namespace os {

/// Whether a file or folder can have that name, in UTF-8.
bool isFileName(std::string_view name);
/// The entry of a folder that the system finds by that name, spelt as it is on the disk.
std::optional<std::filesystem::path> entryOf(const std::filesystem::path& folder, std::string_view name);

/// Replaces a file by these bytes, by default readable by its owner only, and returns when they are on the disk. A kill
/// or a power cut leaves the old file or the new one. Throws std::system_error.
void replaceFile(const std::filesystem::path& file, std::string_view bytes,
                 std::filesystem::perms permissions = std::filesystem::perms::owner_read |
                                                      std::filesystem::perms::owner_write);
/// Makes an empty file that nobody but its owner can ever open. Does nothing where there is one, or where none can be
/// made.
void makeFileOfOwner(const std::filesystem::path& file);
/// The size of a file in bytes, also while somebody writes it; nothing where there is no such file.
std::optional<std::uintmax_t> sizeOf(const std::filesystem::path& file);
/// Removes a file where there is one. Throws std::filesystem::filesystem_error.
void removeFile(const std::filesystem::path& file);
/// False while a program has the file open, where the system keeps such a file; else true, also where there is none.
bool canBeRemoved(const std::filesystem::path& file);
/// Gives a file that is there to its owner alone. The error where that isn't possible.
std::error_code keepForOwner(const std::filesystem::path& file);
/// Throws std::system_error.
void makePrivateFolder(const std::filesystem::path& folder);
/// Makes that folder, which only its owner can use, and those above it. Does nothing where there is one. Throws
/// std::system_error.
void makePrivateFolders(const std::filesystem::path& folder);

struct FolderContent {
    std::vector<std::filesystem::path> files, folders;
};
/// What can be read of a folder: its files and folders, in no order, but nothing that leads elsewhere and no folder
/// that the system keeps to itself.
FolderContent contentOf(const std::filesystem::path& folder);

} // namespace os
