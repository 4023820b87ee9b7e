#pragma once

// The one door to SQLite: a connection and a statement that own their handles and answer in exceptions.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace engine::sqlite {

/// An error of the storage itself. `code` is the extended result code. Translated to the server's numbers above.
class Failure : public std::runtime_error {
public:
    Failure(int code, const std::string& text) : std::runtime_error(text), code_(code) {}
    int code() const { return code_; }

private:
    int code_;
};

class Connection {
public:
    /// Opens a file with WAL, synchronous=FULL and a busy timeout; `create` makes a missing file (owner only).
    Connection(const std::filesystem::path& file, bool create);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    sqlite3* handle() const { return handle_; }
    /// Runs a text without results.
    void run(const std::string& text);
    bool inTransaction() const;
    std::int64_t changes() const;
    std::int64_t lastRow() const;

private:
    sqlite3* handle_ = nullptr;
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

    int columns() const;
    bool isNull(int column) const;
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string_view text(int column) const;

private:
    sqlite3_stmt* handle_ = nullptr;
};

/// BEGIN IMMEDIATE now, ROLLBACK at the end unless committed. Nested use is a savepoint.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    void commit();

private:
    Connection& connection_;
    bool open_ = true;
    bool nested_ = false;
};

} // namespace engine::sqlite
