#include "ado/drivers/odbc/OdbcHandles.h"

#include "ado/ServerErrors.h"

#include <QString>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace ado::odbc {

Q_LOGGING_CATEGORY(odbcLog, "vabo.odbc", QtInfoMsg)

namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

/// The native error numbers of FreeTDS itself.
constexpr int kFirstOfDriver = 20000, kLastOfDriver = 20999;

struct Diagnostic {
    std::string state;
    int native = 0;
    std::string text;

    bool isInformation() const { return state.starts_with("01"); }
    bool isServers() const { return odbc::isServers(native) && !isInformation() && !state.starts_with("08"); }
};

Diagnostic diagnosticAt(const Handle& handle, SQLSMALLINT number, bool& found) {
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLGetDiagRecW(handle.kind(), handle.get(), number, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
    found = SQL_SUCCEEDED(code);
    if (!found) {
        return {};
    }
    const auto characters = std::min<std::size_t>(static_cast<std::size_t>(length), text.size() - 1);
    return {toUtf8(state.data(), 5), native, toUtf8(text.data(), characters)};
}

/// The text without the names of the layers that it came through: "[a][b][c]text" becomes "text".
std::string withoutLayers(std::string text) {
    while (!text.empty() && text.front() == '[') {
        const auto end = text.find(']');
        if (end == std::string::npos) {
            break;
        }
        text.erase(0, end + 1);
    }
    return text;
}

std::vector<Diagnostic> diagnosticsOf(const Handle& handle) {
    std::vector<Diagnostic> all;
    bool found = true;
    for (SQLSMALLINT number = 1; found; ++number) {
        Diagnostic record = diagnosticAt(handle, number, found);
        if (found) {
            all.push_back(std::move(record));
        }
    }
    return all;
}

/// The place of the record that tells what happened: the server's first error, else the driver's, else the first
/// record.
std::size_t tellingOf(const std::vector<Diagnostic>& all) {
    const auto first = [&](auto test) { return std::ranges::find_if(all, test); };
    auto found = first(&Diagnostic::isServers);
    if (found == all.end()) {
        found = first([](const Diagnostic& record) { return !record.isInformation(); });
    }
    return found == all.end() ? 0 : static_cast<std::size_t>(found - all.begin());
}

Error errorFrom(const Handle& handle, const char* call) {
    const std::vector<Diagnostic> all = diagnosticsOf(handle);
    if (all.empty()) {
        return Error(kUnspecified, "Unspecified error").in(call);
    }
    const std::size_t telling = tellingOf(all);
    const Diagnostic& record = all[telling];
    const std::string text = withoutLayers(record.text);
    Error error = record.isServers()
                      ? serverError(record.native, text)
                      : Error(record.state == "28000" ? kLogin : kUnspecified, text, record.state, record.native, {});
    error.in(call);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i != telling) {
            error.in(all[i].state + " " + all[i].text);
        }
    }
    return error;
}

} // namespace

Handle::Handle(SQLSMALLINT kind, SQLHANDLE parent) : kind_(kind) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle_))) {
        throw Error(kUnspecified, "No more handles of the data source interface.");
    }
}

Handle::~Handle() {
    if (!handle_) {
        return;
    }
    if (kind_ == SQL_HANDLE_DBC) {
        SQLDisconnect(handle_);
    }
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
        SQLSetEnvAttr(SQL_NULL_HANDLE, SQL_ATTR_CONNECTION_POOLING, asPointer(SQL_CP_ONE_PER_DRIVER), 0);
        Handle handle(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
        check(SQLSetEnvAttr(handle.get(), SQL_ATTR_ODBC_VERSION, asPointer(SQL_OV_ODBC3), 0), handle, "SQLSetEnvAttr");
        return handle;
    }();
    return shared.get();
}

bool isServers(int nativeError) {
    return nativeError > 0 && (nativeError < kFirstOfDriver || nativeError > kLastOfDriver);
}

bool isDead(const Handle& connection) {
    SQLINTEGER dead = SQL_CD_TRUE;
    SQLGetConnectAttrW(connection.get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
    return dead == SQL_CD_TRUE;
}

bool check(SQLRETURN code, const Handle& handle, const char* call) {
    qCDebug(odbcLog, "%s: %d", call, code);
    if (SQL_SUCCEEDED(code)) {
        return true;
    }
    if (code == SQL_NO_DATA || code == SQL_NEED_DATA) {
        return false;
    }
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
