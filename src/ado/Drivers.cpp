#include "ado/Drivers.h"

#include "ado/Names.h"
#include "ado/drivers/embedded/EmbeddedDriver.h"
#include "ado/drivers/odbc/OdbcDriver.h"
#include "os/Files.h"
#include "os/Paths.h"

#include <algorithm>
#include <initializer_list>
#include <system_error>
#include <utility>

namespace ado {

namespace {

namespace fs = std::filesystem;

EmbeddedHome& home() {
    static EmbeddedHome current;
    return current;
}

DriverWrapper& wrapper() {
    static DriverWrapper current;
    return current;
}

/// A server's name as the name of one folder: "\" becomes "$", and other characters with a meaning to the file system
/// are written in hex, so that no name gives a path outside the folder of the instances.
std::string folderName(std::string_view server) {
    static constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    static constexpr std::string_view kUnsafe = "/:*?\"<>|%";
    const bool onlyDots = server.find_first_not_of('.') == std::string_view::npos;
    std::string name;
    for (const char c : server) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\\') {
            name += '$';
        } else if (byte < 0x20 || kUnsafe.find(c) != std::string_view::npos || (onlyDots && c == '.')) {
            (name += '%').append({kHexDigits[byte >> 4U], kHexDigits[byte & 15U]});
        } else {
            name += c;
        }
    }
    return name;
}

bool anyOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::ranges::any_of(words, [&](std::string_view word) { return sameName(text, word); });
}

void checkProvider(const ConnectionString& text) {
    const std::string provider = text.provider();
    if (!provider.empty() &&
        !anyOf(provider, {"SQLOLEDB", "SQLOLEDB.1", "SQLNCLI", "SQLNCLI10", "SQLNCLI11", "MSOLEDBSQL", "MSDASQL"})) {
        throw Error(kProviderNotFound);
    }
}

void checkSecurity(const ConnectionString& text) {
    const auto security = text.value("Integrated Security");
    if (security && !anyOf(*security, {"SSPI", "true", "yes", "false", "no"})) {
        throw Error(kMultipleStep);
    }
}

Driver& embeddedDriver() {
    static EmbeddedDriver driver;
    return driver;
}

Driver& networkDriver() {
    static OdbcDriver driver;
    return driver;
}

} // namespace

void setEmbeddedHome(EmbeddedHome newHome) {
    home() = std::move(newHome);
}

fs::path mapServerPath(std::string_view path) {
    return home().mapPath ? home().mapPath(path) : os::pathOf(path);
}

fs::path instanceFolder(std::string_view server) {
    if (!home().instances) {
        return {};
    }
    const fs::path instances = home().instances();
    const std::string name = folderName(server);
    const fs::path spelt = instances / os::pathOf(name);
    if (name.empty()) {
        return spelt;
    }
    if (const auto known = os::entryOf(instances, name)) {
        return *known;
    }
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(instances, ignored)) {
        if (sameName(os::utf8Of(entry.path().filename()), name)) {
            return entry.path();
        }
    }
    return spelt;
}

Driver& driverFor(const ConnectionString& text) {
    checkProvider(text);
    checkSecurity(text);
    std::error_code ignored;
    const bool embedded = !text.server().empty() && fs::is_directory(instanceFolder(text.server()), ignored);
    Driver& chosen = embedded ? embeddedDriver() : networkDriver();
    return wrapper() ? wrapper()(chosen) : chosen;
}

void setDriverWrapper(DriverWrapper newWrapper) {
    wrapper() = std::move(newWrapper);
}

} // namespace ado
