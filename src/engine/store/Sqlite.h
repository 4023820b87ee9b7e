#pragma once

// Connections, statements and transactions of SQLite. They own their handles and throw Failure.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace engine::sqlite {

/// An error of SQLite. `code` is the extended result code; StorageErrors.h gives the server's error for it.
class Failure : public std::runtime_error {
public:
    Failure(int code, const std::string& text) : std::runtime_error(text), code_(code) {}
    int code() const { return code_; }

private:
    int code_;
};

struct Patience;
class Statement;

/// Whether a file is a database with that table. Writes nothing to it, and doesn't wait for another program that keeps
/// it for itself: false.
bool holdsTable(const std::filesystem::path& file, std::string_view table);

class Connection {
public:
    /// Opens a file with WAL, synchronous=FULL and a busy timeout; `create` makes a missing file (owner only).
    /// Indexes that another order of texts has left in the file are made anew.
    Connection(const std::filesystem::path& file, bool create);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    sqlite3* handle() const { return handle_; }
    /// Runs a text without results.
    void run(const std::string& text);
    bool inTransaction() const;
    /// Nothing is being read or written, and no other database stands beside it.
    bool isIdle() const;
    /// Whether the file has gone, was emptied, or is another one by now.
    bool isMoved() const;
    /// How long it waits for another writer, in milliseconds; below 0 the usual ten seconds.
    void waitAtMost(std::int64_t milliseconds);
    std::int64_t changes() const;
    std::int64_t lastRow() const;

    /// A transaction that writes; its lock is taken at once. Transaction below ends it whatever happens.
    void begin();
    void commit();
    /// Never throws: a full disk and the like may have ended the transaction already.
    void rollback() noexcept;
    /// A statement that writes nothing in `main`, by which `begin` locks this database alone: BEGIN IMMEDIATE locks the
    /// attached ones too, which another transaction of the same session may be writing.
    void lockBy(std::string_view text);

private:
    sqlite3* handle_ = nullptr;
    std::unique_ptr<Patience> patience_;               ///< at a place that stays
    std::unique_ptr<Statement> begin_, lock_, commit_; ///< prepared when first needed
    std::int64_t changedBefore_ = 0;                   ///< rows, ahead of the transaction
};

class Statement {
public:
    Statement(Connection& connection, std::string_view text);
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;

    sqlite3_stmt* handle() const { return handle_; }
    void bindNull(int place); // places count from 1
    void bind(int place, std::int64_t value);
    void bind(int place, double value);
    void bind(int place, std::string_view value); ///< copied
    /// True while there is a row.
    bool step();
    void reset();
    /// To its end, for a text without rows.
    void run();

    int columns() const;
    bool isNull(int column) const;
    bool isInteger(int column) const;
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string_view text(int column) const; ///< without data for a null

private:
    sqlite3_stmt* handle_ = nullptr;
};

/// Begins now, rolls back at the end unless committed. Inside of another transaction it is a savepoint.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    Connection& connection_;
    bool open_ = true;
    bool nested_ = false;
};

} // namespace engine::sqlite
