#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// A file of drive C that can't be reached: number and words of the run-time (53 "File not found", 76 "Path not found",
/// 70 "Permission denied", 75 "Path/File access error", 62 "Input past end of file", 57 "Device I/O error").
class FileError : public std::exception {
public:
    explicit FileError(int number);
    int number() const { return number_; }
    const char* what() const noexcept override;

private:
    int number_;
};

/// Drive C of the workstation. `C:\vabo` and `C:\Vabo` are one folder; names are found whatever their case; new files
/// get the spelling of the writer and are for the owner alone.
class DriveC {
public:
    explicit DriveC(std::filesystem::path root) : root_(std::move(root)) {}

    const std::filesystem::path& root() const { return root_; }
    /// Where a path of the drive (`C:\vabo\x.txt`, `\` or `/`, any case) lies; what doesn't exist keeps its spelling.
    std::filesystem::path real(std::string_view path) const;
    bool exists(std::string_view path) const;
    bool isFile(std::string_view path) const;
    bool isFolder(std::string_view path) const;

    /// The first line without its end, CRLF or LF. Throws FileError; 62 for an empty file.
    std::string firstLine(std::string_view path) const;
    /// Replaces the whole file by one line and CRLF, at once: a kill leaves the old or the new. Throws FileError.
    void writeLine(std::string_view path, std::string_view line) const;
    void remove(std::string_view path) const;
    /// One folder; FileError 75 where it exists.
    void makeFolder(std::string_view path) const;

private:
    std::filesystem::path root_;
};

} // namespace platform
