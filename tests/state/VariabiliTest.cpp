#include "state/variabili.h"

#include "kit/ErrorHandling.h"
#include "session/SessionFixture.h"
#include "support/AzzeraVariabili.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;

TEST_F(SessionTest, AzzeraVariabiliBringsTheStartOfTheProcessBack) {
    DbAzienda.Open(server + "DATABase=" + support::kCompany);
    RsCondivisi(2).Open("select * from Sede", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    StringaAzienda = NomeAzienda = Appoggio = "x";
    IdAzienda = TentativiLogin = CimaForm = 3;
    ClienteDornavel = ServerMancante = kVero;
    DirittiUtente.Administrator = kVero;
    PilaForm = {"a", "b"};

    AzzeraVariabili();

    EXPECT_FALSE(DbAzienda.IsOpen());
    EXPECT_EQ(DbAzienda.ConnectionString(), "");
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
    EXPECT_EQ(StringaAzienda + NomeAzienda + Appoggio, "");
    EXPECT_EQ(IdAzienda + TentativiLogin + CimaForm, 0);
    EXPECT_EQ(ClienteDornavel, kFalso);
    EXPECT_EQ(ServerMancante, kFalso);
    EXPECT_EQ(DirittiUtente, Diritti{});
    EXPECT_TRUE(PilaForm.empty());
}

TEST_F(SessionTest, ADatabaseGoesOnAfterItsSharedRecordsetIsReleased) {
    DbAzienda.Open(server + "DATABase=" + support::kCompany);
    RsCondivisi(1).Open("select * from Sede", DbAzienda);
    RilasciaRecordset(1);
    RsCondivisi(1).Open("select * from Sede", DbAzienda);
    EXPECT_FALSE(RsCondivisi(1).EOF());
}

} // namespace
