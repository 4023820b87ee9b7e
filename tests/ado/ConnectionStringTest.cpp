#include "ado/ConnectionString.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

TEST(ConnectionString, ReadsTheNamesOfBothKindsOfText) {
    const ConnectionString odbc("Driver=SQL Server;Server=SEDE\\sqlexpress;UID=sa;PWD=segreta;DATABase=VaboDati");
    EXPECT_EQ(odbc.provider(), "");
    EXPECT_EQ(odbc.server(), "SEDE\\sqlexpress");
    EXPECT_EQ(odbc.user(), "sa");
    EXPECT_EQ(odbc.password(), "segreta");
    EXPECT_EQ(odbc.database(), "VaboDati");
    EXPECT_EQ(odbc.value("driver"), "SQL Server");

    const ConnectionString oledb(
        "Provider=SQLOLEDB;Data Source=SEDE;Initial Catalog=VaboDati;User ID=sa;Password=segreta");
    EXPECT_EQ(oledb.provider(), "SQLOLEDB");
    EXPECT_EQ(oledb.server(), "SEDE");
    EXPECT_EQ(oledb.database(), "VaboDati");
    EXPECT_EQ(oledb.user(), "sa");
    EXPECT_EQ(oledb.password(), "segreta");
}

TEST(ConnectionString, ReadsTheItalianNameOfTheUser) {
    const ConnectionString text("Driver=SQL Server;Server=S;ID utente=contabile;Password=p;");
    EXPECT_EQ(text.user(), "contabile");
    EXPECT_EQ(text.password(), "p");
    EXPECT_EQ(ConnectionString("ID utente=;Password=;").user(), "");
}

TEST(ConnectionString, KeepsItsTextLetterForLetter) {
    const std::string text = " Server = S ;;x";
    EXPECT_EQ(ConnectionString(text).text(), text);
}

TEST(ConnectionString, IgnoresCaseAndBlanksAroundKeysAndValues) {
    const ConnectionString text("  sErVeR =  S 1 ; dataBASE\t= d ");
    EXPECT_EQ(text.server(), "S 1");
    EXPECT_EQ(text.database(), "d");
}

TEST(ConnectionString, CountsTheFirstOfAKeyThatStandsTwice) {
    EXPECT_EQ(ConnectionString("Server=A;Data Source=B;Server=C").server(), "A");
    EXPECT_EQ(ConnectionString("Database=A;DATABASE=B").value("database"), "A");
}

TEST(ConnectionString, AMissingDividerMakesTheNextPairPartOfTheValue) {
    const ConnectionString text("Provider=SQLOLEDB;Data Source=S;Integrated Security=SSPIDATABase=vabodati");
    EXPECT_EQ(text.value("Integrated Security"), "SSPIDATABase=vabodati");
    EXPECT_EQ(text.database(), "");
}

TEST(ConnectionString, TellsAMissingKeyFromAnEmptyValue) {
    const ConnectionString text("UID=;x");
    EXPECT_EQ(text.value("UID"), "");
    EXPECT_EQ(text.value("PWD"), std::nullopt);
    EXPECT_EQ(text.value("x"), std::nullopt);
}

struct MarkedValue {
    const char* text;
    const char* value;
};

class MarkedValues : public ::testing::TestWithParam<MarkedValue> {};

TEST_P(MarkedValues, AreReadWithoutTheirMarks) {
    EXPECT_EQ(ConnectionString(GetParam().text).password(), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Table, MarkedValues,
                         ::testing::Values(MarkedValue{"PWD={a;b}", "a;b"}, MarkedValue{"PWD={a}}b}", "a}b"},
                                           MarkedValue{"PWD=\"a;b\"", "a;b"}, MarkedValue{"PWD=\"a\"\"b\"", "a\"b"},
                                           MarkedValue{"PWD='a;b'", "a;b"}, MarkedValue{"PWD='a''b'", "a'b"},
                                           MarkedValue{"PWD= { a } ", " a "}, MarkedValue{"PWD={open", "open"},
                                           MarkedValue{"PWD='a' b;UID=x", "a"}, MarkedValue{"PWD=it's", "it's"},
                                           MarkedValue{"PWD=a=b", "a=b"}, MarkedValue{"PWD={};UID=x", ""}));

TEST(ConnectionString, FindsThePairBehindAMarkedValue) {
    EXPECT_EQ(ConnectionString("PWD={a;UID=no};UID=sa").user(), "sa");
    EXPECT_EQ(ConnectionString("PWD='a' b;UID=sa").user(), "sa");
}

TEST(ConnectionString, TakesGarbageAsNothing) {
    for (const char* text : {"", ";", "=", "==;=", ";;;=a;", "{", "=}{'\"", "a={{{;'", "\n\t=;"}) {
        const ConnectionString garbage(text);
        EXPECT_EQ(garbage.server(), "") << text;
        EXPECT_EQ(garbage.database(), "") << text;
    }
}

} // namespace
} // namespace ado
