#pragma once

#include "platform/DriveC.h"

#include <string>

namespace platform {

/// What the program knows of its machine. Tests put their own in its place.
struct Workstation {
    DriveC driveC;
    std::string machineName; ///< host name up to its first dot
    std::string programName; ///< file name of the running program without its ending
    std::string productName;
    std::string legalNotice;
    int versionMajor = 0, versionMinor = 0, versionRevision = 0;
};

/// The present workstation. At start: the machine's own, drive C in $VABO_DRIVE_C or the user's data folder.
Workstation& workstation();
void setWorkstation(Workstation workstation);
/// Reads the real machine and makes it the present one: regional settings and the embedded server's home included.
void takeRealWorkstation();
/// The machine's name from its host name: what stands ahead of the first dot.
std::string terminalName(const std::string& hostName);
/// Hands drive C's instances and paths to the data layer.
void connectDataLayer();

} // namespace platform
