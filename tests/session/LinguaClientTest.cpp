#include "session/LinguaClient.h"

#include "session/ApriDbSede.h"
#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;
using support::kTemporaryDatabase;

class LinguaClient : public testing::Test {
protected:
    LinguaClient() { NomeTerminale = support::kTerminalName; }
    std::vector<support::TestWorkstation::Row> stored() const {
        return workstation.rows(kTemporaryDatabase, "select id, Lingua from LinguaClient");
    }
    support::TestWorkstation workstation;
    support::DialogScript noBox;
};

using Rows = std::vector<support::TestWorkstation::Row>;

TEST_F(LinguaClient, AnEmptyTableGetsItalianOnTheFirstRead) {
    EXPECT_EQ(LeggiLinguaClient(""), "IT");
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(stored(), (Rows{{"1", "IT"}}));
}

TEST_F(LinguaClient, SendsItsStatementsLetterForLetter) {
    ASSERT_TRUE(ApriDbTemp());
    const support::StatementRecorder recorder;
    LeggiLinguaClient("");
    EXPECT_TRUE(recorder.sentInOrder({"Create table LinguaClient (id int null, Lingua Nvarchar(2) Null )",
                                      "select * from LinguaClient where id = 1"}));
}

TEST_F(LinguaClient, TheSecondReadFindsTheRowAndAddsNone) {
    LeggiLinguaClient("");
    EXPECT_EQ(LeggiLinguaClient(""), "IT");
    EXPECT_EQ(stored(), (Rows{{"1", "IT"}}));
}

class ValidCode : public LinguaClient, public testing::WithParamInterface<const char*> {};

TEST_P(ValidCode, IsStoredAsGivenAndReadBack) {
    EXPECT_EQ(LeggiLinguaClient(GetParam()), GetParam());
    EXPECT_EQ(LinguaCorrente, GetParam());
    EXPECT_EQ(stored(), (Rows{{"1", GetParam()}}));
    LinguaCorrente.clear();
    EXPECT_EQ(LeggiLinguaClient(""), GetParam());
    EXPECT_EQ(LinguaCorrente, GetParam());
}

INSTANTIATE_TEST_SUITE_P(LinguaClient, ValidCode, testing::Values("IT", "EN", "ES", "FR", "PO", "en", "Fr"));

TEST_F(LinguaClient, ACodeReplacesTheOneBefore) {
    LeggiLinguaClient("EN");
    EXPECT_EQ(LeggiLinguaClient("PO"), "PO");
    EXPECT_EQ(stored(), (Rows{{"1", "PO"}}));
}

class UnknownCode : public LinguaClient, public testing::WithParamInterface<const char*> {};

TEST_P(UnknownCode, LeavesTableAndLanguageAsTheyAre) {
    LeggiLinguaClient("EN");
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiLinguaClient(GetParam()), "IT");
    EXPECT_EQ(LinguaCorrente, "EN");
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(stored(), (Rows{{"1", "EN"}}));
}

INSTANTIATE_TEST_SUITE_P(LinguaClient, UnknownCode, testing::Values("DE", "ITA", "I", "EN ", "e'", "--"));

TEST_F(LinguaClient, AnEmptyColumnReadsAsItalianAndStaysEmpty) {
    LeggiLinguaClient("");
    workstation.run(kTemporaryDatabase, "update LinguaClient set Lingua = null");
    EXPECT_EQ(LeggiLinguaClient(""), "IT");
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(stored(), (Rows{{"1", "NULL"}}));
}

TEST_F(LinguaClient, WithoutALocalInstanceTheAnswerIsItalian) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Driver=SQL Server;Server=127.0.0.1,9;\r\n");
    LinguaCorrente = "EN";
    EXPECT_EQ(LeggiLinguaClient(""), "IT");
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(LeggiLinguaClient("FR"), "IT");
}

TEST_F(LinguaClient, EachCallReachesTheTemporaryDatabaseAnew) {
    LeggiLinguaClient("EN");
    const std::string local = workstation.driveC().firstLine("C:\\vabo\\Leggi_ServerLocal.txt");
    DbTemp.Close();
    DbTemp.Open(local + "DATABase=vabodatiazienda");
    EXPECT_EQ(LeggiLinguaClient(""), "EN");
    EXPECT_EQ(DbTemp.ConnectionString(), local + "DATABase=VaBoDatiTemp");
    EXPECT_EQ(
        workstation.value(support::kControlDatabase, "select count(*) from sysobjects where name = 'LinguaClient'"),
        "0");
}

TEST_F(LinguaClient, LeavesTheTemporaryDatabaseOpenAndNoRecordset) {
    LeggiLinguaClient("");
    EXPECT_TRUE(DbTemp.IsOpen());
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

} // namespace
