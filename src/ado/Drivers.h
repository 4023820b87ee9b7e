#pragma once

#include "ado/Driver.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace ado {

/// Where the embedded server finds its instances and its files. Set once by the workstation.
struct EmbeddedHome {
    std::function<std::filesystem::path()> instances; ///< the folder with one subfolder for each instance
    std::function<std::filesystem::path(std::string_view)> mapPath;
};

void setEmbeddedHome(EmbeddedHome home);

/// The path on this machine for a path as the embedded server's statements give it.
std::filesystem::path mapServerPath(std::string_view path);

/// The folder of the instance with that server name, whether it exists or not.
std::filesystem::path instanceFolder(std::string_view server);

/// The driver for a connection text: the embedded one where the server's instance folder exists, ODBC for all others.
/// Nothing else configures it. Throws Error 3706 for an unknown provider.
Driver& driverFor(const ConnectionString& text);

/// Gives a driver that stands between the data layer and the chosen one. Tests set it.
using DriverWrapper = std::function<Driver&(Driver&)>;
void setDriverWrapper(DriverWrapper wrapper);

} // namespace ado
