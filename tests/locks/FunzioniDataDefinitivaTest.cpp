#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "locks/funzioni_datadefinitiva.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using testing::ElementsAre;
using Testi = std::vector<std::string>;

class LockQueries : public AziendaAperta {
protected:
    void conto(int id, const std::string& valore) const {
        esegui("update TabellaContiUtili set idconto = " + valore + " where ID = " + std::to_string(id));
    }
    NoveConti conti() const {
        NoveConti ContiBlocco{}, GruppiBlocco{};
        CaricaContiBlocco(ContiBlocco, GruppiBlocco);
        return ContiBlocco;
    }
    NoveConti gruppi() const {
        NoveConti ContiBlocco{}, GruppiBlocco{};
        CaricaContiBlocco(ContiBlocco, GruppiBlocco);
        return GruppiBlocco;
    }
};

TEST_F(LockQueries, ADateIsALiteralOfPlainNumbersThatTwoBlanksEnd) {
    EXPECT_EQ(DataSql(ado::Date::of(2004, 3, 7)), " CONVERT(DATETIME, '2004-3-7', 102)  ");
    EXPECT_EQ(DataSql(ado::Date::of(2005, 1, 1)), " CONVERT(DATETIME, '2005-1-1', 102)  ");
    EXPECT_EQ(DataSql(ado::Date::of(2023, 12, 31, 10, 30)), " CONVERT(DATETIME, '2023-12-31', 102)  ");
    EXPECT_EQ(DataSqlUnita(ado::Date::of(2023, 12, 31)), " CONVERT(DATETIME, '2023-12-31', 102)");
}

TEST_F(LockQueries, TheServerReadsTheLiteralWhateverItsLanguage) {
    for (const char* lingua : {"us_english", "Italiano"}) {
        DbAzienda.Execute(std::string("SET LANGUAGE ") + lingua);
        ado::Recordset rs;
        rs.Open("select" + DataSql(ado::Date::of(2004, 3, 7)) + " as d", DbAzienda);
        EXPECT_EQ(rs["d"].Value(), ado::Value(ado::Date::of(2004, 3, 7))) << lingua;
    }
}

TEST_F(LockQueries, TheBalanceDateIsTheOneOfTheCounters) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiDataBilancio(), ado::Date::of(2023, 12, 31));
    EXPECT_EQ(recorder.texts(), Testi{"Select * from contatorepd"});
}

TEST_F(LockQueries, WithoutABalanceEverClosedItIsTheLastDayOf2000) {
    esegui("update contatorepd set iddate = null");
    EXPECT_EQ(LeggiDataBilancio(), ado::Date::of(2000, 12, 31));
    esegui("update contatorepd set iddate = '1899-12-30'");
    EXPECT_EQ(LeggiDataBilancio(), ado::Date::of(2000, 12, 31)) << "a date of zeros counts as none";
}

TEST_F(LockQueries, TheBalanceDateRaisesWhereItCanNotBeReadAndLeavesItsRecordsetFree) {
    esegui("delete from contatorepd");
    try {
        LeggiDataBilancio();
        FAIL() << "no row, and a date";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), ado::kNoCurrentRecord);
    }
    esegui("insert into contatorepd (id, iddate) values (1, '20221231')");
    EXPECT_EQ(LeggiDataBilancio(), ado::Date::of(2022, 12, 31));
    esegui("drop table contatorepd");
    EXPECT_THROW(LeggiDataBilancio(), ado::Error);
}

TEST_F(LockQueries, EmptyTablesOfTheSystemsAccountsGiveZerosAndRaiseNothing) {
    esegui("delete from TabellaContiUtili");
    esegui("delete from TabellaContiUtiliTransfersHq");
    for (const auto leggi : {ContoHq2, ContoHq1, Conto18, Conto19, Conto27, Conto29, Conto1, Conto2, Conto5}) {
        EXPECT_EQ(leggi(), 0);
    }
    EXPECT_THAT(conti(), testing::Each(0));
    EXPECT_THAT(gruppi(), testing::Each(0));
}

TEST_F(LockQueries, TheBalanceDateIsReadWhileTheOtherSharedRecordsetsAreOpen) {
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        if (posto != 5) {
            RsCondivisi(posto).Open("select * from progetti", DbAzienda);
        }
    }
    EXPECT_EQ(LeggiDataBilancio(), ado::Date::of(2023, 12, 31));
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        EXPECT_EQ(RsCondivisi(posto).IsOpen(), posto != 5) << posto;
    }
}

struct Membro {
    const char* nome;
    double (*leggi)();
    const char* testo;
    const char* tabella;
    int id;
    double nelCampione;
};

void PrintTo(const Membro& membro, std::ostream* out) {
    *out << membro.nome;
}

class SystemAccount : public LockQueries, public testing::WithParamInterface<Membro> {
protected:
    void metti(const std::string& valore) const {
        esegui(std::string("update ") + GetParam().tabella + " set idconto = " + valore +
               " where id = " + std::to_string(GetParam().id));
    }
};

TEST_P(SystemAccount, IsReadByItsStatement) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(GetParam().leggi(), GetParam().nelCampione);
    EXPECT_EQ(recorder.texts(), Testi{GetParam().testo});
}

TEST_P(SystemAccount, IsZeroWithoutAnAccountAndWithoutARow) {
    metti("null");
    EXPECT_EQ(GetParam().leggi(), 0);
    metti("0");
    EXPECT_EQ(GetParam().leggi(), 0);
    metti("77");
    EXPECT_EQ(GetParam().leggi(), 77);
    esegui(std::string("delete from ") + GetParam().tabella + " where id = " + std::to_string(GetParam().id));
    EXPECT_EQ(GetParam().leggi(), 0);
}

TEST_P(SystemAccount, RaisesWhereItsTableIsMissing) {
    esegui(std::string("drop table ") + GetParam().tabella);
    EXPECT_THROW(GetParam().leggi(), ado::Error);
    EXPECT_THROW(GetParam().leggi(), ado::Error) << "the recordset is free again";
}

INSTANTIATE_TEST_SUITE_P(
    Of, SystemAccount,
    testing::Values(
        Membro{"ContoHq2", ContoHq2, "SELECT  * From TabellaContiUtiliTransfersHq where id = 2 ",
               "TabellaContiUtiliTransfersHq", 2, 1167},
        Membro{"ContoHq1", ContoHq1, "SELECT  * From TabellaContiUtiliTransfersHq where id = 1 ",
               "TabellaContiUtiliTransfersHq", 1, 1166},
        Membro{"Conto18", Conto18, "SELECT  * From TabellaContiUtili  where id = 18", "TabellaContiUtili", 18, 1060},
        Membro{"Conto19", Conto19, "SELECT  * From TabellaContiUtili  where id =  19 ", "TabellaContiUtili", 19, 1040},
        Membro{"Conto27", Conto27, "SELECT  * From TabellaContiUtili where id = 27 ", "TabellaContiUtili", 27, 1250},
        Membro{"Conto29", Conto29, "SELECT  * From TabellaContiUtili where id = 29 ", "TabellaContiUtili", 29, 1251},
        Membro{"Conto1", Conto1, "SELECT  * From TabellaContiUtili where id = 1 ", "TabellaContiUtili", 1, 1051},
        Membro{"Conto2", Conto2, "SELECT  * From TabellaContiUtili where id = 2 ", "TabellaContiUtili", 2, 1058},
        Membro{"Conto5", Conto5, "SELECT  * From TabellaContiUtili where id =5 ", "TabellaContiUtili", 5, 1059}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST_F(LockQueries, TheNinePlacesRepeatTheFirstAccount) {
    EXPECT_THAT(conti(), ElementsAre(1051, 1058, 1051, 1051, 1059, 1051, 1051, 1051, 1051));
}

TEST_F(LockQueries, TheGroupOfEachPlaceIsReadByItsAccount) {
    EXPECT_THAT(gruppi(), ElementsAre(19, 21, 19, 19, 21, 19, 19, 19, 19));
}

TEST_F(LockQueries, AnEmptyPlaceHasTheGroupOfTheAccountBeforeIt) {
    conto(2, "null");
    conto(5, "0");
    EXPECT_THAT(conti(), ElementsAre(1051, 0, 1051, 1051, 0, 1051, 1051, 1051, 1051));
    EXPECT_THAT(gruppi(), ElementsAre(19, 19, 19, 19, 19, 19, 19, 19, 19));
    conto(1, "null");
    conto(2, "1058");
    const support::StatementRecorder recorder;
    EXPECT_THAT(gruppi(), ElementsAre(0, 21, 21, 21, 21, 21, 21, 21, 21)) << "no account yet has no group";
    EXPECT_EQ(recorder.count("SELECT  IdGruppoVabo From conti where IdConto =0"), 1);
}

TEST_F(LockQueries, AnAccountThatIsNotInTheChartHasGroupZero) {
    conto(2, "999999");
    EXPECT_THAT(gruppi(), ElementsAre(19, 0, 19, 19, 21, 19, 19, 19, 19));
}

TEST_F(LockQueries, TheGroupsAreReadOnConnectionsOfTheirOwn) {
    const support::StatementRecorder recorder;
    conti();
    EXPECT_EQ(recorder.count("SELECT  IdGruppoVabo From conti where IdConto =1051"), 7);
    EXPECT_EQ(recorder.count("SELECT  IdGruppoVabo From conti where IdConto =1058"), 1);
    EXPECT_EQ(recorder.count("SELECT  IdGruppoVabo From conti where IdConto =1059"), 1);
    StringaAzienda = "Provider=Nessuno;";
    EXPECT_THAT(gruppi(), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(conti(), ElementsAre(1051, 1058, 1051, 1051, 1059, 1051, 1051, 1051, 1051));
}

TEST_F(LockQueries, WhatFailsIsSkippedAndLeavesZeroInItsPlace) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1058");
    EXPECT_THAT(gruppi(), ElementsAre(19, 0, 19, 19, 21, 19, 19, 19, 19));
    esegui("drop table TabellaContiUtili; create table TabellaContiUtili (ID int not null, idconto float null)");
    esegui("insert into TabellaContiUtili values (1, 1e12), (2, 2.5), (5, 3.5)");
    EXPECT_THAT(conti(), ElementsAre(0, 2, 0, 0, 4, 0, 0, 0, 0)) << "too large for its place, and half to even";
    esegui("drop table TabellaContiUtili");
    EXPECT_THAT(conti(), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0));
    DbAzienda.Close();
    StringaAzienda = "Provider=Nessuno;";
    NoveConti ContiBlocco{1, 1, 1, 1, 1, 1, 1, 1, 1}, GruppiBlocco = ContiBlocco;
    CaricaContiBlocco(ContiBlocco, GruppiBlocco);
    EXPECT_EQ(ContiBlocco, NoveConti{}) << "what was there before is gone";
    EXPECT_EQ(GruppiBlocco, NoveConti{});
}

} // namespace
} // namespace vabo
