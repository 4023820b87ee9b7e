#pragma once

#include "ado/Driver.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ado {

class Recordset;

/// A connection to a server. Its connection text is kept after Close.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    const std::string& ConnectionString() const { return connectionString_; }
    /// Raises error 3705 while open.
    void setConnectionString(const std::string& text);

    /// Raises error 3705 while open, and errors of driver and server.
    void Open();
    void Open(const std::string& text);
    /// Raises error 3704 when not open.
    void Close();
    bool IsOpen() const { return driver_ != nullptr; }

    // Where the server is lost, the use that notices it raises; the next use connects again.

    /// Runs all statements of a text and returns how many rows they wrote. Raises the first error; 3704 when closed.
    std::int64_t Execute(const std::string& text);

    /// For Recordset: the driver's connection, which lives as long as it is in use. Raises error 3709 when closed.
    std::shared_ptr<DriverConnection> driverConnection();

private:
    void connect();
    void reconnect();

    std::string connectionString_;
    std::shared_ptr<DriverConnection> driver_;
};

/// Every statement is passed to recordStatement before it is sent, which logs it and calls the recorder. Tests set the
/// recorder.
using StatementRecorder = std::function<void(const std::string&)>;
void setStatementRecorder(StatementRecorder recorder);
void recordStatement(const std::string& text);

} // namespace ado
