#pragma once

#include "ado/Driver.h"
#include "ado/drivers/odbc/OdbcHandles.h"

#include <memory>
#include <string>

namespace ado::odbc {

/// Seconds that a login or an answer may take where the connection text has no "Connect Timeout".
inline constexpr int kTimeout = 15;

/// The text that goes to the driver: its resolved name, server, database, user, password and what it needs beside.
std::string driverText(const ConnectionString& text, const std::string& resolvedDriver);

/// Seconds of silence after which a text is given up, of those that a login may take. FreeTDS asks to cancel then, and
/// waits as long again: what only reads is given up within the time of a login. What writes has the whole time, since a
/// write that is given up too early may be lost without a word.
int patience(std::string_view text, int loginSeconds);

class Road;

/// One connection of the data source interface. A hold on rows is a transaction on this very connection, so that its
/// own writes pass as they would in a recordset of the server's.
class OdbcConnection : public DriverConnection {
public:
    /// Throws Error: the registry's words, the driver's or the server's.
    explicit OdbcConnection(const ConnectionString& text);

    std::unique_ptr<DriverResult> run(std::string_view text) override;
    std::string holdingHint() const override;
    void nameSources(const std::string& statement, std::vector<FieldDescription>& fields) override;
    std::unique_ptr<DriverHold> hold(std::string_view select) override;
    std::int64_t lastIdentity() override;
    std::vector<std::string> primaryKey(const std::string& table) override;
    bool alive() const override;

private:
    std::shared_ptr<Road> road_; ///< kept by holds, too
};

} // namespace ado::odbc
