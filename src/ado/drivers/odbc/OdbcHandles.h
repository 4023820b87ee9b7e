#pragma once

// The checked door to ODBC: handles that own themselves, and one function that turns a return code into an answer.

#include "ado/Error.h"

#include <QLoggingCategory>

#include <sql.h>
#include <sqlext.h>

#include <string>
#include <string_view>

namespace ado::odbc {

/// Every call and every text, off by default: "vabo.odbc".
Q_DECLARE_LOGGING_CATEGORY(odbcLog)

/// Owns one handle of its kind; a connection is closed with it.
class Handle {
public:
    Handle() = default;
    /// Throws Error where the handle can't be had.
    Handle(SQLSMALLINT kind, SQLHANDLE parent);
    ~Handle();
    Handle(Handle&& other) noexcept;
    Handle& operator=(Handle&& other) noexcept;

    SQLHANDLE get() const { return handle_; }
    SQLSMALLINT kind() const { return kind_; }
    explicit operator bool() const { return handle_ != nullptr; }

private:
    SQLSMALLINT kind_ = 0;
    SQLHANDLE handle_ = nullptr;
};

/// The process's environment. Connections are kept for the next one where the registry of drivers says so, too.
SQLHANDLE environment();

/// True for success with or without information, false for "no data" and "need data". Throws Error with all diagnostic
/// records of the handle: the first one that is an error gives number and text, the others follow as context.
bool check(SQLRETURN code, const Handle& handle, const char* call);

/// Whether a number is the server's own: drivers have numbers for what happens on the road there.
bool isServers(int nativeError);

/// Whether the driver knows that the connection's server has gone.
bool isDead(const Handle& connection);

/// A number as the attribute functions take it.
inline SQLPOINTER asPointer(unsigned long number) {
    return reinterpret_cast<SQLPOINTER>(number); // NOLINT(performance-no-int-to-ptr)
}

std::u16string toUtf16(std::string_view text);
std::string toUtf8(const SQLWCHAR* text, std::size_t characters);

} // namespace ado::odbc
