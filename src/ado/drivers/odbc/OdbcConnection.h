#pragma once

#include "ado/Driver.h"
#include "ado/drivers/odbc/OdbcHandles.h"

#include <memory>
#include <string>

namespace ado::odbc {

/// Seconds that a login may take.
inline constexpr int kLoginTimeout = 15;

/// The text that goes to the driver: its resolved name, server, database, user, password and what it needs beside.
std::string driverText(const ConnectionString& text, const std::string& resolvedDriver);

class OdbcConnection : public DriverConnection, public std::enable_shared_from_this<OdbcConnection> {
public:
    explicit OdbcConnection(const ConnectionString& text);
    ~OdbcConnection() override;

    std::unique_ptr<DriverResult> run(std::string_view text) override;
    std::unique_ptr<DriverHold> hold(std::string_view select) override;
    std::int64_t lastIdentity() override;
    bool alive() const override;

private:
    friend class OdbcHold;
    void beginHold();
    void endHold() noexcept;

    Handle connection_;
    int holds_ = 0;
};

} // namespace ado::odbc
