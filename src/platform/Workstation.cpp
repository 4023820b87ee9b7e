#include "platform/Workstation.h"

#include "ado/Drivers.h"
#include "os/Machine.h"
#include "os/Paths.h"
#include "platform/RegionalSettings.h"
#include "platform/Version.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr const char* kInstances = "C:\\vabo\\istanze";

std::optional<Workstation> present;

/// The system's path for the server. A path that isn't on drive C becomes one in a folder that doesn't exist.
std::filesystem::path serverPath(std::string_view path) {
    const DriveC& drive = workstation().driveC;
    try {
        return drive.real(path);
    } catch (const FileError&) {
        return drive.root() / "no such drive" / "file";
    }
}

} // namespace

std::string terminalName(const std::string& hostName) {
    return hostName.substr(0, hostName.find('.'));
}

Workstation& workstation() {
    if (!present) {
        takeRealWorkstation();
    }
    return *present;
}

void setWorkstation(Workstation workstation) {
    present = std::move(workstation);
}

void takeRealWorkstation() {
    setWorkstation({.driveC = DriveC(os::driveC()),
                    .machineName = terminalName(os::hostName()),
                    .programName = os::utf8Of(os::programFile().stem()),
                    .productName = version::kProductName,
                    .legalNotice = version::kLegalNotice,
                    .versionMajor = version::kMajor,
                    .versionMinor = version::kMinor,
                    .versionRevision = version::kRevision});
    useLocale(localeOr(QLocale::system()));
    connectDataLayer();
}

void connectDataLayer() {
    ado::setEmbeddedHome({.instances = [] { return workstation().driveC.real(kInstances); }, .mapPath = serverPath});
}

} // namespace platform
