#pragma once

#include "platform/DriveC.h"

#include <string>

namespace platform {

/// What the program knows of its machine. Tests set their own.
struct Workstation {
    DriveC driveC;
    std::string machineName; ///< host name up to its first dot
    std::string programName; ///< file name of the running program without its extension
    std::string productName;
    std::string legalNotice;
    int versionMajor = 0, versionMinor = 0, versionRevision = 0;
};

/// The present workstation. At the start the machine's own, with drive C in $VABO_DRIVE_C or the user's data folder.
Workstation& workstation();
void setWorkstation(Workstation workstation);
/// Sets the real machine as the present workstation, and its regional settings and the embedded server's folder with
/// it.
void takeRealWorkstation();
/// The machine's name: the host name up to its first dot.
std::string terminalName(const std::string& hostName);
/// Tells the data layer where drive C's instances are and how to resolve its paths.
void connectDataLayer();

} // namespace platform
