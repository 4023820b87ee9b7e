#include "ado/drivers/odbc/OdbcDriverName.h"

#include "ado/Names.h"
#include "ado/PresentEvent.h"
#include "ado/drivers/odbc/OdbcHandles.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ado::odbc {

namespace {

constexpr const char* kVendorPrefix = "ODBC Driver ";
constexpr const char* kFreeTds = "FreeTDS";

bool isVendors(const std::string& name) {
    return name.rfind(kVendorPrefix, 0) == 0 && name.ends_with(" for SQL Server");
}

std::vector<std::string> readDrivers() {
    std::vector<std::string> names;
    std::array<SQLWCHAR, 256> name{};
    SQLSMALLINT length = 0;
    SQLUSMALLINT direction = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(SQLDriversW(environment(), direction, name.data(), static_cast<SQLSMALLINT>(name.size()),
                                     &length, nullptr, 0, nullptr))) {
        names.push_back(toUtf8(name.data(), static_cast<std::size_t>(length)));
        direction = SQL_FETCH_NEXT;
    }
    return names;
}

} // namespace

std::vector<std::string> registeredDrivers() {
    static std::optional<std::vector<std::string>> known;
    if (known) {
        return *known;
    }
    std::vector<std::string> names = readDrivers();
    if (atEndOfEvent([] { known.reset(); })) {
        known = names;
    }
    return names;
}

std::string resolveDriver(const std::string& name, const std::vector<std::string>& registered) {
    const auto known = [&](const std::string& candidate) {
        return std::ranges::find(registered, candidate) != registered.end();
    };
    if (!sameName(name, kServerDriver) || known(name)) {
        return name;
    }
    // Compares version numbers as texts: the one with more digits is greater.
    const auto isNewer = [](const std::string& a, const std::string& b) {
        return a.size() != b.size() ? a.size() > b.size() : a > b;
    };
    std::string newest;
    for (const auto& candidate : registered) {
        if (isVendors(candidate) && isNewer(candidate, newest)) {
            newest = candidate;
        }
    }
    if (!newest.empty()) {
        return newest;
    }
    return known(kFreeTds) ? kFreeTds : name;
}

std::string driverSettings(const std::string& resolved) {
    if (resolved == kFreeTds) {
        return "TDS_Version=7.4;ClientCharset=UTF-8;Encryption=request;";
    }
    if (isVendors(resolved)) {
        return "Encrypt=Optional;TrustServerCertificate=Yes;";
    }
    return {};
}

} // namespace ado::odbc
