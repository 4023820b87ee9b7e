#include "kit/ErrorHandling.h"

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "kit/ApriScrivibile.h"
#include "state/variabili.h"
#include "support/AzzeraVariabili.h"
#include "support/DialogScript.h"
#include "support/LogLines.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;

class ErrorHandling : public testing::Test {
protected:
    ErrorHandling() {
        server = workstation.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt");
        DbAzienda.Open(server + "DATABase=" + support::kCompany);
    }
    support::TestWorkstation workstation;
    support::DialogScript noBox;
    std::string server;
};

TEST_F(ErrorHandling, AnUpdateStoresTheRow) {
    ado::Recordset rs;
    ApriScrivibile(rs, "select * from Sede", DbAzienda);
    rs["città"] = "Asti";
    AggiornaRecord(rs);
    EXPECT_EQ(workstation.value(support::kCompany, "select [città] from Sede"), "Asti");
}

TEST_F(ErrorHandling, AnUpdateThatFailsRaisesInItsCaller) {
    ado::Recordset rs;
    ApriScrivibile(rs, "select * from Sede", DbAzienda);
    rs.AddNew();
    rs["città"] = "Asti"; // idsede can't be null
    EXPECT_THROW(AggiornaRecord(rs), ado::Error);
    rs.CancelUpdate();
    EXPECT_EQ(workstation.value(support::kCompany, "select count(*) from Sede"), "1");
}

TEST_F(ErrorHandling, ChiudiRecordsetGivesBackAllSharedRecordsetsAndDbLocale) {
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        RsCondivisi(posto).Open("select * from Sede", DbAzienda);
    }
    DbLocale = std::make_unique<ado::Connection>();
    DbLocale->Open(server);

    EXPECT_EQ(ChiudiRecordset(), "");

    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        EXPECT_FALSE(RsCondivisi(posto).IsOpen()) << posto;
    }
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(ErrorHandling, ChiudiRecordsetLeavesTheLongLivedConnections) {
    DbControllo.Open(server + "DATABase=vabodatiazienda");
    DbTemp.Open(server);
    ChiudiRecordset();
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_TRUE(DbControllo.IsOpen());
    EXPECT_TRUE(DbTemp.IsOpen());
}

TEST_F(ErrorHandling, ChiudiRecordsetDropsAPendingEdit) {
    ApriScrivibile(RsCondivisi(5), "select * from Sede", DbAzienda);
    RsCondivisi(5)["città"] = "Asti";
    ChiudiRecordset();
    EXPECT_FALSE(RsCondivisi(5).IsOpen());
    EXPECT_EQ(workstation.value(support::kCompany, "select [città] from Sede"), "Torino");
}

TEST_F(ErrorHandling, WhatIsClosedAlreadyIsReleasedWithoutALineInTheLog) {
    RsCondivisi(2).Open("select * from Sede", DbAzienda);
    RsCondivisi(2).Close();
    static_cast<void>(RsCondivisi(3));
    DbLocale = std::make_unique<ado::Connection>();
    const support::LogLines log;
    QLoggingCategory::setFilterRules("vabo.skipped=true");
    ChiudiRecordset();
    EXPECT_EQ(support::LogLines::lines(), std::vector<std::string>{});
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(ErrorHandling, AReleaseThatFailsIsTold) {
    ApriScrivibile(RsCondivisi(5), "select * from Sede", DbAzienda);
    RsCondivisi(5)["città"] = "Asti";
    const support::LogLines log;
    QLoggingCategory::setFilterRules("vabo.skipped=true");
    ChiudiRecordset();
    EXPECT_EQ(support::LogLines::lines(),
              std::vector<std::string>{"vabo.skipped: Operation is not allowed in this context. (3219)"});
}

TEST_F(ErrorHandling, TwiceInARowAndWithNothingOpenIsNoError) {
    EXPECT_EQ(ChiudiRecordset(), "");
    EXPECT_EQ(ChiudiRecordset(), "");
}

TEST_F(ErrorHandling, ARecordsetThatAFormHeldIsGoneAfterwards) {
    RsCondivisi(2).Open("select * from Sede", DbAzienda);
    ChiudiRecordset();
    EXPECT_THROW(static_cast<void>(RsCondivisi(2).EOF()), ado::Error);
}

TEST(RsCondivisi, PlacesCountFromOneToTwentyThree) {
    EXPECT_THROW(vabo::RsCondivisi(0), std::out_of_range);
    EXPECT_THROW(vabo::RsCondivisi(24), std::out_of_range);
    EXPECT_NE(&vabo::RsCondivisi(1), &vabo::RsCondivisi(23));
    EXPECT_EQ(&vabo::RsCondivisi(1), &vabo::RsCondivisi(1));
    vabo::AzzeraVariabili();
}

} // namespace
