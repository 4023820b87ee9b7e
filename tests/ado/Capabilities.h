#pragma once

namespace ado::test {

/// Where a road may differ from the embedded one, and why.
struct Capabilities {
    /// Behind the table in the SELECT that holds a row: a server of the network holds rows by hints alone.
    const char* holdingHint = "";
    /// Whether fields tell table and key as soon as they are read. The wire carries neither; they are found out when a
    /// row is edited.
    bool fieldsTellTheirSource = true;
    /// A server notices the end of a client when its network tells it.
    bool holdEndsAtOnceWithItsProcess = true;
};

inline constexpr Capabilities kWireCapabilities{" WITH (UPDLOCK, ROWLOCK)", false, false};

} // namespace ado::test
