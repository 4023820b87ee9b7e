#include "ado/drivers/odbc/OdbcConnection.h"

#include "ado/ConnectionString.h"
#include "ado/drivers/odbc/OdbcDriverName.h"
#include "ado/drivers/odbc/OdbcResult.h"

namespace ado::odbc {

namespace {

void runToEnd(OdbcConnection& connection, std::string_view text) {
    const auto result = connection.run(text);
    while (result->nextResult()) {
    }
}

/// A value that holds what the text uses itself stands in braces.
std::string braced(const std::string& value) {
    if (value.find_first_of("[]{}(),;?*=!@ ") == std::string::npos)
        return value;
    std::string out = "{";
    for (const char c : value)
        out += c == '}' ? "}}" : std::string(1, c);
    return out + "}";
}

} // namespace

std::string driverText(const ConnectionString& text, const std::string& resolvedDriver) {
    std::string out = "DRIVER={" + resolvedDriver + "};SERVER=" + text.server() + ";";
    if (const auto port = text.value("Port"))
        out += "PORT=" + *port + ";";
    if (!text.database().empty())
        out += "DATABASE=" + braced(text.database()) + ";";
    if (!text.user().empty())
        out += "UID=" + braced(text.user()) + ";PWD=" + braced(text.password()) + ";";
    else
        out += "Trusted_Connection=Yes;";
    return out + driverSettings(resolvedDriver);
}

/// A hold is a row lock of an open transaction on this very connection, so that its own writes pass as they would in a
/// recordset of the server's. The transaction is committed, never rolled back: what was confirmed meanwhile stays.
class OdbcHold : public DriverHold {
public:
    explicit OdbcHold(std::shared_ptr<OdbcConnection> connection) : connection_(std::move(connection)) {}
    ~OdbcHold() override { connection_->endHold(); }
    std::unique_ptr<DriverResult> run(std::string_view text) override { return connection_->run(text); }

private:
    std::shared_ptr<OdbcConnection> connection_;
};

OdbcConnection::OdbcConnection(const ConnectionString& text) : connection_(SQL_HANDLE_DBC, environment()) {
    const std::string driver = resolveDriver(text.value("Driver").value_or("SQL Server"), registeredDrivers());
    check(SQLSetConnectAttrW(connection_.get(), SQL_ATTR_LOGIN_TIMEOUT,
                             reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(kLoginTimeout)), 0),
          connection_, "SQLSetConnectAttr");
    std::u16string wide = toUtf16(driverText(text, driver));
    check(SQLDriverConnectW(connection_.get(), nullptr, reinterpret_cast<SQLWCHAR*>(wide.data()),
                            static_cast<SQLSMALLINT>(wide.size()), nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
          connection_, "SQLDriverConnect");
    // A row that somebody else holds is refused at once.
    runToEnd(*this, "SET LOCK_TIMEOUT 0");
}

OdbcConnection::~OdbcConnection() {
    SQLDisconnect(connection_.get());
}

std::unique_ptr<DriverResult> OdbcConnection::run(std::string_view text) {
    return std::make_unique<OdbcResult>(connection_.get(), text);
}

std::unique_ptr<DriverHold> OdbcConnection::hold(std::string_view select) {
    beginHold();
    auto hold = std::make_unique<OdbcHold>(shared_from_this());
    runToEnd(*this, select);
    return hold;
}

void OdbcConnection::beginHold() {
    if (holds_ == 0)
        runToEnd(*this, "BEGIN TRANSACTION");
    ++holds_;
}

void OdbcConnection::endHold() noexcept {
    if (--holds_ > 0)
        return;
    try {
        runToEnd(*this, "IF @@TRANCOUNT > 0 COMMIT TRANSACTION");
    } catch (const std::exception&) {
        // The connection is gone, and the lock with it.
    }
}

std::int64_t OdbcConnection::lastIdentity() {
    const auto result = run("SELECT CAST(@@IDENTITY AS bigint)");
    if (!result->nextResult() || !result->nextRow() || result->isNull(0))
        return 0;
    return result->integer(0);
}

bool OdbcConnection::alive() const {
    SQLINTEGER dead = SQL_CD_TRUE;
    SQLGetConnectAttrW(connection_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
    return dead == SQL_CD_FALSE;
}

} // namespace ado::odbc
