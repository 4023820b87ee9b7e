#include "os/Files.h"
#include "platform/DataSourceFile.h"

#include <QTemporaryDir>

#include <odbcinst.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <pwd.h>
#include <set>
#include <stdexcept>
#include <string_view>
#include <unistd.h>

namespace platform::odbcfile {

namespace fs = std::filesystem;

namespace {

/// A path with one of these texts is taken by the library for its file of drivers.
constexpr std::array kDriversPieces{"odbcinst", "ODBCINST"};

/// Where the driver manager looks for the file: it takes the home folder from the user database, not from the
/// environment.
fs::path userFile() {
    fs::path file;
    if (const char* chosen = std::getenv("ODBCINI"); chosen != nullptr && *chosen != '\0') {
        file = fs::absolute(chosen);
    } else if (const passwd* user = ::getpwuid(::getuid()); user != nullptr) {
        file = fs::path(user->pw_dir) / ".odbc.ini";
    }
    const bool isDrivers = std::ranges::any_of(
        kDriversPieces, [&](const char* piece) { return file.string().find(piece) != std::string::npos; });
    if (file.empty() || isDrivers) {
        throw std::runtime_error("The file of data sources can't be kept in \"" + file.string() + "\".");
    }
    return fs::weakly_canonical(file);
}

/// Nothing where there is no such value. The library caches its answers for some seconds, even where the file changes.
/// Its cache includes the default value in the key, so a default that was never used before makes it read the file.
std::optional<std::string> valueIn(const fs::path& file, const std::string& name, const std::string& key) {
    static std::atomic<unsigned long> questions = 0;
    const std::string none = "\x01" + std::to_string(++questions);
    std::array<char, kLongestLine + 1> value{};
    const int length = SQLGetPrivateProfileString(name.c_str(), key.c_str(), none.c_str(), value.data(),
                                                  static_cast<int>(value.size()), file.c_str());
    if (length < 0 || value.data() == none) {
        return std::nullopt;
    }
    return value.data();
}

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The data sources that the file was found to hold with these values. The library reads the file for each value; as
/// long as the file's bytes are the same it isn't asked again.
struct Found {
    std::string bytes;
    std::set<std::pair<std::string, DataSourceValues>> sources;
};

/// The values that the file doesn't hold yet.
DataSourceValues missingIn(const fs::path& file, const std::string& name, const DataSourceValues& values) {
    static Found found;
    DataSourceValues missing = storable(values);
    // Reading a value would create the file where there is none.
    if (!fs::exists(file)) {
        return missing;
    }
    std::string bytes = bytesOf(file);
    if (bytes != found.bytes) {
        found = {std::move(bytes), {}};
    }
    std::pair source(name, missing);
    if (found.sources.contains(source)) {
        return {};
    }
    std::erase_if(missing, [&](const auto& pair) { return valueIn(file, name, pair.first) == pair.second; });
    if (missing.empty()) {
        found.sources.insert(std::move(source));
    }
    return missing;
}

} // namespace

bool isDataSourceName(const std::string& name) {
    return isPlainName(name) && SQLValidDSN(name.c_str());
}

bool hasDataSource(const std::string& name) {
    const fs::path file = userFile();
    return fs::exists(file) && valueIn(file, name, "Driver").has_value();
}

// The library rewrites the file for every value. It is given a copy, which then replaces the file at once.
void writeDataSource(const std::string& name, const DataSourceValues& values) {
    const fs::path file = userFile();
    const DataSourceValues missing = missingIn(file, name, values);
    if (missing.empty()) {
        return;
    }
    const QTemporaryDir folder;
    const fs::path copy = fs::path(folder.path().toStdString()) / "odbc.ini";
    if (fs::exists(file)) {
        fs::copy_file(file, copy);
    }
    for (const auto& [key, value] : missing) {
        if (!SQLWritePrivateProfileString(name.c_str(), key.c_str(), value.c_str(), copy.c_str())) {
            throw std::runtime_error("The data source " + name + " can't be written.");
        }
    }
    os::replaceFile(file, bytesOf(copy), fs::status(copy).permissions());
}

} // namespace platform::odbcfile
