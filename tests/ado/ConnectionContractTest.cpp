#include "ado/AdoFixture.h"
#include "support/StatementRecorder.h"

namespace ado {
namespace {

using support::StatementRecorder;
using test::Contract;
using test::errorOf;
using test::raises;

class ConnectionContract : public Contract {};

TEST_F(ConnectionContract, KeepsItsTextAfterClose) {
    EXPECT_TRUE(connection.IsOpen());
    connection.Close();
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_EQ(connection.ConnectionString(), server.connectionString());
    connection.Open();
    EXPECT_EQ(cell("select count(*) from Comuni"), "4");
}

TEST_F(ConnectionContract, IsNotOpenedTwice) {
    EXPECT_TRUE(raises(kObjectOpen, [&] { connection.Open(); }));
    EXPECT_TRUE(raises(kObjectOpen, [&] { connection.Open(server.connectionString()); }));
    EXPECT_TRUE(raises(kObjectOpen, [&] { connection.setConnectionString("x"); }));
    EXPECT_EQ(connection.ConnectionString(), server.connectionString());
}

TEST_F(ConnectionContract, ClosedRefusesEverythingButOpening) {
    connection.Close();
    EXPECT_TRUE(raises(kObjectClosed, [&] { connection.Close(); }));
    EXPECT_TRUE(raises(kObjectClosed, [&] { connection.Execute("select 1"); }));
    Recordset rs;
    EXPECT_TRUE(raises(kConnectionUnusable, [&] { rs.Open("Comuni", connection); }));
    EXPECT_FALSE(rs.IsOpen());
    connection.setConnectionString(server.connectionString());
    connection.Open();
    EXPECT_TRUE(connection.IsOpen());
}

TEST_F(ConnectionContract, ExecuteGivesTheRowsWritten) {
    EXPECT_EQ(connection.Execute("update Comuni set cap = '1' where id < 3"), 2);
    EXPECT_EQ(connection.Execute("update Comuni set cap = '1' where id > 9"), 0);
    EXPECT_EQ(connection.Execute("select * from Comuni"), 0);
    EXPECT_EQ(connection.Execute("delete from Comuni where id = 1 delete from Comuni where id > 2"), 3);
}

TEST_F(ConnectionContract, ABatchWithNothingToDoIsAnsweredAtOnce) {
    for (const char* text :
         {"IF NOT EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'Vabodati') CREATE DATABASE Vabodati",
          "-- nothing", ";"}) {
        EXPECT_EQ(connection.Execute(text), 0) << text;
    }
}

TEST_F(ConnectionContract, NoStatementIsCutAtACharacterOfNoValue) {
    using namespace std::string_literals;
    EXPECT_TRUE(raises(kSyntaxOrColumn, [&] { connection.Execute("update Comuni set cap = '9'\0 where id = 1"s); }));
    const auto write = [&] { connection.Execute("update Comuni set cap = '8' where nome <> 'a\0b'"s); };
    if (support::capabilities().nulInTexts) {
        EXPECT_NO_THROW(write());
    } else {
        EXPECT_TRUE(raises(kSyntaxOrColumn, write));
    }
    EXPECT_EQ(cell("select count(*) from Comuni where cap = '9'"), "0");
}

TEST_F(ConnectionContract, ExecuteStopsAtTheFirstErrorAndTellsItsStatement) {
    const std::string text = "update Comuni set cap = '9' where id = 1 update Assente set a = 1 delete from Comuni";
    const auto error = errorOf([&] { connection.Execute(text); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kObjectMissing);
    EXPECT_EQ(error->description(), "Invalid object name 'Assente'.");
    EXPECT_EQ(error->nativeError(), 208);
    EXPECT_EQ(error->sqlState(), "42S02");
    EXPECT_EQ(error->statement(), text);
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "9");
    EXPECT_EQ(cell("select count(*) from Comuni"), "4");
}

struct Refusal {
    const char* text;
    int number;
    int native;
    const char* description;
};

TEST_F(ConnectionContract, ServerErrorsKeepTheServersWords) {
    const Refusal refusals[] = {
        {"select * form Comuni", kSyntaxOrColumn, 102, "Incorrect syntax near 'form'."},
        {"select 'a", kSyntaxOrColumn, 105, "Unclosed quotation mark after the character string 'a'."},
        {"select manca from Comuni", kSyntaxOrColumn, 207, "Invalid column name 'manca'."},
        {"insert into Comuni (nome) values (null)", kConstraint, 515,
         "Cannot insert the value NULL into column 'nome', table 'Vabodati.dbo.Comuni'; column does not allow nulls. "
         "INSERT fails."},
        {"insert into Tipi (id, testo) values (2, 'undici caratteri')", kTruncation, 8152,
         "String or binary data would be truncated."},
        {"insert into Tipi (id, intero) values (2, 'x')", kConversion, 245,
         "Conversion failed when converting the varchar value 'x' to data type int."},
    };
    for (const Refusal& refusal : refusals) {
        const auto error = errorOf([&] { connection.Execute(refusal.text); });
        ASSERT_TRUE(error) << refusal.text;
        EXPECT_EQ(error->number(), refusal.number) << refusal.text;
        EXPECT_EQ(error->nativeError(), refusal.native) << refusal.text;
        EXPECT_EQ(error->description(), refusal.description);
    }
}

TEST_F(ConnectionContract, ADuplicateKeyIsAConstraint) {
    const auto error = errorOf([&] { connection.Execute("insert into Tipi (id) values (1)"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kConstraint);
    EXPECT_EQ(error->nativeError(), 2627);
    EXPECT_TRUE(error->description().starts_with("Violation of PRIMARY KEY constraint"));
}

TEST_F(ConnectionContract, AMissingDatabaseAndAWrongPasswordAreRefusedLogins) {
    Connection other;
    auto error = errorOf([&] { other.Open(server.connectionString("Assente")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kLogin);
    EXPECT_EQ(error->nativeError(), 4060);
    EXPECT_EQ(error->description(), "Cannot open database \"Assente\" requested by the login. The login failed.");
    std::string text = server.connectionString();
    text.replace(text.find("PWD=segreta"), 11, "PWD=altra");
    error = errorOf([&] { other.Open(text); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kLogin);
    EXPECT_EQ(error->nativeError(), 18456);
    EXPECT_EQ(error->description(), "Login failed for user 'sa'.");
    EXPECT_FALSE(other.IsOpen());
}

TEST_F(ConnectionContract, EveryStatementPassesTheRecorderAsItWasWritten) {
    const StatementRecorder recorder;
    connection.Execute("update  Comuni set cap = '1'  where id = 1 ");
    EXPECT_TRUE(errorOf([&] { connection.Execute("nonsense 1 2"); }));
    Recordset rs;
    rs.Open("Comuni", connection);
    EXPECT_EQ(recorder.texts(), (std::vector<std::string>{"update  Comuni set cap = '1'  where id = 1 ", "nonsense 1 2",
                                                          "select * from [Comuni]"}));
}

TEST_F(ConnectionContract, ARecordsetOutlivesTheClosingOfItsConnection) {
    Recordset rs;
    open(rs);
    connection.Close();
    rs.MoveNext();
    rs["cap"] = "11111";
    rs.Update();
    rs.Requery();
    connection.Open();
    EXPECT_EQ(cell("select cap from Comuni where id = 2"), "11111");
}

} // namespace
} // namespace ado
