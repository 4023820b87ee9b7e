#pragma once

#include "ado/Driver.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ado {

class Recordset;

/// A connection as the program knows it. Its text is kept after Close.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    const std::string& ConnectionString() const { return connectionString_; }
    /// Error 3705 while open.
    void setConnectionString(const std::string& text);

    /// Error 3705 while open; errors of driver and server.
    void Open();
    void Open(const std::string& text);
    /// Error 3704 when not open.
    void Close();
    bool IsOpen() const { return driver_ != nullptr; }

    // A connection that has lost its server says so once; its next use reaches the server that is back.

    /// Runs a text to its end and gives the rows written; the first error raises. Error 3704 when closed.
    std::int64_t Execute(const std::string& text);

    /// For Recordset: the road below, alive as long as anybody uses it. Error 3709 when closed.
    std::shared_ptr<DriverConnection> road();

private:
    void connect();
    void reconnect();

    std::string connectionString_;
    std::shared_ptr<DriverConnection> driver_;
};

/// The one place every statement passes. The recorder sees each text before it is sent; tests set it.
using StatementRecorder = std::function<void(const std::string&)>;
void setStatementRecorder(StatementRecorder recorder);
void recordStatement(const std::string& text);

} // namespace ado
