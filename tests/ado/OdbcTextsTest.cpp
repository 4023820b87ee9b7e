#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/drivers/odbc/OdbcConnection.h"
#include "ado/drivers/odbc/OdbcDriverName.h"
#include "ado/drivers/odbc/OdbcSources.h"

#include <gtest/gtest.h>

namespace ado::odbc {
namespace {

using Names = std::vector<std::string>;

struct Resolution {
    const char* name;
    Names registered;
    const char* resolved;
};

TEST(OdbcDriverName, TakesTheNameAsItStandsElseMicrosoftsNewestElseFreeTds) {
    const Resolution resolutions[] = {
        {"SQL Server", {"FreeTDS", "SQL Server", "ODBC Driver 18 for SQL Server"}, "SQL Server"},
        {"SQL Server",
         {"FreeTDS", "ODBC Driver 17 for SQL Server", "ODBC Driver 18 for SQL Server", "ODBC Driver 9 for SQL Server"},
         "ODBC Driver 18 for SQL Server"},
        {"SQL Server", {"SQLite3", "FreeTDS"}, "FreeTDS"},
        {"SQL Server", {"SQLite3"}, "SQL Server"},
        {"sql server", {"SQLite3", "FreeTDS"}, "FreeTDS"},
        {"sql server", {"SQLite3"}, "sql server"},
        {"SQL Server", {}, "SQL Server"},
        {"SQLite3", {"FreeTDS", "SQLite3"}, "SQLite3"},
        {"Altro", {"FreeTDS"}, "Altro"},
    };
    for (const Resolution& one : resolutions) {
        EXPECT_EQ(resolveDriver(one.name, one.registered), one.resolved);
    }
}

TEST(OdbcDriverName, OneThatNoManagerCouldHoldIsRefused) {
    for (const std::size_t length : {900U, 1000U, 1001U, 5000U, 200'000U}) {
        const std::string name(length, 'x');
        try {
            Connection().Open("Driver=" + name + ";Server=127.0.0.1,9;UID=sa;PWD=x;");
            FAIL() << length;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), kUnspecified);
            EXPECT_EQ(error.sqlState() == "IM011", length > 1000) << length << " " << error.description();
        }
    }
}

struct Text {
    const char* given;
    const char* driver;
    const char* sent;
};

TEST(OdbcText, CarriesServerDatabaseUserAndWhatTheDriverNeeds) {
    const Text texts[] = {
        {"Driver=SQL Server;Server=SEDE\\sqlexpress;UID=sa;PWD=segreta;DATABase=Vabo", "SQL Server",
         "DRIVER={SQL Server};SERVER=SEDE\\sqlexpress;DATABASE=Vabo;UID=sa;PWD=segreta;"},
        {"Server=S;ID utente=sa;Password=x;Port=1433", "FreeTDS",
         "DRIVER={FreeTDS};SERVER=S,1433;UID=sa;PWD=x;TDS_Version=7.4;ClientCharset=UTF-8;Encryption=request;"},
        {"Provider=SQLOLEDB;Data Source=S;Integrated Security=SSPI;Initial Catalog=a b",
         "ODBC Driver 18 for SQL Server",
         "DRIVER={ODBC Driver 18 for SQL Server};SERVER=S;DATABASE=a b;Trusted_Connection=Yes;Encrypt=Optional;"
         "TrustServerCertificate=Yes;"},
        {"Server=S,1433;Port=9;UID=sa;PWD=x", "SQL Server", "DRIVER={SQL Server};SERVER=S,1433;UID=sa;PWD=x;"},
        {"Server=S;Port={9;UID=altro};UID=sa;PWD=x", "SQL Server",
         "DRIVER={SQL Server};SERVER={S,9;UID=altro};UID=sa;PWD=x;"},
        {"Server=S\\A;Port=;UID=sa;PWD=x", "SQL Server", "DRIVER={SQL Server};SERVER=S\\A;UID=sa;PWD=x;"},
        {"Server=S;UID=sa;PWD={a;b}}c}", "SQL Server", "DRIVER={SQL Server};SERVER=S;UID=sa;PWD={a;b}}c};"},
    };
    for (const Text& text : texts) {
        EXPECT_EQ(driverText(ConnectionString(text.given), text.driver), text.sent);
    }
}

TEST(OdbcPatience, IsHalfForWhatOnlyReads) {
    EXPECT_EQ(patience("SELECT * FROM Comuni", 15), 7);
    EXPECT_EQ(patience(" \r\n\tselect 1", 15), 7);
    EXPECT_EQ(patience("select 1", 1), 1);
    for (const char* writing : {"update Comuni set cap = '' where id in (select 1)", "CREATE DATABASE Vabodati", "",
                                "sel", "IF NOT EXISTS (SELECT 1) CREATE DATABASE x"}) {
        EXPECT_EQ(patience(writing, 15), 15) << writing;
    }
}

struct Sources {
    const char* statement;
    Names fields;
    const char* expected; ///< table.column of each field, "-" where there is none
};

TEST(OdbcSources, AreReadFromTheStatement) {
    const Sources table[] = {
        {"select * from Comuni", {"id", "nome"}, "Comuni.id Comuni.nome"},
        {"SELECT c.nome AS n, id FROM dbo.[Comuni] c WHERE id > 1 ORDER BY 1", {"n", "id"}, "Comuni.nome Comuni.id"},
        {"select id, c.*, nome from Comuni c",
         {"id", "id", "nome", "nome"},
         "Comuni.id Comuni.id Comuni.nome Comuni.nome"},
        {"select *, * from T", {"a", "b", "a", "b"}, "T.a T.b T.a T.b"},
        {"select id + 1 as x, nome from Comuni", {"x", "nome"}, "- Comuni.nome"},
        {"update T set a = 1 select a from T", {"a"}, "T.a"},
        {"select a.id from A a, B b", {"id"}, "-"},
        {"select a.id from A a inner join B b on a.id = b.id", {"id"}, "-"},
        {"select id from A union select id from B", {"id"}, "-"},
        {"select x.id from (select id from A) x", {"id"}, "-"},
        {"exec sp_help", {"Name"}, "-"},
        {"select 1 from where", {"a"}, "-"},
    };
    for (const Sources& one : table) {
        std::vector<FieldDescription> fields;
        for (const std::string& name : one.fields) {
            fields.emplace_back().name = name;
        }
        nameSources(one.statement, fields);
        std::string read;
        for (const FieldDescription& field : fields) {
            read +=
                (read.empty() ? "" : " ") + (field.baseTable.empty() ? "-" : field.baseTable + "." + field.baseColumn);
        }
        EXPECT_EQ(read, one.expected) << one.statement;
    }
}

} // namespace
} // namespace ado::odbc
