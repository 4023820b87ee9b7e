#include "dblife/VerDb.h"

#include "ado/Conversions.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace vabo;
using ado::Date;
using support::kCompany;
using support::kTemporaryDatabase;
using Rows = std::vector<support::TestWorkstation::Row>;

const std::string kCreate = "Create table Version (id int null, Version int not null default 1 )";
const std::string kSelect = "select * from Version where id = 1";
const Date kZero = Date::of(1899, 12, 30);

class VerDbTest : public testing::Test {
protected:
    VerDbTest() { NomeTerminale = support::kTerminalName; }
    Rows recorded() const { return workstation.rows(kTemporaryDatabase, "select id, Version from Version"); }

    support::TestWorkstation workstation;
    support::DialogScript noBox;
};

TEST_F(VerDbTest, TheFirstStartMakesTheTableAndItsRow) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(VerDb(2), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "2"}}));
    EXPECT_TRUE(recorder.sentInOrder({kCreate, kSelect}));
}

TEST_F(VerDbTest, AnotherProgramOverwritesTheVersionAndGivesNoResult) {
    VerDb(1);
    EXPECT_EQ(VerDb(2), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "2"}}));
    EXPECT_EQ(VerDb(1), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "1"}}));
}

TEST_F(VerDbTest, OnlyACallWithoutAVersionReads) {
    VerDb(2);
    EXPECT_EQ(VerDb(), 2);
    EXPECT_EQ(VerDb(0), 2) << "zero is empty";
    EXPECT_EQ(recorded(), (Rows{{"1", "2"}}));
}

TEST_F(VerDbTest, AReadOnAnEmptyTableAddsARowOfZero) {
    EXPECT_EQ(VerDb(), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "0"}}));
    EXPECT_EQ(VerDb(), 0);
}

TEST_F(VerDbTest, OtherRowsAreLeftAlone) {
    ASSERT_TRUE(ApriDbTemp());
    workstation.run(kTemporaryDatabase, kCreate);
    workstation.run(kTemporaryDatabase, "insert into Version (id, Version) values (2, 7), (null, 8)");
    VerDb(1);
    EXPECT_EQ(workstation.rows(kTemporaryDatabase, "select id, Version from Version order by Version"),
              (Rows{{"1", "1"}, {"2", "7"}, {"NULL", "8"}}));
}

TEST_F(VerDbTest, AVersionThatMayBeNullReadsAsZero) {
    ASSERT_TRUE(ApriDbTemp());
    workstation.run(kTemporaryDatabase, "create table Version (id int null, Version int null)");
    workstation.run(kTemporaryDatabase, "insert into Version (id, Version) values (1, null)");
    EXPECT_EQ(VerDb(), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "NULL"}}));
}

TEST_F(VerDbTest, TheConnectionIsClosedBehindIt) {
    ASSERT_TRUE(ApriDbTemp());
    VerDb(1);
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(VerDbTest, AMissingTemporaryDatabaseIsMadeFirst) {
    ASSERT_EQ(workstation.value("master", "select count(*) from sysdatabases where name = 'VaBoDatiTemp'"), "0");
    EXPECT_EQ(VerDb(1), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "1"}}));
}

TEST_F(VerDbTest, WithoutALocalServerItGivesZeroInSilence) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    EXPECT_EQ(VerDb(1), 0);
    EXPECT_EQ(VerDb(), 0);
}

TEST_F(VerDbTest, WithoutTheFolderOfTheTemporaryDatabaseItGivesZeroInSilence) {
    std::filesystem::remove_all(workstation.driveC().real("C:\\vabo\\sedi"));
    const support::StatementRecorder recorder;
    EXPECT_EQ(VerDb(1), 0);
    EXPECT_EQ(VerDb(), 0);
    EXPECT_FALSE(recorder.holding("CREATE DATABASE [VaBoDatiTemp]").empty()) << "it was tried";
    EXPECT_EQ(workstation.value("master", "select count(*) from sysdatabases where name = 'VaBoDatiTemp'"), "0");
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(VerDbTest, ATextThatIsNoNumberRecordsZero) {
    EXPECT_EQ(VerDb("due"), 0);
    EXPECT_EQ(recorded(), (Rows{{"1", "0"}}));
}

TEST_F(VerDbTest, ATableWithoutTheColumnIsReadAsZeroAndLeftAsItIs) {
    ASSERT_TRUE(ApriDbTemp());
    workstation.run(kTemporaryDatabase, "create table Version (id int null, Altro int null)");
    workstation.run(kTemporaryDatabase, "insert into Version (id, Altro) values (1, 5)");
    EXPECT_EQ(VerDb(), 0);
    EXPECT_EQ(VerDb(2), 0);
    EXPECT_EQ(workstation.rows(kTemporaryDatabase, "select id, Altro from Version"), (Rows{{"1", "5"}}));
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(VerDbTest, ARowThatTheServerRefusesIsNotAddedAndTheConnectionIsClosed) {
    ASSERT_TRUE(ApriDbTemp());
    workstation.run(kTemporaryDatabase, "create table Version (id int null, Version int not null, Altro int not null)");
    EXPECT_EQ(VerDb(1), 0);
    EXPECT_EQ(recorded(), Rows{});
    EXPECT_FALSE(DbTemp.IsOpen());
}

class BalanceDate : public VerDbTest {
protected:
    BalanceDate() {
        NomeDatabase = kCompany;
        DbAzienda.Open(ConnessioneAzienda());
    }
    void balance(const std::string& value) const {
        workstation.run(kCompany, "update progetti set idDataBilancio = " + value + " where id = 10000001");
    }
};

TEST_F(BalanceDate, IsThatOfTheFirstProject) {
    balance("'20031231'");
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(2003, 12, 31));
    EXPECT_EQ(recorder.texts(), std::vector<std::string>{"Select * from progetti where id = 10000001"});
    EXPECT_EQ(LeggiPrimoGennaio(), Date::of(2004, 1, 1));
}

TEST_F(BalanceDate, TheFirstOfJanuaryIsThatOfTheNextYearWhateverTheDay) {
    for (const char* day : {"'20040101'", "'20040705'", "'20041231 23:59:59'"}) {
        balance(day);
        EXPECT_EQ(LeggiPrimoGennaio(), Date::of(2005, 1, 1)) << day;
    }
}

TEST_F(BalanceDate, WithoutADateIsTheLastDayOf1990) {
    balance("null");
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(1990, 12, 31));
    EXPECT_EQ(LeggiPrimoGennaio(), Date::of(1991, 1, 1));
}

TEST_F(BalanceDate, ADateOfZerosCountsAsNone) {
    balance("'18991230'");
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(1990, 12, 31));
}

TEST_F(BalanceDate, WithoutTheProjectIsTheLastDayOf1990) {
    workstation.run(kCompany, "delete from progetti where id = 10000001");
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(1990, 12, 31));
    EXPECT_EQ(LeggiPrimoGennaio(), Date::of(1991, 1, 1));
}

TEST_F(BalanceDate, KeepsItsTimeThroughItsText) {
    balance("'20040705 10:20:30'");
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(2004, 7, 5, 10, 20, 30));
}

TEST_F(BalanceDate, WithoutItsColumnIsTheZeroDate) {
    workstation.run(kCompany, "drop table progetti");
    workstation.run(kCompany, "create table progetti (id int not null)");
    workstation.run(kCompany, "insert into progetti (id) values (10000001)");
    EXPECT_EQ(LeggiDataBilancioProgetto(), kZero);
    EXPECT_EQ(LeggiPrimoGennaio(), Date::of(1900, 1, 1));
}

TEST_F(BalanceDate, IsReadBackWhereDatesAreWrittenWithPoints) {
    balance("'20040705 10:20:30'");
    ado::regionalSettings().dateSeparator = '.';
    EXPECT_EQ(LeggiDataBilancioProgetto(), Date::of(2004, 7, 5, 10, 20, 30));
    ado::regionalSettings().dateSeparator = '/';
}

TEST_F(BalanceDate, OfACompanyThatCannotBeReadIsTheZeroDate) {
    DbAzienda.Close();
    EXPECT_EQ(LeggiDataBilancioProgetto(), kZero);
    EXPECT_EQ(LeggiPrimoGennaio(), Date::of(1900, 1, 1));
}

TEST_F(BalanceDate, TheLastYearOfAllHasNoFirstOfJanuaryBehindIt) {
    balance("'99991231'");
    EXPECT_EQ(LeggiPrimoGennaio(), kZero);
}

TEST_F(BalanceDate, LeavesTheSharedRecordsetClosed) {
    LeggiDataBilancioProgetto();
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
}

} // namespace
