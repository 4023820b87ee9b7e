#include "ado/Connection.h"

#include "ado/Drivers.h"
#include "ado/WhileWaiting.h"

#include <QLoggingCategory>

#include <algorithm>
#include <utility>

namespace ado {

namespace {

Q_LOGGING_CATEGORY(sqlCategory, "vabo.sql", QtWarningMsg)

StatementRecorder& recorder() {
    static StatementRecorder current;
    return current;
}

std::int64_t runToTheEnd(DriverConnection& connection, const std::string& text) {
    const auto result = connection.run(text);
    std::int64_t written = 0;
    while (result->nextResult()) {
        written += std::max<std::int64_t>(result->affected(), 0);
    }
    return written;
}

} // namespace

void setStatementRecorder(StatementRecorder newRecorder) {
    recorder() = std::move(newRecorder);
}

void recordStatement(const std::string& text) {
    if (recorder()) {
        recorder()(text);
    }
    qCDebug(sqlCategory).noquote() << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

Connection::~Connection() = default;

void Connection::setConnectionString(const std::string& text) {
    if (IsOpen()) {
        throw Error(kObjectOpen);
    }
    connectionString_ = text;
}

void Connection::Open() {
    if (IsOpen()) {
        throw Error(kObjectOpen);
    }
    connect();
}

void Connection::connect() {
    refuseWhileWaiting();
    const ado::ConnectionString text(connectionString_);
    driver_ = driverFor(text).connect(text);
}

/// Connects again where the server was lost. Recordsets and holds opened before keep the lost connection, and their
/// next use of it fails.
void Connection::reconnect() {
    refuseWhileWaiting();
    if (!driver_->alive()) {
        connect();
    }
}

void Connection::Open(const std::string& text) {
    setConnectionString(text);
    Open();
}

void Connection::Close() {
    if (!IsOpen()) {
        throw Error(kObjectClosed);
    }
    refuseWhileWaiting();
    driver_.reset();
}

std::int64_t Connection::Execute(const std::string& text) {
    if (!IsOpen()) {
        throw Error(kObjectClosed);
    }
    recordStatement(text);
    try {
        reconnect();
        return runToTheEnd(*driver_, text);
    } catch (Error& error) {
        error.during(text);
        throw;
    }
}

std::shared_ptr<DriverConnection> Connection::driverConnection() {
    if (!IsOpen()) {
        throw Error(kConnectionUnusable);
    }
    reconnect();
    return driver_;
}

} // namespace ado
