#include "platform/DriveC.h"

#include "os/Files.h"
#include "os/Paths.h"
#include "os/SystemText.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace platform {

namespace fs = std::filesystem;

namespace {

enum Number {
    kFileNotFound = 53,
    kDeviceError = 57,
    kEndOfFile = 62,
    kDenied = 70,
    kAccessError = 75,
    kPathNotFound = 76
};

constexpr std::array kWords{
    std::pair{kFileNotFound, "File not found"},        std::pair{kDeviceError, "Device I/O error"},
    std::pair{kEndOfFile, "Input past end of file"},   std::pair{kDenied, "Permission denied"},
    std::pair{kAccessError, "Path/File access error"}, std::pair{kPathNotFound, "Path not found"},
};

bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

QString folded(const std::string& name) {
    return QString::fromStdString(name).toCaseFolded();
}

/// The parts of a path from the drive's root on, with `.` and `..` resolved; nothing for a path that isn't on drive C.
std::optional<std::vector<std::string>> namesOf(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':') {
        if (path[0] != 'C' && path[0] != 'c') {
            return std::nullopt;
        }
        path.remove_prefix(2);
    } else if (path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1])) {
        return std::nullopt; // a share of another machine
    }
    std::vector<std::string> names;
    while (!path.empty()) {
        std::size_t length = 0;
        while (length < path.size() && !isSeparator(path[length])) {
            ++length;
        }
        const std::string name(path.substr(0, length));
        path.remove_prefix(std::min(length + 1, path.size()));
        if (name == "..") {
            if (!names.empty()) {
                names.pop_back();
            }
        } else if (!name.empty() && name != ".") {
            if (!os::isFileName(name)) {
                return std::nullopt;
            }
            names.push_back(name);
        }
    }
    return names;
}

/// The folder's entry that the system knows by that name, else the first that differs only in case.
fs::path entryOf(const fs::path& folder, const std::string& name) {
    if (const auto known = os::entryOf(folder, name)) {
        return *known;
    }
    std::error_code ignored;
    const QString wanted = folded(name);
    std::string found;
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
        const std::string candidate = os::utf8Of(entry->path().filename());
        if ((found.empty() || candidate < found) && folded(candidate) == wanted) {
            found = candidate;
        }
    }
    return folder / os::pathOf(found.empty() ? name : found);
}

std::optional<fs::path> find(const fs::path& root, std::string_view path) {
    const auto names = namesOf(path);
    if (!names) {
        return std::nullopt;
    }
    fs::path place = root;
    for (const std::string& name : *names) {
        place = entryOf(place, name);
    }
    return place;
}

/// Whether a path of the drive can have that name: it is text, and no separator is in it.
bool isName(const std::string& name) {
    return name.find('\\') == std::string::npos && QString::fromStdString(name).toStdString() == name;
}

/// The error for a file that the system refused to read, write or remove.
FileError refusal(const fs::path& file, std::error_code reason) {
    std::error_code ignored;
    if (reason == std::errc::no_such_file_or_directory || reason == std::errc::not_a_directory) {
        return FileError(fs::is_directory(file.parent_path(), ignored) ? kFileNotFound : kPathNotFound);
    }
    if (reason == std::errc::filename_too_long) {
        return FileError(kPathNotFound);
    }
    if (reason == std::errc::permission_denied || reason == std::errc::operation_not_permitted ||
        reason == std::errc::device_or_resource_busy) {
        return FileError(kDenied);
    }
    if (reason == std::errc::is_a_directory || reason == std::errc::file_exists ||
        reason == std::errc::read_only_file_system) {
        return FileError(kAccessError);
    }
    return FileError(kDeviceError);
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// The text up to the first line break or the end of the file; nothing for an empty file. At most 64 KB are read,
/// however large the file is.
std::optional<std::string> readLine(std::istream& file) {
    constexpr std::size_t kLongestLine = 65'536;
    std::string line(kLongestLine, '\0');
    file.read(line.data(), static_cast<std::streamsize>(line.size()));
    line.resize(static_cast<std::size_t>(file.gcount()));
    if (line.empty()) {
        return std::nullopt;
    }
    line.resize(std::min(line.find('\n'), line.size()));
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

} // namespace

FileError::FileError(int number) : number_(number) {}

const char* FileError::what() const noexcept {
    for (const auto& [number, words] : kWords) {
        if (number == number_) {
            return words;
        }
    }
    return "Application-defined or object-defined error";
}

fs::path DriveC::real(std::string_view path) const {
    if (auto place = find(root_, path)) {
        return *place;
    }
    throw FileError(kPathNotFound);
}

std::optional<std::string> DriveC::pathOf(const fs::path& place) const {
    const auto plain = [](const fs::path& path) { return fs::absolute(path).lexically_normal(); };
    const fs::path inside = plain(place).lexically_relative(plain(root_));
    if (inside.empty() || *inside.begin() == "..") {
        return std::nullopt;
    }
    std::string path = "C:";
    for (const fs::path& name : inside) {
        const std::string text = os::utf8Of(name);
        if (!isName(text)) {
            return std::nullopt;
        }
        if (text != "." && !text.empty()) {
            path += "\\" + text;
        }
    }
    return path == "C:" ? "C:\\" : path;
}

bool DriveC::exists(std::string_view path) const {
    const auto place = find(root_, path);
    std::error_code ignored;
    return place && fs::exists(*place, ignored);
}

bool DriveC::isFile(std::string_view path) const {
    const auto place = find(root_, path);
    std::error_code ignored;
    return place && fs::is_regular_file(*place, ignored);
}

bool DriveC::isFolder(std::string_view path) const {
    const auto place = find(root_, path);
    std::error_code ignored;
    return place && fs::is_directory(*place, ignored);
}

std::string DriveC::firstLine(std::string_view path) const {
    const fs::path place = real(path);
    std::error_code reason;
    const fs::file_status status = fs::status(place, reason);
    if (!fs::exists(status)) {
        throw refusal(place, reason ? reason : make_error_code(std::errc::no_such_file_or_directory));
    }
    if (!fs::is_regular_file(status)) {
        throw FileError(kAccessError);
    }
    errno = 0;
    std::ifstream file(place, std::ios::binary);
    if (!file) {
        throw refusal(place, lastError());
    }
    const auto line = readLine(file);
    if (file.bad()) {
        throw FileError(kDeviceError);
    }
    if (!line) {
        throw FileError(kEndOfFile);
    }
    return QString::fromStdString(os::fromSystemText(*line)).toStdString(); // invalid UTF-8 becomes U+FFFD
}

void DriveC::writeLine(std::string_view path, std::string_view line) const {
    const fs::path place = real(path);
    std::error_code ignored;
    if (fs::is_directory(place, ignored)) {
        throw FileError(kAccessError);
    }
    try {
        os::replaceFile(place, os::toSystemText(line) + "\r\n");
    } catch (const std::system_error& error) {
        throw refusal(place, error.code());
    }
}

void DriveC::makeFolder(std::string_view path) const {
    const fs::path place = real(path);
    try {
        os::makePrivateFolder(place);
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::no_such_file_or_directory) {
            throw FileError(kPathNotFound);
        }
        throw refusal(place, error.code());
    }
}

} // namespace platform
