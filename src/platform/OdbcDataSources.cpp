#include "platform/OdbcDataSources.h"

#include "ado/drivers/odbc/OdbcDriverName.h"
#include "ado/drivers/odbc/OdbcHandles.h"
#include "platform/DataSourceFile.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <utility>

namespace platform {

namespace {

using ado::odbc::Handle;
using odbcfile::DataSourceValues;

constexpr const char* kNameKey = "DSN";
constexpr const char* kDriverKey = "Driver";

bool isKey(const QString& key) {
    return !key.isEmpty() &&
           std::ranges::all_of(key, [](QChar c) { return c.isLetterOrNumber() || c == ' ' || c == '_'; });
}

/// Anything that isn't a key with a value is skipped, as drivers do.
DataSourceValues readAttributes(const std::string& attributes, char divider) {
    DataSourceValues values;
    for (const QString& attribute : QString::fromStdString(attributes).split(QLatin1Char(divider))) {
        const qsizetype equal = attribute.indexOf('=');
        const QString key = attribute.left(std::max<qsizetype>(equal, 0)).trimmed();
        if (isKey(key)) {
            values.emplace_back(key.toStdString(), attribute.mid(equal + 1).toStdString());
        }
    }
    return values;
}

bool isNamed(const std::string& key, const char* name) {
    return QString::fromStdString(key).compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

/// Removes all values of that key and returns the first.
std::optional<std::string> takeOut(DataSourceValues& values, const char* key) {
    const auto isIt = [&](const auto& pair) { return isNamed(pair.first, key); };
    const auto found = std::ranges::find_if(values, isIt);
    if (found == values.end()) {
        return std::nullopt;
    }
    std::string value = std::move(found->second);
    std::erase_if(values, isIt);
    return value;
}

std::string knownDriver(const std::string& name) {
    const std::vector<std::string> registered = ado::odbc::registeredDrivers();
    std::string driver = ado::odbc::resolveDriver(name, registered);
    if (std::ranges::find(registered, driver) == registered.end()) {
        throw std::runtime_error("There is no ODBC driver \"" + name + "\".");
    }
    return driver;
}

void enter(const std::string& name, const std::string& driver, const DataSourceValues& attributes) {
    if (!odbcfile::isDataSourceName(name)) {
        throw std::runtime_error("A data source can't be called \"" + name + "\".");
    }
    const std::string known = knownDriver(driver);
    DataSourceValues values = readAttributes(ado::odbc::driverSettings(known), ';');
    values.emplace_back(kDriverKey, known);
    // Of several values of a key the last one is stored.
    for (const auto& [key, value] : attributes) {
        if (!isNamed(key, kDriverKey)) {
            takeOut(values, key.c_str());
            values.emplace_back(key, value);
        }
    }
    odbcfile::writeDataSource(name, values);
}

} // namespace

std::vector<std::string> OdbcDataSources::names() {
    std::vector<std::string> names;
    try {
        // The list's position belongs to the environment: a new one begins with the first name.
        const Handle environment(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
        SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, ado::odbc::asPointer(SQL_OV_ODBC3), 0);
        std::array<SQLWCHAR, 1024> name{};
        std::array<SQLWCHAR, 1024> driver{};
        SQLSMALLINT nameLength = 0;
        SQLSMALLINT driverLength = 0;
        while (SQLDataSourcesW(environment.get(), SQL_FETCH_NEXT, name.data(), static_cast<SQLSMALLINT>(name.size()),
                               &nameLength, driver.data(), static_cast<SQLSMALLINT>(driver.size()),
                               &driverLength) == SQL_SUCCESS) {
            names.push_back(ado::odbc::toUtf8(name.data(), static_cast<std::size_t>(nameLength)));
        }
    } catch (const ado::Error&) { // NOLINT(bugprone-empty-catch)
        // Without an environment there are no names.
    }
    return names;
}

void OdbcDataSources::registerDatabase(const std::string& name, const std::string& driver, bool /*silent*/,
                                       const std::string& attributes) {
    DataSourceValues values = readAttributes(attributes, '\r');
    takeOut(values, kNameKey);
    enter(name, driver, values);
}

std::int32_t OdbcDataSources::configure(std::int16_t request, const std::string& driver,
                                        const std::string& attributes) {
    DataSourceValues values = readAttributes(attributes, '\0');
    const std::string name = takeOut(values, kNameKey).value_or("");
    try {
        if (request != kAdd && (request != kConfigure || !odbcfile::hasDataSource(name))) {
            return 0;
        }
        enter(name, driver, values);
        return 1;
    } catch (const std::exception&) {
        return 0;
    }
}

} // namespace platform
