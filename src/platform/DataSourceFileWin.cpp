#include "platform/DataSourceFile.h"

#include <QString>

#include <windows.h>

#include <odbcinst.h>

#include <array>
#include <optional>
#include <stdexcept>

namespace platform::odbcfile {

namespace {

constexpr const wchar_t* kFile = L"ODBC.INI"; // the name by which the library means the registry
constexpr const wchar_t* kList = L"ODBC Data Sources";

std::wstring wide(const std::string& text) {
    return QString::fromStdString(text).toStdWString();
}

/// Nothing where there is no such value.
std::optional<std::string> valueIn(const std::wstring& section, const std::wstring& key) {
    constexpr const wchar_t* kNone = L"\x01";
    std::array<wchar_t, kLongestLine + 1> value{};
    SQLSetConfigMode(ODBC_USER_DSN);
    const int length = SQLGetPrivateProfileStringW(section.c_str(), key.c_str(), kNone, value.data(),
                                                   static_cast<int>(value.size()), kFile);
    if (length < 0 || value[0] == kNone[0]) {
        return std::nullopt;
    }
    return QString::fromWCharArray(value.data()).toStdString();
}

void check(BOOL written, const std::string& name) {
    if (written == 0) {
        throw std::runtime_error("The data source " + name + " can't be written.");
    }
}

} // namespace

bool isDataSourceName(const std::string& name) {
    return isPlainName(name) && SQLValidDSNW(wide(name).c_str()) != 0;
}

bool hasDataSource(const std::string& name) {
    return valueIn(kList, wide(name)).has_value();
}

// The driver is a matter of its own: its name stands in the list of data sources, and the library writes the file of
// the driver as the value of that key. An entry for another driver begins anew.
void writeDataSource(const std::string& name, const DataSourceValues& values) {
    const DataSourceValues stored = storable(values);
    const std::wstring section = wide(name);
    SQLSetConfigMode(ODBC_USER_DSN);
    for (const auto& [key, value] : stored) {
        if (key == "Driver" && valueIn(kList, section) != value) {
            check(SQLWriteDSNToIniW(section.c_str(), wide(value).c_str()), name);
        }
    }
    for (const auto& [key, value] : stored) {
        if (key != "Driver" && valueIn(section, wide(key)) != value) {
            check(SQLWritePrivateProfileStringW(section.c_str(), wide(key).c_str(), wide(value).c_str(), kFile), name);
        }
    }
}

} // namespace platform::odbcfile
