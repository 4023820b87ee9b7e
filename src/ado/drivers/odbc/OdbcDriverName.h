#pragma once

#include <string>
#include <vector>

namespace ado::odbc {

/// The name that connection texts carry.
inline constexpr const char* kServerDriver = "SQL Server";

/// The drivers that this machine's registry of drivers knows.
std::vector<std::string> registeredDrivers();

/// "SQL Server" is the name that connection texts carry. It is taken as it stands where a driver of that name is
/// registered, and else stands for the newest of Microsoft's drivers, or for FreeTDS. Any other name is its own.
/// Without any of them the name comes back as it is, and the connection is refused in the registry's words.
std::string resolveDriver(const std::string& name, const std::vector<std::string>& registered);

/// What a driver of that name needs beside server, database, user and password.
std::string driverSettings(const std::string& resolved);

} // namespace ado::odbc
