#pragma once

#include "ado/Driver.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace ado {

/// Where the embedded server finds its instances and its files. Set once by the workstation.
struct EmbeddedHome {
    std::function<std::filesystem::path()> instances; ///< the folder that holds one folder an instance
    std::function<std::filesystem::path(std::string_view)> mapPath;
};

void setEmbeddedHome(EmbeddedHome home);

/// Where a path of the server's own lies on this machine.
std::filesystem::path mapServerPath(std::string_view path);

/// The folder of the instance of that server name, whether it exists or not.
std::filesystem::path instanceFolder(std::string_view server);

/// The one rule of all configuration: a server whose instance folder exists is the embedded one, any other is ODBC's.
/// Throws Error 3706 for a provider that nobody serves.
Driver& driverFor(const ConnectionString& text);

} // namespace ado
