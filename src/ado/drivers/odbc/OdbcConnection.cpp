#include "ado/drivers/odbc/OdbcConnection.h"

#include "ado/ConnectionString.h"
#include "ado/Literals.h"
#include "ado/Names.h"
#include "ado/Text.h"
#include "ado/WhileWaiting.h"
#include "ado/drivers/odbc/Aside.h"
#include "ado/drivers/odbc/OdbcDriverName.h"
#include "ado/drivers/odbc/OdbcResult.h"
#include "ado/drivers/odbc/OdbcSources.h"
#include "ado/drivers/odbc/SilentServers.h"

#include <QElapsedTimer>

#include <algorithm>
#include <charconv>
#include <utility>

namespace ado::odbc {

namespace {

/// The value, in braces only where it would be misread without them, since FreeTDS can't read a "}" inside of braces.
std::string braced(const std::string& value) {
    const bool plain = value.find(';') == std::string::npos && !value.starts_with('{');
    if (plain && !value.starts_with(' ') && !value.ends_with(' ')) {
        return value;
    }
    std::string out = "{";
    for (const char c : value) {
        out += c == '}' ? "}}" : std::string(1, c);
    }
    return out + "}";
}

/// The server's name and its port as all drivers read them: Microsoft's know no port of its own.
std::string serverWithPort(const ConnectionString& text) {
    const std::string server = text.server();
    const std::string port = text.value("Port").value_or("");
    return port.empty() || server.find(',') != std::string::npos ? server : server + "," + port;
}

/// unixODBC copies the name to a buffer of this size on its stack without checking its length.
void checkLength(const std::string& driver) {
    constexpr std::size_t kLongest = 1000;
    if (driver.size() > kLongest) {
        throw Error(kUnspecified, "Driver name too long", "IM011", 0, {});
    }
}

/// One day: longer than anybody waits, and small enough to be passed in milliseconds everywhere.
constexpr int kLongestTimeout = 86'400;

int timeoutOf(const ConnectionString& text) {
    for (const char* key : {"Connect Timeout", "Connection Timeout", "Timeout"}) {
        int seconds = 0;
        const std::string value = text.value(key).value_or("");
        if (std::from_chars(value.data(), value.data() + value.size(), seconds).ec == std::errc() && seconds > 0) {
            return std::min(seconds, kLongestTimeout);
        }
    }
    return kTimeout;
}

/// Whether no server answered. Only the SQLSTATE tells it, since each driver has its own texts.
bool isOutOfReach(const Error& error) {
    static constexpr std::string_view kStates[] = {"08001", "08S01", "HYT00", "HYT01", "IM007"};
    return std::ranges::find(kStates, error.sqlState()) != std::end(kStates);
}

Error notReached(const Error& error, const ConnectionString& text) {
    if (isSilence(error)) {
        rememberSilent(serverWithPort(text), error);
    }
    return outOfReach(error);
}

/// A failed login that took longer than this counts as silence, whatever its SQLSTATE: drivers also wait for other
/// reasons, for instance for the port of a named instance.
constexpr qint64 kWaitMilliseconds = 1000;

void connect(const Handle& connection, const ConnectionString& text, const std::string& driver) {
    std::u16string wide = toUtf16(driverText(text, driver));
    QElapsedTimer waited;
    waited.start();
    SQLRETURN code = SQL_ERROR;
    aside([&] {
        code = SQLDriverConnectW(connection.get(), nullptr, reinterpret_cast<SQLWCHAR*>(wide.data()),
                                 static_cast<SQLSMALLINT>(wide.size()), nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    });
    try {
        check(code, connection, "SQLDriverConnect");
    } catch (const Error& error) {
        if (!isOutOfReach(error)) {
            throw;
        }
        if (waited.elapsed() >= kWaitMilliseconds) {
            rememberSilent(serverWithPort(text), error);
        }
        throw notReached(error, text);
    }
}

} // namespace

std::string driverText(const ConnectionString& text, const std::string& resolvedDriver) {
    std::string out = "DRIVER={" + resolvedDriver + "};SERVER=" + braced(serverWithPort(text)) + ";";
    if (!text.database().empty()) {
        out += "DATABASE=" + braced(text.database()) + ";";
    }
    if (!text.user().empty()) {
        out += "UID=" + braced(text.user()) + ";PWD=" + braced(text.password()) + ";";
    } else {
        out += "Trusted_Connection=Yes;";
    }
    return out + driverSettings(resolvedDriver);
}

int patience(std::string_view text, int loginSeconds) {
    constexpr std::string_view kReading = "SELECT";
    const bool reads = sameName(trimmed(text).substr(0, kReading.size()), kReading);
    return reads ? std::max(loginSeconds / 2, 1) : loginSeconds;
}

/// The ODBC connection, which OdbcConnection, its results and its holds share. The last of them closes it.
class SharedConnection : public std::enable_shared_from_this<SharedConnection> {
public:
    explicit SharedConnection(const ConnectionString& text)
        : handle_(SQL_HANDLE_DBC, environment()), place_(serverWithPort(text)), timeout_(timeoutOf(text)) {
        const std::string driver = resolveDriver(text.value("Driver").value_or(kServerDriver), registeredDrivers());
        checkLength(driver);
        check(SQLSetConnectAttrW(handle_.get(), SQL_ATTR_LOGIN_TIMEOUT,
                                 asPointer(static_cast<std::uintptr_t>(timeout_)), 0),
              handle_, "SQLSetConnectAttr");
        connect(handle_, text, driver);
    }

    std::unique_ptr<DriverResult> run(std::string_view text) { return run(text, patience(text, timeout_)); }
    void runToEnd(std::string_view text) {
        const auto result = run(text);
        while (result->nextResult()) {
        }
    }

    std::unique_ptr<DriverResult> run(std::string_view text, int seconds) {
        refuseWhileWaiting();
        return std::make_unique<OdbcResult>(std::shared_ptr<const Handle>(shared_from_this(), &handle_), place_, text,
                                            seconds);
    }

    /// Whether it needs no round trip before its first statement: its server has just answered, and its lock time-out
    /// is set. A new connection has the attribute's default, one that the driver manager kept has its own value still.
    bool isPrepared() const {
        SQLULEN seconds = 0;
        return hasJustAnswered(place_) &&
               SQL_SUCCEEDED(SQLGetConnectAttrW(handle_.get(), kPreparedFor, &seconds, 0, nullptr)) &&
               static_cast<int>(static_cast<SQLUINTEGER>(seconds)) == timeout_;
    }
    void prepare() {
        runToEnd(lockWait());
        setPreparedFor(timeout_);
        rememberAnswer(place_);
    }

    void beginHold() { ++holds_; }
    /// How long a statement waits for rows that another program is writing: a third of the time-out. It must wait,
    /// since failing writes are often skipped and would be lost; and the server must report the lock before the
    /// statement's own time-out ends.
    std::string lockWait() const { return "SET LOCK_TIMEOUT " + std::to_string(timeout_ * 1000 / 3); }
    /// Selects the rows of a hold; raises at once where another connection holds one. The first of several holds begins
    /// the transaction in the same round trip.
    std::unique_ptr<DriverResult> held(std::string_view select) {
        const std::string begin = holds_ == 1 ? "SET LOCK_TIMEOUT 0; BEGIN TRANSACTION; " : "";
        setPreparedFor(0);
        auto result = run(begin + std::string(select), patience(select, timeout_));
        while (result->nextResult() && !result->hasRows()) {
        }
        return result;
    }
    /// Always commits, since what was written meanwhile was confirmed to the user. Rows are released when the last hold
    /// ends. Throws where the commit fails; then nothing of the transaction is left.
    void endHold() {
        if (--holds_ > 0) {
            return;
        }
        try {
            runToEnd("IF @@TRANCOUNT > 0 COMMIT TRANSACTION; " + lockWait());
            setPreparedFor(timeout_);
        } catch (const Error&) {
            halfCommitted_ = true;
            takeBack();
            throw;
        }
    }

    /// Takes back the transaction whose commit has failed, where that has failed as well: with it open, whatever is
    /// written next would be lost without a word, and its rows would stay locked in a connection that the driver
    /// manager keeps.
    void takeBack() noexcept {
        if (!halfCommitted_ || isDead(handle_)) {
            return;
        }
        try {
            runToEnd("IF @@TRANCOUNT > 0 ROLLBACK TRANSACTION; " + lockWait());
            setPreparedFor(timeout_);
            halfCommitted_ = false;
        } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
            // Tried again at the end.
        }
    }

    /// A connection with a transaction that can't be taken back isn't used any more.
    bool alive() const { return !halfCommitted_ && !isDead(handle_); }

private:
    /// Tells, in the driver's own connection, for which time-out the server's lock time-out is set: the seconds that
    /// any request may take, 0 by default.
    static constexpr SQLINTEGER kPreparedFor = SQL_ATTR_CONNECTION_TIMEOUT;

    /// A driver that doesn't know the attribute is asked before each first statement.
    void setPreparedFor(int seconds) {
        SQLSetConnectAttrW(handle_.get(), kPreparedFor, asPointer(static_cast<std::uintptr_t>(seconds)), 0);
    }

    Handle handle_;
    std::string place_;
    int timeout_;
    int holds_ = 0;
    bool halfCommitted_ = false;
};

namespace {

/// A connection with its lock time-out set. One that the driver manager kept may have lost its server, which only a
/// statement shows; it isn't asked where the server has answered a moment ago. Where it is lost, the next kept one is
/// tried, and when none is left a new one.
std::shared_ptr<SharedConnection> preparedConnection(const ConnectionString& text) {
    constexpr int kMostKept = 100;
    refuseSilent(serverWithPort(text));
    for (int kept = 0;; ++kept) {
        auto connection = std::make_shared<SharedConnection>(text);
        if (connection->isPrepared()) {
            return connection;
        }
        try {
            connection->prepare();
            return connection;
        } catch (const Error& error) {
            const bool silent = isSilence(error);
            if (connection->alive() && !silent) {
                throw;
            }
            if (silent || kept == kMostKept) {
                throw notReached(error, text);
            }
        }
    }
}

/// A row lock of an open transaction.
class OdbcHold : public DriverHold {
public:
    explicit OdbcHold(std::shared_ptr<SharedConnection> connection) : connection_(std::move(connection)) {
        connection_->beginHold();
    }
    ~OdbcHold() override {
        try {
            release();
        } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
            // Nothing was written through this hold, or the write itself has failed.
        }
    }
    OdbcHold(const OdbcHold&) = delete;
    OdbcHold& operator=(const OdbcHold&) = delete;

    void select(std::string_view text) { rows_ = connection_->held(text); }
    std::unique_ptr<DriverResult> rows() override { return std::move(rows_); }
    std::unique_ptr<DriverResult> run(std::string_view text) override {
        rows_.reset(); // unread rows would keep the connection busy
        return connection_->run(text);
    }
    void release() override {
        rows_.reset();
        if (std::exchange(holding_, false)) {
            connection_->endHold();
        }
    }

private:
    std::shared_ptr<SharedConnection> connection_;
    std::unique_ptr<DriverResult> rows_;
    bool holding_ = true;
};

} // namespace

OdbcConnection::OdbcConnection(const ConnectionString& text) : connection_(preparedConnection(text)) {}

OdbcConnection::~OdbcConnection() {
    connection_->takeBack();
}

std::unique_ptr<DriverResult> OdbcConnection::run(std::string_view text) {
    return connection_->run(text);
}

std::string OdbcConnection::holdingHint() const {
    return " WITH (UPDLOCK, ROWLOCK)";
}

void OdbcConnection::nameSources(const std::string& statement, std::vector<FieldDescription>& fields) {
    odbc::nameSources(statement, fields);
}

std::unique_ptr<DriverHold> OdbcConnection::hold(std::string_view select) {
    auto hold = std::make_unique<OdbcHold>(connection_);
    hold->select(select);
    return hold;
}

std::int64_t OdbcConnection::lastIdentity() {
    const auto result = run("SELECT CAST(@@IDENTITY AS bigint)");
    if (!result->nextResult() || !result->nextRow() || result->isNull(0)) {
        return 0;
    }
    return result->integer(0);
}

std::vector<std::string> OdbcConnection::primaryKey(const std::string& table) {
    const auto result = run("SELECT k.COLUMN_NAME FROM INFORMATION_SCHEMA.TABLE_CONSTRAINTS c INNER JOIN "
                            "INFORMATION_SCHEMA.KEY_COLUMN_USAGE k ON k.CONSTRAINT_NAME = c.CONSTRAINT_NAME AND "
                            "k.TABLE_NAME = c.TABLE_NAME WHERE c.CONSTRAINT_TYPE = 'PRIMARY KEY' AND c.TABLE_NAME = " +
                            literal(Value(table), FieldType::WChar) + " ORDER BY k.ORDINAL_POSITION");
    std::vector<std::string> columns;
    if (result->nextResult()) {
        while (result->nextRow()) {
            columns.emplace_back(result->text(0));
        }
    }
    return columns;
}

bool OdbcConnection::alive() const {
    return connection_->alive();
}

} // namespace ado::odbc
