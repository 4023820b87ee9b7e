// The documented cases through the wire: plain calls of ODBC to a server of the wire protocol.

#include "ado/TestServer.h"
#include "engine/run/DocumentedCases.h"

#include <QString>

#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ado {
namespace {

namespace documented = engine::documented;

std::vector<SQLWCHAR> wide(const std::string& text) {
    const std::u16string units = QString::fromStdString(text).toStdU16String();
    std::vector<SQLWCHAR> all(units.begin(), units.end());
    all.push_back(0);
    return all;
}

std::string utf8(const SQLWCHAR* text) {
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text)).toStdString();
}

/// One statement handle of one connection, which answers as `shown` of engine/SessionFixture.h does.
class OdbcSession {
public:
    explicit OdbcSession(const std::string& connectionText) {
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
        SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
        const SQLRETURN code = SQLDriverConnectW(connection_, nullptr, wide(connectionText).data(), SQL_NTS, nullptr, 0,
                                                 nullptr, SQL_DRIVER_NOPROMPT);
        if (!SQL_SUCCEEDED(code)) {
            throw std::runtime_error(diagnoses(SQL_HANDLE_DBC, connection_));
        }
        SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement_);
    }
    ~OdbcSession() {
        SQLFreeHandle(SQL_HANDLE_STMT, statement_);
        SQLDisconnect(connection_);
        SQLFreeHandle(SQL_HANDLE_DBC, connection_);
        SQLFreeHandle(SQL_HANDLE_ENV, environment_);
    }
    OdbcSession(const OdbcSession&) = delete;
    OdbcSession& operator=(const OdbcSession&) = delete;

    /// Without the results of statements that neither give nor write rows: the interface doesn't tell them.
    std::string answer(const std::string& text) {
        std::string all;
        for (SQLRETURN code = SQLExecDirectW(statement_, wide(text).data(), SQL_NTS); code != SQL_NO_DATA;
             code = SQLMoreResults(statement_)) {
            all += result(code);
        }
        SQLFreeStmt(statement_, SQL_CLOSE);
        return all;
    }

private:
    std::string result(SQLRETURN code) {
        std::string lines = code == SQL_SUCCESS ? std::string() : diagnoses(SQL_HANDLE_STMT, statement_);
        SQLSMALLINT columns = 0;
        if (!SQL_SUCCEEDED(code) || !SQL_SUCCEEDED(SQLNumResultCols(statement_, &columns))) {
            return lines;
        }
        if (columns == 0) {
            SQLLEN rows = -1;
            SQLRowCount(statement_, &rows);
            return rows < 0 ? lines : lines + "(" + std::to_string(rows) + ")\n";
        }
        for (SQLSMALLINT i = 1; i <= columns; ++i) {
            lines += (i == 1 ? "" : "|") + columnName(i);
        }
        lines += "\n";
        while ((code = SQLFetch(statement_)) != SQL_NO_DATA) {
            if (!SQL_SUCCEEDED(code)) {
                return diagnoses(SQL_HANDLE_STMT, statement_); // in place of the rows before, as in the engine
            }
            for (SQLSMALLINT i = 1; i <= columns; ++i) {
                lines += (i == 1 ? "" : "|") + value(i);
            }
            lines += "\n";
        }
        return lines;
    }

    std::string columnName(SQLSMALLINT column) const {
        std::array<SQLWCHAR, 256> name{};
        SQLDescribeColW(statement_, static_cast<SQLUSMALLINT>(column), name.data(),
                        static_cast<SQLSMALLINT>(name.size()), nullptr, nullptr, nullptr, nullptr, nullptr);
        return utf8(name.data());
    }

    std::string value(SQLSMALLINT column) const {
        std::string all;
        std::array<SQLWCHAR, 4096> piece{};
        SQLLEN length = 0;
        while (true) {
            const SQLRETURN code = SQLGetData(statement_, static_cast<SQLUSMALLINT>(column), SQL_C_WCHAR, piece.data(),
                                              sizeof piece, &length);
            if (code == SQL_NO_DATA) {
                return all;
            }
            if (!SQL_SUCCEEDED(code)) {
                return diagnoses(SQL_HANDLE_STMT, statement_);
            }
            if (length == SQL_NULL_DATA) {
                return "NULL";
            }
            all += utf8(piece.data());
            if (code == SQL_SUCCESS) {
                return all;
            }
        }
    }

    /// `!number text` for an error and `number: text` for what the server said, a line each.
    static std::string diagnoses(SQLSMALLINT kind, SQLHANDLE handle) {
        constexpr std::string_view kBefore = "[FreeTDS][SQL Server]";
        std::string all;
        std::array<SQLWCHAR, 6> state{};
        std::array<SQLWCHAR, 2048> text{};
        SQLINTEGER number = 0;
        for (SQLSMALLINT i = 1; SQL_SUCCEEDED(SQLGetDiagRecW(kind, handle, i, state.data(), &number, text.data(),
                                                             static_cast<SQLSMALLINT>(text.size()), nullptr));
             ++i) {
            std::string words = utf8(text.data());
            words.erase(0, words.starts_with(kBefore) ? kBefore.size() : 0);
            all += utf8(state.data()).starts_with("01") ? std::to_string(number) + ": "
                                                        : "!" + std::to_string(number) + " ";
            all += words + "\n";
        }
        return all;
    }

    SQLHANDLE environment_ = SQL_NULL_HANDLE;
    SQLHANDLE connection_ = SQL_NULL_HANDLE;
    SQLHANDLE statement_ = SQL_NULL_HANDLE;
};

class DocumentedOdbc : public ::testing::TestWithParam<documented::Kind> {
protected:
    DocumentedOdbc() { session.answer("CREATE DATABASE prova; USE prova"); }

    test::TestServer server{support::TestedDriver::Wire};
    OdbcSession session{"Driver=libtdsodbc.so;Server=127.0.0.1;Port=" + std::to_string(server.peer().port()) +
                        ";UID=sa;PWD=segreta;Database=master;TDS_Version=7.4;ClientCharset=UTF-8;"};
};

TEST_P(DocumentedOdbc, StatementsAreAnsweredAsTheirPagesSay) {
    for (const char* statement : documented::preparations()) {
        const std::string said = session.answer(statement);
        ASSERT_FALSE(said.starts_with("!")) << statement << "\n" << said;
    }
    for (const documented::Case& one : GetParam().cases) {
        const std::string said = session.answer(one.statement);
        const std::string_view firstLine = std::string_view(said).substr(0, said.find('\n'));
        const bool agreed = documented::agrees(firstLine, one.answer) && said.size() == firstLine.size() + 1;
        EXPECT_TRUE(agreed || said == documented::withoutSilentResults(one.answer))
            << one.statement << "\nsaid:       " << said << "\ndocumented: " << one.answer
            << "\nsource:     " << one.page;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, DocumentedOdbc,
                         ::testing::ValuesIn(documented::kinds().begin(), documented::kinds().end()),
                         [](const auto& kind) { return kind.param.name; });

} // namespace
} // namespace ado
