#pragma once

// Access to ODBC: handles that are freed automatically, and one function that checks return codes.

#include "ado/Error.h"

#include <QLoggingCategory>

#include <sql.h>
#include <sqlext.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ado::odbc {

/// "vabo.odbc": every call and every text; off by default.
Q_DECLARE_LOGGING_CATEGORY(odbcLog)

/// Owns one handle. That of a connection is disconnected before it is freed.
class Handle {
public:
    Handle() = default;
    /// Throws Error where the handle can't be allocated.
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

/// The environment of the process, with connection pooling on. It takes effect where the driver manager's configuration
/// allows it.
SQLHANDLE environment();

/// True for success with or without information, false for "no data" and "need data", else throws Error. Its number and
/// text are those of one of the handle's diagnostic records, the server's error before the driver's; the others are its
/// context.
bool check(SQLRETURN code, const Handle& handle, const char* call);

/// Whether a native error number is the server's. Drivers use numbers of their own for errors of the connection.
bool isServers(int nativeError);

/// Whether the driver has noticed that the connection to its server is lost.
bool isDead(const Handle& connection);

/// A number as the functions for attributes expect it.
inline SQLPOINTER asPointer(std::uintptr_t number) {
    return reinterpret_cast<SQLPOINTER>(number); // NOLINT(performance-no-int-to-ptr)
}

std::u16string toUtf16(std::string_view text);
std::string toUtf8(const SQLWCHAR* text, std::size_t characters);

} // namespace ado::odbc
