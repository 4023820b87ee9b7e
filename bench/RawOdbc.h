#pragma once

#include "ado/drivers/odbc/OdbcHandles.h"

#include <array>
#include <stdexcept>
#include <string>

namespace bench {

inline void needed(SQLRETURN code, const char* call) {
    if (!SQL_SUCCEEDED(code)) {
        throw std::runtime_error(std::string(call) + " failed");
    }
}

inline SQLCHAR* narrow(std::string& text) {
    return reinterpret_cast<SQLCHAR*>(text.data());
}

/// A connection with only the ODBC calls that are necessary.
class RawConnection {
public:
    RawConnection() { needed(SQLAllocHandle(SQL_HANDLE_DBC, ado::odbc::environment(), &handle_), "SQLAllocHandle"); }
    ~RawConnection() {
        close();
        SQLFreeHandle(SQL_HANDLE_DBC, handle_);
    }
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;

    void open(std::string text) {
        needed(SQLDriverConnect(handle_, nullptr, narrow(text), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
               "SQLDriverConnect");
    }
    void close() { SQLDisconnect(handle_); }
    SQLHANDLE get() const { return handle_; }

private:
    SQLHANDLE handle_ = nullptr;
};

class RawStatement {
public:
    explicit RawStatement(const RawConnection& connection) {
        needed(SQLAllocHandle(SQL_HANDLE_STMT, connection.get(), &handle_), "SQLAllocHandle");
    }
    ~RawStatement() { SQLFreeHandle(SQL_HANDLE_STMT, handle_); }
    RawStatement(const RawStatement&) = delete;
    RawStatement& operator=(const RawStatement&) = delete;

    void run(std::string text) {
        needed(SQLExecDirect(handle_, narrow(text), static_cast<SQLINTEGER>(text.size())), "SQLExecDirect");
        SQLFreeStmt(handle_, SQL_CLOSE);
    }
    /// A selection, every column of every row fetched as text.
    void read(std::string text) {
        needed(SQLExecDirect(handle_, narrow(text), static_cast<SQLINTEGER>(text.size())), "SQLExecDirect");
        SQLSMALLINT columns = 0;
        needed(SQLNumResultCols(handle_, &columns), "SQLNumResultCols");
        std::array<char, 300> value{};
        while (SQL_SUCCEEDED(SQLFetch(handle_))) {
            for (SQLSMALLINT column = 1; column <= columns; ++column) {
                SQLLEN length = 0;
                SQLGetData(handle_, static_cast<SQLUSMALLINT>(column), SQL_C_CHAR, value.data(), value.size(), &length);
            }
        }
        SQLFreeStmt(handle_, SQL_CLOSE);
    }

private:
    SQLHANDLE handle_ = nullptr;
};

} // namespace bench
