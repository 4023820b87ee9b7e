#pragma once

#include "platform/Workstation.h"

namespace support {

/// What every test executable sets up ahead of its application object: time zone UTC, the offscreen platform and no
/// file of data sources.
void prepareProcess();

/// What holds for every test from its start: Italian regional settings, the real day, no boxes, no form host, a
/// workstation whose drive C and data sources are nowhere, and a Qt message handler that fails the running test on a
/// warning that it doesn't expect (see Warnings.h). Call it between InitGoogleTest and RUN_ALL_TESTS.
void prepareTests();

/// The machine "POSTO-7" with that drive C, running the program "vabo" in version 1.2.3.
platform::Workstation workstationOn(const std::filesystem::path& driveC);
/// A drive C that isn't there.
std::filesystem::path nowhere();

/// The user's file of data sources from here on, for this process and those that it starts.
void useDataSourceFile(const std::filesystem::path& file);

} // namespace support
