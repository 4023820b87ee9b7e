#include "engine/store/Sqlite.h"

#include "engine/store/Beside.h"
#include "engine/store/Idler.h"
#include "engine/store/Watched.h"
#include "engine/values/Collation.h"
#include "os/Files.h"
#include "os/Paths.h"

#include <sqlite3.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace engine::sqlite {
namespace {

constexpr std::chrono::milliseconds kWalRetryPause{5};

/// The number of the order that compareTexts has, kept as a file's `application_id`. Another one where it changes.
constexpr std::int64_t kOrderOfTexts = 1;

/// The system's number of the last error of a file, 0 where it had none.
int refusalOf(sqlite3_file* file) {
    int number = 0;
    if (file != nullptr && file->pMethods != nullptr) {
        file->pMethods->xFileControl(file, SQLITE_FCNTL_LAST_ERRNO, &number);
    }
    return number;
}

bool isTooLarge(sqlite3* handle) {
    sqlite3_file* file = nullptr;
    sqlite3_file* log = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_JOURNAL_POINTER, static_cast<void*>(&log));
    return refusalOf(file) == EFBIG || refusalOf(log) == EFBIG;
}

/// SQLite reports a full disk by itself. A file at the limit of its size counts as a full disk too.
Failure failureOf(sqlite3* handle) {
    const int code = sqlite3_extended_errcode(handle);
    const std::string text = sqlite3_errmsg(handle);
    return {code == SQLITE_IOERR_WRITE && isTooLarge(handle) ? SQLITE_FULL : code, text};
}

[[noreturn]] void fail(sqlite3* handle) {
    throw failureOf(handle);
}

void check(sqlite3* handle, int code) {
    if (code != SQLITE_OK) {
        fail(handle);
    }
}

int collate(void* /*unused*/, int leftSize, const void* left, int rightSize, const void* right) {
    return compareTexts({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

/// A database in use is never empty, so an empty file with a log beside it was emptied by somebody else. Turning the
/// write-ahead log on would wait in vain for the sessions that still use the old file.
bool wasEmptied(const std::filesystem::path& file) {
    std::error_code missing;
    const auto beside = [&](const char* ending) {
        std::filesystem::path part = file;
        return std::filesystem::exists(part += ending, missing);
    };
    return os::sizeOf(file) == 0U && (beside("-wal") || beside("-shm"));
}

/// Turning the write-ahead log on needs an exclusive lock for a moment, and the busy timeout doesn't cover it when two
/// processes make the same database.
void useWriteAheadLog(sqlite3* handle) {
    const auto end = std::chrono::steady_clock::now() + Patience::kUsual;
    while (true) {
        const int code = sqlite3_exec(handle, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
        if (code == SQLITE_OK) {
            return;
        }
        if ((code & 0xff) != SQLITE_BUSY || std::chrono::steady_clock::now() >= end) {
            fail(handle);
        }
        sqlite3_sleep(static_cast<int>(kWalRetryPause.count()));
    }
}

void configure(sqlite3* handle, Patience& patience) {
    check(handle, sqlite3_extended_result_codes(handle, 1));
    check(handle, sqlite3_busy_handler(handle, waitForWriter, &patience));
    check(handle, sqlite3_create_collation_v2(handle, "TSQL", SQLITE_UTF8, nullptr, collate, nullptr));
    // A name in double quotes that isn't known must be refused, not read as a text.
    check(handle, sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr));
    check(handle, sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr));
    // The filter that an automatic index gets tells texts apart by their lengths, whatever the collation says of
    // blanks.
    constexpr int kBloomFilter = 0x00080000; // source: the list of optimizations in SQLite's own shell
    check(handle, sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, handle, kBloomFilter));
    useWriteAheadLog(handle);
    check(handle, sqlite3_exec(handle, "PRAGMA synchronous=FULL; PRAGMA foreign_keys=OFF", nullptr, nullptr, nullptr));
}

/// The indexes of a file that was written under another order of texts are made anew.
void putInOrder(Connection& connection) {
    const auto inOrder = [&] {
        Statement order(connection, "PRAGMA application_id");
        return order.step() && order.integer(0) == kOrderOfTexts;
    };
    if (inOrder()) {
        return;
    }
    Transaction transaction(connection);
    if (!inOrder()) {
        connection.run("REINDEX TSQL; PRAGMA application_id = " + std::to_string(kOrderOfTexts));
    }
    transaction.commit();
}

int stepped(sqlite3_stmt* statement) {
    const Watched watched(sqlite3_db_handle(statement));
    return sqlite3_step(statement);
}

} // namespace

bool holdsTable(const std::filesystem::path& file, std::string_view table) {
    sqlite3* handle = nullptr;
    sqlite3_stmt* row = nullptr;
    const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    const bool found =
        sqlite3_open_v2(os::utf8Of(file).c_str(), &handle, flags, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(handle, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1", -1, &row,
                           nullptr) == SQLITE_OK &&
        sqlite3_bind_text(row, 1, table.data(), static_cast<int>(table.size()), SQLITE_STATIC) == SQLITE_OK &&
        sqlite3_step(row) == SQLITE_ROW;
    sqlite3_finalize(row);
    sqlite3_close_v2(handle);
    return found;
}

Connection::Connection(const std::filesystem::path& file, bool create) : patience_(std::make_unique<Patience>()) {
    if (create) {
        os::makeFileOfOwner(file); // the files beside it (log and index of the log) get its rights, or the folder's
    }
    if (wasEmptied(file)) {
        throw Failure(SQLITE_NOTADB, sqlite3_errstr(SQLITE_NOTADB));
    }
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(os::utf8Of(file).c_str(), &handle_, flags, nullptr);
    try {
        if (code != SQLITE_OK) {
            fail(handle_);
        }
        configure(handle_, *patience_);
        putInOrder(*this);
    } catch (...) {
        sqlite3_close_v2(handle_);
        throw;
    }
}

Connection::~Connection() {
    begin_.reset();
    lock_.reset();
    commit_.reset();
    sqlite3_close_v2(handle_);
}

void Connection::run(const std::string& text) {
    const Watched watched(handle_);
    check(handle_, sqlite3_exec(handle_, text.c_str(), nullptr, nullptr, nullptr));
}

bool Connection::inTransaction() const {
    return sqlite3_get_autocommit(handle_) == 0;
}

bool Connection::isIdle() const {
    constexpr int kFirstBeside = 2; // behind the database itself and the one of temporary tables
    return !inTransaction() && sqlite3_txn_state(handle_, nullptr) == SQLITE_TXN_NONE &&
           sqlite3_db_name(handle_, kFirstBeside) == nullptr;
}

void Connection::waitAtMost(std::int64_t milliseconds) {
    patience_->most = milliseconds < 0 ? Patience::kUsual : std::chrono::milliseconds(milliseconds);
}

bool Connection::isMoved() const {
    int moved = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0 || wasEmptied(os::pathOf(sqlite3_db_filename(handle_, "main")));
}

std::int64_t Connection::changes() const {
    return sqlite3_changes64(handle_);
}

std::int64_t Connection::lastRow() const {
    return sqlite3_last_insert_rowid(handle_);
}

void Connection::begin() {
    changedBefore_ = sqlite3_total_changes64(handle_);
    if (!begin_) {
        begin_ = std::make_unique<Statement>(*this, lock_ ? "BEGIN" : "BEGIN IMMEDIATE");
    }
    begin_->run();
    if (!lock_) {
        return;
    }
    try {
        lock_->run();
    } catch (...) {
        rollback();
        throw;
    }
}

void Connection::commit() {
    if (!commit_) {
        commit_ = std::make_unique<Statement>(*this, "COMMIT");
    }
    // What many rows leave to be written takes long, and SQLite tells nothing of its progress.
    constexpr std::int64_t kMany = 1'000;
    if (hasIdler() && sqlite3_total_changes64(handle_) - changedBefore_ >= kMany) {
        runBeside([this] { commit_->run(); });
    } else {
        commit_->run();
    }
}

void Connection::rollback() noexcept {
    if (inTransaction()) {
        sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Connection::lockBy(std::string_view text) {
    lock_ = std::make_unique<Statement>(*this, text);
    begin_.reset();
}

Statement::Statement(Connection& connection, std::string_view text) {
    check(connection.handle(), sqlite3_prepare_v3(connection.handle(), text.data(), static_cast<int>(text.size()),
                                                  SQLITE_PREPARE_PERSISTENT, &handle_, nullptr));
    if (handle_ == nullptr) {
        throw Failure(SQLITE_MISUSE, "an empty statement");
    }
}

Statement::~Statement() {
    sqlite3_finalize(handle_);
}

Statement::Statement(Statement&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

void Statement::bindNull(int place) {
    check(sqlite3_db_handle(handle_), sqlite3_bind_null(handle_, place));
}

void Statement::bind(int place, std::int64_t value) {
    check(sqlite3_db_handle(handle_), sqlite3_bind_int64(handle_, place, value));
}

void Statement::bind(int place, double value) {
    check(sqlite3_db_handle(handle_), sqlite3_bind_double(handle_, place, value));
}

void Statement::bind(int place, std::string_view value) {
    // A null pointer would bind NULL; an empty view may carry one.
    const char* data = value.data() == nullptr ? "" : value.data();
    check(sqlite3_db_handle(handle_),
          sqlite3_bind_text64(handle_, place, data, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

bool Statement::step() {
    const int code = stepped(handle_);
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        // The error is taken before the reset, which frees the locks that the failed statement kept.
        const Failure failure = failureOf(sqlite3_db_handle(handle_));
        sqlite3_reset(handle_);
        throw failure;
    }
    return false;
}

void Statement::reset() {
    sqlite3_reset(handle_);
}

void Statement::run() {
    step();
    reset();
}

int Statement::columns() const {
    return sqlite3_column_count(handle_);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

bool Statement::isInteger(int column) const {
    return sqlite3_column_type(handle_, column) == SQLITE_INTEGER;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(handle_, column);
}

double Statement::real(int column) const {
    return sqlite3_column_double(handle_, column);
}

std::string_view Statement::text(int column) const {
    sqlite3_value* value = sqlite3_column_value(handle_, column); // found once, for both its text and its size
    const auto* data = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (data == nullptr) {
        return {};
    }
    return {data, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

Transaction::Transaction(Connection& connection) : connection_(connection), nested_(connection.inTransaction()) {
    if (nested_) {
        connection_.run("SAVEPOINT nested");
    } else {
        connection_.begin();
    }
}

Transaction::~Transaction() {
    if (!open_) {
        return;
    }
    if (!nested_) {
        connection_.rollback();
    } else if (connection_.inTransaction()) {
        sqlite3_exec(connection_.handle(), "ROLLBACK TO nested; RELEASE nested", nullptr, nullptr, nullptr);
    }
}

void Transaction::commit() {
    if (nested_) {
        connection_.run("RELEASE nested");
    } else {
        connection_.commit();
    }
    open_ = false;
}

} // namespace engine::sqlite
