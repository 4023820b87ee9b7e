#pragma once

#include "platform/Workstation.h"

namespace support {

/// To be called before the application object is created: sets the time zone UTC, the offscreen platform and no file of
/// data sources.
void prepareProcess();

/// To be called between InitGoogleTest and RUN_ALL_TESTS. Every test then starts with Italian regional settings, the
/// real day, no boxes, no form host, a workstation whose drive C and data sources don't exist, and a Qt message handler
/// that fails the test on an unexpected warning (see Warnings.h).
void prepareTests();

/// The machine "POSTO-7" with that drive C, running the program "vabo" in version 1.2.3.
platform::Workstation workstationOn(const std::filesystem::path& driveC);
/// A drive C that doesn't exist.
std::filesystem::path nowhere();

} // namespace support
