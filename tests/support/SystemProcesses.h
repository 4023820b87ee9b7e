#pragma once

#include <QProcess>

namespace support {

/// Starts a process that ends with this one, however this one ends.
void startBound(QProcess& process, const QString& program, const QStringList& arguments);

/// Stops a process, and lets it continue.
void freeze(long long process);
void thaw(long long process);

/// Before a process is killed: ends its connections, where the system wouldn't do so at once.
void endConnections(long long process);

/// Ends this process as a power cut would.
[[noreturn]] void dieAtOnce();

} // namespace support
