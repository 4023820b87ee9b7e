#include "ado/drivers/odbc/OdbcDriverName.h"
#include "os/Paths.h"
#include "platform/OdbcDataSources.h"
#include "support/Capabilities.h"
#include "support/DataSourceStore.h"
#include "support/Environment.h"

#include <windows.h>

#include <odbcinst.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

namespace support {

namespace {

/// With data sources that nobody has; they are none before and behind it.
bool tryOut(bool (*work)(const std::filesystem::path& file)) {
    const std::filesystem::path before = dataSourceFileInUse();
    const std::filesystem::path file = nowhere() / "tried";
    useDataSourceFile(file);
    const bool result = work(file);
    putDataSources(file, "");
    useDataSourceFile(before);
    return result;
}

std::wstring textFilesCodePage() {
    std::array<wchar_t, 8> number{};
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, number.data(), std::ssize(number));
    return number.data();
}

bool installerStoresDrivers(const std::filesystem::path& file) {
    const std::vector<std::string> drivers = ado::odbc::registeredDrivers();
    if (!drivers.empty()) {
        SQLWriteDSNToIniW(L"Tried", os::pathOf(drivers.front()).c_str());
    }
    return dataSourceText(file).find("Driver=") != std::string::npos;
}

bool storedSourcesAreFound(const std::filesystem::path& file) {
    putDataSources(file, "[Tried]\nDriver=SQL Server\n");
    return std::ranges::count(platform::OdbcDataSources().names(), "Tried") == 1;
}

} // namespace

const SystemCapabilities& systemCapabilities() {
    static const SystemCapabilities all = [] {
        SystemCapabilities some{
            .otherUsers = {"A test can't become a user without rights, whose password it would need."},
            .permissionBits = {"Files have no permissions for a group and for others."},
            .symbolicLinks = {"A link needs a right that users don't have."},
            .anyFileName = {"The names of files can't have every character."},
            .caseInFileNames = {"No two files differ in case alone."},
            .longPaths = {"The compiler's library reads no folder whose path has more than 259 characters."},
            .openFilesMove = {"A file that is open can't be moved or removed."},
            .openMapsShrink = {"A file that is mapped can't be shortened."},
            .limitedFileSize = {"A process has no limit for the size of its files."},
            .dataSourcesInAFile = {"Data sources are in the registry."},
            .driversByEnvironment = {"The environment doesn't choose the ODBC drivers."},
            .homeByEnvironment = {"The environment doesn't choose the folder of the user's data."},
            .localeByEnvironment = {"The environment doesn't choose the regional settings."},
            .shellScripts = {"There is no shell."},
            .driverManagersClient = {"The driver manager has no client of its own."},
            .askingToEnd = {"A program can't be sent a signal to end."},
            .guardedResolver = {"The names that are looked up can't be limited to this machine's."},
            .westernTextFiles = {},
            .installerStoresDrivers = {},
            .storedSourcesAreFound = {},
            .sourcesOfStartedPrograms = {},
        };
        if (textFilesCodePage() != L"1252") {
            some.westernTextFiles = {"The system's code page isn't 1252."};
        }
        if (!tryOut(installerStoresDrivers)) {
            some.installerStoresDrivers = {"The installer of data sources doesn't store their driver."};
        }
        if (!tryOut(storedSourcesAreFound)) {
            some.storedSourcesAreFound = {
                "The driver manager doesn't read the data sources that its installer stores."};
        }
        if (std::getenv("VABO_TESTS_OWN_REGISTRY") == nullptr) {
            some.sourcesOfStartedPrograms = {"A program would write into the registry of whoever runs the test."};
        }
        return some;
    }();
    return all;
}

} // namespace support
