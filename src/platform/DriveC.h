#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A file of drive C that can't be reached, with number and text (53 "File not found", 76 "Path not found",
/// 70 "Permission denied", 75 "Path/File access error", 62 "Input past end of file", 57 "Device I/O error").
class FileError : public std::exception {
public:
    explicit FileError(int number);
    int number() const { return number_; }
    const char* what() const noexcept override;

private:
    int number_;
};

/// Drive C of the workstation. Names are found whatever their case, so `C:\vabo` and `C:\Vabo` are one folder. New
/// files get the spelling of the writer and can be read and written by their owner only.
class DriveC {
public:
    explicit DriveC(std::filesystem::path root) : root_(std::move(root)) {}

    const std::filesystem::path& root() const { return root_; }
    /// The system's path for a path of the drive (`C:\vabo\x.txt`, with `\` or `/`, in any case). Parts that don't
    /// exist keep their spelling.
    std::filesystem::path real(std::string_view path) const;
    /// The drive's path for a path of the system, without a separator at its end but for the root itself (`C:\`).
    /// Nothing where that place isn't on the drive, or has a name that can't be part of such a path.
    std::optional<std::string> pathOf(const std::filesystem::path& place) const;
    bool exists(std::string_view path) const;
    bool isFile(std::string_view path) const;
    bool isFolder(std::string_view path) const;

    /// The first line without its line break, CRLF or LF. The text is in the system's code page, also in `writeLine`.
    /// Throws FileError, with number 62 for an empty file.
    std::string firstLine(std::string_view path) const;
    /// Replaces the whole file by one line and CRLF. A kill leaves the old file or the new one. Throws FileError.
    void writeLine(std::string_view path, std::string_view line) const;
    /// Creates one folder. Throws FileError, with number 75 where it exists.
    void makeFolder(std::string_view path) const;

private:
    std::filesystem::path root_;
};

} // namespace platform
