#pragma once

#include <string>
#include <vector>

namespace ado::odbc {

/// The driver's name in connection texts.
inline constexpr const char* kServerDriver = "SQL Server";

/// The ODBC drivers registered on this machine, as they were when the present event first asked.
std::vector<std::string> registeredDrivers();

/// The registered driver for a name. "SQL Server" means the driver of that name where one is registered, or else the
/// newest of Microsoft's drivers, or FreeTDS. Any other name is returned unchanged, and so is "SQL Server" where none
/// of these is registered; the driver manager then refuses the connection.
std::string resolveDriver(const std::string& name, const std::vector<std::string>& registered);

/// The settings that a driver needs besides server, database, user and password.
std::string driverSettings(const std::string& resolved);

} // namespace ado::odbc
