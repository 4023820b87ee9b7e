#include "ado/drivers/odbc/OdbcConnection.h"

#include "ado/ConnectionString.h"
#include "ado/Literals.h"
#include "ado/drivers/odbc/OdbcDriverName.h"
#include "ado/drivers/odbc/OdbcResult.h"
#include "ado/drivers/odbc/OdbcSources.h"

#include <charconv>

namespace ado::odbc {

namespace {

void runToEnd(OdbcConnection& connection, std::string_view text) {
    const auto result = connection.run(text);
    while (result->nextResult()) {
    }
}

/// A value that holds what the text uses itself stands in braces.
std::string braced(const std::string& value) {
    const bool plain = value.find_first_of(";{}[]()?*=!@\"'") == std::string::npos;
    if (plain && !value.starts_with(' ') && !value.ends_with(' '))
        return value;
    std::string out = "{";
    for (const char c : value)
        out += c == '}' ? "}}" : std::string(1, c);
    return out + "}";
}

int timeoutOf(const ConnectionString& text) {
    for (const char* key : {"Connect Timeout", "Connection Timeout", "Timeout"}) {
        int seconds = 0;
        const std::string value = text.value(key).value_or("");
        if (std::from_chars(value.data(), value.data() + value.size(), seconds).ec == std::errc() && seconds > 0)
            return seconds;
    }
    return kTimeout;
}

} // namespace

std::string driverText(const ConnectionString& text, const std::string& resolvedDriver) {
    std::string out = "DRIVER={" + resolvedDriver + "};SERVER=" + braced(text.server()) + ";";
    if (const auto port = text.value("Port"))
        out += "PORT=" + braced(*port) + ";";
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

OdbcConnection::OdbcConnection(const ConnectionString& text)
    : connection_(std::make_shared<const Handle>(SQL_HANDLE_DBC, environment())), timeout_(timeoutOf(text)) {
    const std::string driver = resolveDriver(text.value("Driver").value_or(kServerDriver), registeredDrivers());
    check(SQLSetConnectAttrW(connection_->get(), SQL_ATTR_LOGIN_TIMEOUT, asPointer(timeout_), 0), *connection_,
          "SQLSetConnectAttr");
    std::u16string wide = toUtf16(driverText(text, driver));
    check(SQLDriverConnectW(connection_->get(), nullptr, reinterpret_cast<SQLWCHAR*>(wide.data()),
                            static_cast<SQLSMALLINT>(wide.size()), nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
          *connection_, "SQLDriverConnect");
    // A row that somebody else holds is refused at once.
    runToEnd(*this, "SET LOCK_TIMEOUT 0");
}

std::unique_ptr<DriverResult> OdbcConnection::run(std::string_view text) {
    return std::make_unique<OdbcResult>(connection_, text, timeout_);
}

std::string OdbcConnection::holdingHint() const {
    return " WITH (UPDLOCK, ROWLOCK)";
}

void OdbcConnection::nameSources(const std::string& statement, std::vector<FieldDescription>& fields) {
    odbc::nameSources(statement, fields);
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
    if (--holds_ > 0 || !alive())
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

std::vector<std::string> OdbcConnection::primaryKey(const std::string& table) {
    const auto result = run("SELECT k.COLUMN_NAME FROM INFORMATION_SCHEMA.TABLE_CONSTRAINTS c INNER JOIN "
                            "INFORMATION_SCHEMA.KEY_COLUMN_USAGE k ON k.CONSTRAINT_NAME = c.CONSTRAINT_NAME AND "
                            "k.TABLE_NAME = c.TABLE_NAME WHERE c.CONSTRAINT_TYPE = 'PRIMARY KEY' AND c.TABLE_NAME = " +
                            literal(Value(table), FieldType::WChar) + " ORDER BY k.ORDINAL_POSITION");
    std::vector<std::string> columns;
    if (result->nextResult()) {
        while (result->nextRow())
            columns.emplace_back(result->text(0));
    }
    return columns;
}

bool OdbcConnection::alive() const {
    SQLINTEGER dead = SQL_CD_TRUE;
    SQLGetConnectAttrW(connection_->get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
    return dead == SQL_CD_FALSE;
}

} // namespace ado::odbc
