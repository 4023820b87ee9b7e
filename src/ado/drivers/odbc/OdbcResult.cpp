#include "ado/drivers/odbc/OdbcResult.h"

#include "ado/WhileWaiting.h"
#include "ado/drivers/odbc/Aside.h"
#include "ado/drivers/odbc/SilentServers.h"

#include <QString>

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <utility>

namespace ado::odbc {

namespace {

constexpr std::size_t kTextPiece = 4096;
constexpr SQLULEN kLongestText = 4000;

FieldType fieldType(SQLSMALLINT type, SQLULEN size, SQLSMALLINT digits) {
    switch (type) {
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        // Money and smallmoney arrive as decimals of these sizes.
        return digits == 4 && (size == 19 || size == 10) ? FieldType::Currency : FieldType::Decimal;
    case SQL_BIT:
        return FieldType::Boolean;
    case SQL_TINYINT:
        return FieldType::Byte;
    case SQL_SMALLINT:
        return FieldType::SmallInt;
    case SQL_INTEGER:
        return FieldType::Integer;
    case SQL_BIGINT:
        return FieldType::BigInt;
    case SQL_REAL:
        return FieldType::Single;
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return FieldType::Double;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
        return FieldType::DateTime;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return FieldType::Binary;
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
        return FieldType::Char;
    default:
        return FieldType::WChar;
    }
}

} // namespace

OdbcResult::OdbcResult(std::shared_ptr<const Handle> connection, std::string server, std::string_view text, int timeout)
    : connection_(std::move(connection)), server_(std::move(server)), statement_(SQL_HANDLE_STMT, connection_->get()) {
    check(SQLSetStmtAttrW(statement_.get(), SQL_ATTR_QUERY_TIMEOUT, asPointer(static_cast<std::uintptr_t>(timeout)), 0),
          statement_, "SQLSetStmtAttr");
    if (text.find('\0') != std::string_view::npos) { // ODBC would send and run only the part before it
        throw Error(kSyntaxOrColumn, "A statement can't hold a NUL character.");
    }
    qCDebug(odbcLog).noquote() << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    std::u16string wide = toUtf16(text);
    aside([&] {
        executed_ = SQLExecDirectW(statement_.get(), reinterpret_cast<SQLWCHAR*>(wide.data()),
                                   static_cast<SQLINTEGER>(wide.size()));
    });
}

/// As `check`, but gives the error for a lost server a text of its own, for which drivers have no common one.
bool OdbcResult::answered(SQLRETURN code, const char* call) {
    try {
        return check(code, statement_, call);
    } catch (const Error& error) {
        if (isServers(error.nativeError()) || !isDead(*connection_)) {
            throw;
        }
        forgetAnswer(server_);
        if (isSilence(error)) {
            rememberSilent(server_, error);
            throw;
        }
        Error gone(kUnspecified, "Communication link failure", "08S01", error.nativeError(), {});
        throw gone.in(error.description()).in(error.context());
    }
}

bool OdbcResult::nextResult() {
    refuseWhileWaiting();
    SQLRETURN code = executed_;
    const bool first = !started_;
    if (!first) {
        aside([&] { code = SQLMoreResults(statement_.get()); });
    }
    started_ = true;
    fields_.clear();
    rows_.clear();
    at_ = read_ = 0;
    fetched_ = SQL_SUCCESS;
    failure_ = nullptr;
    affected_ = -1;
    // For an UPDATE or DELETE that found no row SQLExecDirect returns "no data", which is a result here.
    if (!answered(code, first ? "SQLExecDirect" : "SQLMoreResults") && !first) {
        return false;
    }
    describe();
    return true;
}

void OdbcResult::describe() {
    SQLSMALLINT columns = 0;
    check(SQLNumResultCols(statement_.get(), &columns), statement_, "SQLNumResultCols");
    for (SQLSMALLINT number = 1; number <= columns; ++number) {
        fields_.push_back(describeField(static_cast<SQLUSMALLINT>(number)));
    }
    if (columns > 0) {
        return;
    }
    SQLLEN rows = -1;
    check(SQLRowCount(statement_.get(), &rows), statement_, "SQLRowCount");
    affected_ = rows;
}

FieldDescription OdbcResult::describeField(SQLUSMALLINT number) {
    std::array<SQLWCHAR, 256> name{};
    SQLSMALLINT length = 0, type = 0, digits = 0, nullable = 0;
    SQLULEN size = 0;
    check(SQLDescribeColW(statement_.get(), number, name.data(), static_cast<SQLSMALLINT>(name.size()), &length, &type,
                          &size, &digits, &nullable),
          statement_, "SQLDescribeCol");
    SQLLEN identity = SQL_FALSE;
    SQLColAttributeW(statement_.get(), number, SQL_DESC_AUTO_UNIQUE_VALUE, nullptr, 0, nullptr, &identity);

    FieldDescription field;
    field.name = toUtf8(name.data(), static_cast<std::size_t>(length));
    field.type = fieldType(type, size, digits);
    field.length = size == 0 || size > kLongestText ? -1 : static_cast<int>(size);
    field.precision = static_cast<int>(size);
    field.scale = digits;
    field.nullable = nullable != SQL_NO_NULLS;
    field.identity = identity == SQL_TRUE;
    return field;
}

bool OdbcResult::nextRow() {
    refuseWhileWaiting();
    if (++at_ < read_) {
        return true;
    }
    if (SQL_SUCCEEDED(fetched_) && !failure_) {
        at_ = read_ = 0;
        readAhead();
    }
    if (at_ < read_) {
        return true;
    }
    if (failure_) {
        std::rethrow_exception(std::exchange(failure_, nullptr));
    }
    return answered(std::exchange(fetched_, SQL_SUCCESS), "SQLFetch");
}

/// One row; or, where the thread has something to do while it waits, several of them: to wait for each on its own would
/// take longer than to read it.
void OdbcResult::readAhead() {
    using Clock = std::chrono::steady_clock;
    static constexpr std::size_t kMost = 100;
    static constexpr std::chrono::milliseconds kMoment{20};
    if (!isWaitingUsed()) {
        readRow();
        return;
    }
    aside([&] {
        const auto end = Clock::now() + kMoment;
        while (readRow() && read_ < kMost && Clock::now() < end) {
        }
    });
    whileWaiting();
}

/// False where there is no further row for now: `fetched_` or `failure_` tells why.
bool OdbcResult::readRow() {
    fetched_ = SQLFetch(statement_.get());
    if (!SQL_SUCCEEDED(fetched_)) {
        return false;
    }
    if (read_ == rows_.size()) {
        rows_.emplace_back(fields_.size());
    }
    try {
        for (std::size_t number = 1; number <= fields_.size(); ++number) {
            read(static_cast<SQLUSMALLINT>(number), rows_[read_][number - 1]);
        }
    } catch (...) {
        failure_ = std::current_exception();
        return false;
    }
    ++read_;
    return true;
}

void OdbcResult::read(SQLUSMALLINT number, Cell& cell) {
    SQLLEN length = 0;
    const auto get = [&](SQLSMALLINT type, SQLPOINTER target, SQLLEN room) {
        check(SQLGetData(statement_.get(), number, type, target, room, &length), statement_, "SQLGetData");
        cell.null = length == SQL_NULL_DATA;
    };
    switch (fields_[number - 1U].type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::SmallInt:
    case FieldType::Integer:
    case FieldType::BigInt:
        get(SQL_C_SBIGINT, &cell.integer, sizeof cell.integer);
        return;
    case FieldType::Single:
    case FieldType::Double:
        get(SQL_C_DOUBLE, &cell.real, sizeof cell.real);
        return;
    case FieldType::DateTime: {
        SQL_TIMESTAMP_STRUCT at{};
        get(SQL_C_TYPE_TIMESTAMP, &at, sizeof at);
        std::array<char, 48> written{}; // large enough for any numbers that a faulty driver may return
        std::snprintf(written.data(), written.size(), "%04d-%02u-%02u %02u:%02u:%02u.%03u", at.year, at.month, at.day,
                      at.hour, at.minute, at.second, static_cast<unsigned>(at.fraction / 1'000'000));
        cell.text = written.data();
        return;
    }
    case FieldType::Currency:
    case FieldType::Decimal:
        readText(number, cell);
        cell.real = 0;
        std::from_chars(cell.text.data(), cell.text.data() + cell.text.size(), cell.real);
        return;
    default:
        readText(number, cell);
        return;
    }
}

void OdbcResult::readText(SQLUSMALLINT number, Cell& cell) {
    cell.text.clear();
    cell.null = false;
    buffer_.resize(kTextPiece); // allocated here, since most statements read no text
    while (true) {
        SQLLEN length = 0;
        const SQLRETURN code = SQLGetData(statement_.get(), number, SQL_C_WCHAR, buffer_.data(),
                                          static_cast<SQLLEN>(buffer_.size() * sizeof(SQLWCHAR)), &length);
        if (!check(code, statement_, "SQLGetData")) {
            return;
        }
        if (length == SQL_NULL_DATA) {
            cell.null = true;
            return;
        }
        const std::size_t room = buffer_.size() - 1;
        const auto characters = static_cast<std::size_t>(length) / sizeof(SQLWCHAR);
        const bool more = code == SQL_SUCCESS_WITH_INFO && (length == SQL_NO_TOTAL || characters > room);
        cell.text += toUtf8(buffer_.data(), more ? room : characters);
        if (!more) {
            return;
        }
    }
}

} // namespace ado::odbc
