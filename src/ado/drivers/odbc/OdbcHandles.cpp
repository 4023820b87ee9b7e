#include "ado/drivers/odbc/OdbcHandles.h"

#include "ado/ServerErrors.h"

#include <QLoggingCategory>
#include <QString>

#include <array>
#include <utility>

namespace ado::odbc {

namespace {

Q_LOGGING_CATEGORY(odbcLog, "vabo.odbc", QtInfoMsg)

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

struct Diagnostic {
    std::string state;
    int native = 0;
    std::string text;

    bool isInformation() const { return state.rfind("01", 0) == 0; }
};

Diagnostic diagnosticAt(const Handle& handle, SQLSMALLINT number, bool& found) {
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLGetDiagRecW(handle.kind(), handle.get(), number, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
    found = SQL_SUCCEEDED(code);
    if (!found)
        return {};
    const auto characters = std::min<std::size_t>(static_cast<std::size_t>(length), text.size() - 1);
    return {toUtf8(state.data(), 5), native, toUtf8(text.data(), characters)};
}

/// The server's words without the names of the layers they came through: "[a][b][c]text" is "text".
std::string withoutLayers(std::string text) {
    while (!text.empty() && text.front() == '[') {
        const auto end = text.find(']');
        if (end == std::string::npos)
            break;
        text.erase(0, end + 1);
    }
    return text;
}

Error errorFrom(const Handle& handle, const char* call) {
    Diagnostic chosen;
    std::string others;
    bool found = true;
    for (SQLSMALLINT number = 1; found; ++number) {
        const Diagnostic record = diagnosticAt(handle, number, found);
        if (!found)
            break;
        if (chosen.text.empty() && !record.isInformation())
            chosen = record;
        else
            others += (others.empty() ? "" : "; ") + record.state + " " + record.text;
    }
    const std::string text = withoutLayers(chosen.text);
    const bool fromServer = chosen.native > 0 && chosen.state.rfind("08", 0) != 0;
    Error error = fromServer
                      ? serverError(chosen.native, text)
                      : Error(chosen.state == "28000" ? kLogin : kUnspecified, text, chosen.state, chosen.native, {});
    error.in(call);
    if (!others.empty())
        error.in(others);
    return error;
}

} // namespace

Handle::Handle(SQLSMALLINT kind, SQLHANDLE parent) : kind_(kind) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle_)))
        throw Error(kUnspecified, "No more handles of the data source interface.");
}

Handle::~Handle() {
    if (handle_)
        SQLFreeHandle(kind_, handle_);
}

Handle::Handle(Handle&& other) noexcept : kind_(other.kind_), handle_(std::exchange(other.handle_, nullptr)) {}

Handle& Handle::operator=(Handle&& other) noexcept {
    std::swap(kind_, other.kind_);
    std::swap(handle_, other.handle_);
    return *this;
}

SQLHANDLE environment() {
    static const Handle shared = [] {
        SQLSetEnvAttr(SQL_NULL_HANDLE, SQL_ATTR_CONNECTION_POOLING, reinterpret_cast<SQLPOINTER>(SQL_CP_ONE_PER_DRIVER),
                      0);
        Handle handle(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
        check(SQLSetEnvAttr(handle.get(), SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0), handle,
              "SQLSetEnvAttr");
        return handle;
    }();
    return shared.get();
}

bool check(SQLRETURN code, const Handle& handle, const char* call) {
    qCDebug(odbcLog, "%s: %d", call, code);
    if (SQL_SUCCEEDED(code))
        return true;
    if (code == SQL_NO_DATA || code == SQL_NEED_DATA)
        return false;
    throw errorFrom(handle, call);
}

std::u16string toUtf16(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdU16String();
}

std::string toUtf8(const SQLWCHAR* text, std::size_t characters) {
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text), static_cast<qsizetype>(characters))
        .toStdString();
}

} // namespace ado::odbc
