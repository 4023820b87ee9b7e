#pragma once

#include "ado/Driver.h"
#include "ado/drivers/odbc/OdbcHandles.h"

#include <memory>
#include <string>

namespace ado::odbc {

/// Seconds to wait for a login or an answer where the connection text has no "Connect Timeout".
inline constexpr int kTimeout = 15;

/// The connection text for the driver: its resolved name, server, database, user, password and its own settings.
std::string driverText(const ConnectionString& text, const std::string& resolvedDriver);

/// The time-out of a text in seconds, given that of a login. FreeTDS sends a cancel then and waits as long again for
/// its answer. So a text that only reads gets half the time and ends within that of a login. A text that writes gets
/// the whole time: its error may be skipped, and the write would be lost unnoticed.
int patience(std::string_view text, int loginSeconds);

class SharedConnection;

/// A connection through ODBC. A hold on rows is a transaction on this same connection, so that its own writes aren't
/// locked out.
class OdbcConnection : public DriverConnection {
public:
    /// Throws Error with the text of the driver manager, the driver or the server.
    explicit OdbcConnection(const ConnectionString& text);
    OdbcConnection(const OdbcConnection&) = delete;
    OdbcConnection& operator=(const OdbcConnection&) = delete;
    ~OdbcConnection() override;

    std::unique_ptr<DriverResult> run(std::string_view text) override;
    std::string holdingHint() const override;
    void nameSources(const std::string& statement, std::vector<FieldDescription>& fields) override;
    std::unique_ptr<DriverHold> hold(std::string_view select) override;
    std::int64_t lastIdentity() override;
    std::vector<std::string> primaryKey(const std::string& table) override;
    bool alive() const override;

private:
    std::shared_ptr<SharedConnection> connection_; ///< shared with results and holds
};

} // namespace ado::odbc
