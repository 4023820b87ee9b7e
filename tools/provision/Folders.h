#pragma once

#include <array>
#include <string_view>

/// The folders of drive C that an installation creates, parents first.
namespace provision::folders {

inline constexpr std::string_view kRoot = "C:\\vabo";
inline constexpr std::string_view kInstances = "C:\\vabo\\istanze";
inline constexpr std::string_view kFiles = "C:\\vabo\\Files";   ///< the local files of the companies
inline constexpr std::string_view kServer = "C:\\vabo\\Server"; ///< the shared work folder of the server
inline constexpr std::string_view kData = "C:\\vabo\\Server\\VaBoDati";

inline constexpr std::array kAll = {
    kInstances,
    std::string_view("C:\\vabo\\sedi"),
    kFiles,
    kServer,
    kData,
    std::string_view("C:\\vabo\\Server\\VaBoDatiHQ"),
    std::string_view("C:\\vabo\\Server\\Backup"),
    std::string_view("C:\\vabo\\Server\\InstallazioneLoco"),
    std::string_view("C:\\vabo\\Server\\InstallazioneLoco\\vabo"),
};

} // namespace provision::folders
