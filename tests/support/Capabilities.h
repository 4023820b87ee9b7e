#pragma once

#include <gtest/gtest.h>

namespace support {

/// Something that a driver with its server offers, or the reason why it doesn't.
struct Capability {
    const char* missing = nullptr;
    explicit operator bool() const { return missing == nullptr; }
};

/// How a driver may differ from the embedded one, and why.
struct Capabilities {
    /// The hint after the table in the SELECT that holds a row, which a server of the network needs.
    const char* holdingHint = "";
    Capability fieldsTellTheirSource;
    Capability holdEndsAtOnceWithItsProcess;
    Capability nulInTexts;
    Capability composedLocalName;
    Capability integratedSecurity;
};

inline constexpr Capabilities kEmbeddedCapabilities{};
inline constexpr Capabilities kWireCapabilities{
    .holdingHint = " WITH (UPDLOCK, ROWLOCK)",
    .fieldsTellTheirSource = {"The wire carries neither table nor key; they are found out when a row is edited."},
    .holdEndsAtOnceWithItsProcess = {"A server notices the end of a client when its network tells it."},
    .nulInTexts = {"The interface ends a statement at its first NUL character; the driver refuses it whole."},
    .composedLocalName = {"The local instance's name that the program composes is no name of the loopback's."},
    .integratedSecurity = {"Nobody vouches for a user on the loopback: a login has a name and a password."},
};

/// What the operating system offers to tests.
struct SystemCapabilities {
    Capability otherUsers;
    Capability permissionBits;
    Capability symbolicLinks;
    Capability anyFileName;
    Capability caseInFileNames;
    Capability longPaths;
    Capability openFilesMove;
    Capability openMapsShrink;
    Capability limitedFileSize;
    Capability dataSourcesInAFile;
    Capability driversByEnvironment;
    Capability homeByEnvironment;
    Capability localeByEnvironment;
    Capability shellScripts;
    Capability driverManagersClient;
    Capability askingToEnd;
    Capability guardedResolver;
    /// Text files in code page 1252, as in all of western Europe.
    Capability westernTextFiles;
    /// That the installer of data sources stores their driver, and that the driver manager finds what it stores; both
    /// are tried out once.
    Capability installerStoresDrivers;
    Capability storedSourcesAreFound;
    /// That a program which a test starts has data sources of its own.
    Capability sourcesOfStartedPrograms;
};
const SystemCapabilities& systemCapabilities();

/// What a machine lacks where the programs of a display for tests aren't installed; tools/packages.sh installs them.
inline constexpr Capability kMachineWithoutDisplay = {"There is no Xvfb, openbox or setxkbmap: tools/packages.sh test"};

} // namespace support

/// Skips the running test, with the reason as its message, where the driver or the machine doesn't offer what the test
/// needs.
#define VABO_NEEDS(capability)                                                                                         \
    if (!(capability))                                                                                                 \
    GTEST_SKIP() << (capability).missing
