#include "locks/GuastoAPosto.h"
#include "locks/LibroAperto.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;
using libro::Riga;

class ProjectLock : public LibroAperto {
protected:
    std::string definito(int id) const {
        return valore("select definito from partitadoppia where idautonumber = " + std::to_string(id));
    }
    std::string report(int id) const {
        return valore("select datareport from partitadoppia where idautonumber = " + std::to_string(id));
    }
    std::string dataDelProgetto() const {
        return valore("select iddate from progetti where ID = " + std::to_string(kProgetto));
    }
    Libro attese(const Libro& righe, const std::string& data) const {
        return dopoIlProgetto(righe, kProgetto, alle(data), alle(kBilancio), contiDelCampione());
    }
};

TEST_F(ProjectLock, StoresTheDateOfItsProjectAlone) {
    metti({});
    const auto altri = lettura("select * from progetti where ID <> 10000003 order by ID");
    bloccaProgetto("07/03/2024");
    EXPECT_EQ(dataDelProgetto(), alle("2024-03-07"));
    EXPECT_EQ(lettura("select * from progetti where ID <> 10000003 order by ID"), altri);
}

TEST_F(ProjectLock, WithADateBeforeTheBalanceRowsBetweenTheTwoStayAsTheyWere) {
    const auto riga = [](int id, const std::string& giorno, int definito) {
        return Riga{.id = id, .numero = id, .transazione = alle(giorno), .report = alle(giorno), .definito = definito};
    };
    metti({riga(1, "2023-10-31", 0), riga(2, "2023-11-01", 0), riga(3, "2023-11-01", -1), riga(4, "2023-12-31", 0),
           riga(5, "2023-12-31", -1), riga(6, "2024-01-01", -1), riga(7, "2024-01-01", 0)});
    bloccaProgetto("31/10/2023");
    EXPECT_EQ(definito(1), "-1") << "on the date";
    EXPECT_EQ(definito(2), "0");
    EXPECT_EQ(definito(3), "-1");
    EXPECT_EQ(definito(4), "0") << "on the balance date";
    EXPECT_EQ(definito(5), "-1");
    EXPECT_EQ(definito(6), "0") << "after the balance";
    EXPECT_EQ(definito(7), "0");
    EXPECT_EQ(dataDelProgetto(), alle("2023-10-31"));
}

TEST_F(ProjectLock, AVatRowMakesItsWholeTransactionDefinitiveWhateverTheProjectOfItsRows) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = {}, .seziva = 2},
           {.id = 2, .transazione = alle("2024-05-03"), .report = alle("2024-06-01"), .progetto = kAltroProgetto},
           {.id = 3, .transazione = alle("2024-05-04"), .report = alle("2024-06-01"), .progetto = {}},
           {.id = 4, .numero = 1, .sede = 2, .transazione = alle("2024-05-02"), .report = alle("2024-06-01")},
           {.id = 5, .numero = 2, .sede = 1, .transazione = alle("2024-05-02"), .report = alle("2024-06-01")}});
    bloccaProgetto("31/03/2024");
    for (int id : {1, 2, 3}) {
        EXPECT_EQ(definito(id), "-1") << id;
        EXPECT_EQ(report(id), alle("2024-05-0" + std::to_string(id + 1))) << id;
    }
    for (int id : {4, 5}) {
        EXPECT_EQ(definito(id), "0") << "the same number in another branch, another number: " << id;
        EXPECT_EQ(report(id), alle("2024-06-01"));
    }
}

TEST_F(ProjectLock, AMovementWithoutValueCountsInAnotherCurrencyAlone) {
    const auto riga = [](int id, libro::Numero depositi, libro::Numero prelievi, int valuta) {
        return Riga{.id = id,
                    .numero = id,
                    .transazione = alle("2024-05-02"),
                    .report = {},
                    .depositi = depositi,
                    .prelievi = prelievi,
                    .valuta = valuta};
    };
    metti({riga(1, 1250, 1250, 1002), riga(2, 1250, 1250, 1001), riga(3, {}, 1250, 1002), riga(4, {}, {}, 1001),
           riga(5, 1250, 0, 1002), riga(6, 1250, {}, 1003)});
    bloccaProgetto("31/03/2024");
    const char* const atteso[] = {"-1", "0", "-1", "0", "0", "-1"};
    for (int id = 1; id <= 6; ++id) {
        EXPECT_EQ(definito(id), atteso[id - 1]) << id;
    }
}

TEST_F(ProjectLock, ARowThatWasNeverReportedIsNotClosedByTheDate) {
    metti({{.id = 1, .transazione = alle("2023-05-02"), .report = {}}});
    bloccaProgetto("31/03/2024");
    EXPECT_EQ(definito(1), "0");
    EXPECT_EQ(report(1), "NULL");
}

TEST_F(ProjectLock, RowsOfHeadquartersAccountsAreDefinitiveAndDontKeepTheirTransactionFromTheDate) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = {}, .conto = 1166},
           {.id = 2, .transazione = alle("2024-05-02"), .report = {}},
           {.id = 3, .numero = 2, .transazione = alle("2024-01-02"), .report = alle("2024-01-03")},
           {.id = 4, .numero = 2, .report = {}, .conto = 1167, .progetto = kAltroProgetto},
           {.id = 5, .numero = 3, .transazione = alle("2024-01-02"), .report = alle("2024-01-03")},
           {.id = 6, .numero = 3, .report = {}, .conto = 1060, .progetto = kAltroProgetto}});
    bloccaProgetto("31/03/2024");
    EXPECT_EQ(definito(1) + report(2), "-1" + alle("2024-05-02"));
    EXPECT_EQ(definito(3) + report(3), "-1" + alle("2024-01-03")) << "closed by the date";
    EXPECT_EQ(definito(5) + report(5), "0" + alle("2024-01-03"))
        << "its transaction has a definitive account elsewhere";
}

TEST_F(ProjectLock, ATextThatIsNoDateLeavesOutWhatNeedsTheDate) {
    const Libro righe = {{.id = 1, .transazione = alle("2024-01-10"), .definito = -1},
                         {.id = 2, .numero = 2, .report = alle("2020-01-01")},
                         {.id = 3, .numero = 3, .report = {}, .seziva = 1}};
    metti(righe);
    const std::string prima = dataDelProgetto();
    bloccaProgetto("010203");
    EXPECT_EQ(dataDelProgetto(), prima);
    EXPECT_EQ(definito(1), "0");
    EXPECT_EQ(definito(2), "0") << "reported long ago";
    EXPECT_EQ(definito(3), "-1");
}

TEST_F(ProjectLock, ARowWithoutItsKeyIsPassedOver) {
    metti({{.id = 1, .numero = {}, .report = {}, .seziva = 1},
           {.id = 2, .sede = {}, .report = {}, .seziva = 1},
           {.id = 3, .report = {}, .seziva = 1}});
    bloccaProgetto("31/03/2024");
    EXPECT_EQ(definito(1) + definito(2) + definito(3), "00-1");
}

TEST_F(ProjectLock, EachRowOfATransactionSendsItsUpdateAgain) {
    metti({{.id = 1, .seziva = 1}, {.id = 2, .seziva = 1}, {.id = 3, .seziva = 1}});
    const support::StatementRecorder recorder;
    bloccaProgetto("31/03/2024");
    EXPECT_EQ(recorder.count("update partitadoppia set definito = -1, datareport = datatransazione where   "
                             "numerotransazione= 1 and  idsede = 1"),
              3);
}

TEST_F(ProjectLock, WithoutABalanceAllAfterTheYear2000IsOpenedFirst) {
    esegui("update contatorepd set iddate = null");
    metti({{.id = 1, .transazione = alle("2000-12-31"), .report = {}, .definito = -1},
           {.id = 2, .numero = 2, .transazione = alle("2001-01-01"), .report = {}, .definito = -1}});
    bloccaProgetto("31/03/2024");
    EXPECT_EQ(definito(1) + definito(2), "-10");
}

// Each statement that fails is skipped; what is done twice is as if done once.
TEST_F(ProjectLock, WhateverStatementFailsTheRunGoesOnAndASecondOnePutsItRight) {
    const Libro righe = {{.id = 1, .seziva = 1},
                         {.id = 2, .report = alle("2024-06-01"), .progetto = kAltroProgetto},
                         {.id = 3, .numero = 2, .report = alle("2024-03-31")},
                         {.id = 4, .numero = 2, .report = {}, .conto = 1060},
                         {.id = 5, .numero = 3, .report = alle("2024-03-31"), .conto = 1251},
                         {.id = 6, .numero = 4, .transazione = alle("2024-02-01"), .report = {}, .definito = -1}};
    const auto atteso = testi(attese(righe, "2024-03-31"));
    senzaGruppi();
    int tutte = 0;
    {
        metti(righe);
        const GuastoAPosto nessuno;
        bloccaProgetto("31/03/2024");
        tutte = nessuno.inviate();
    }
    ASSERT_EQ(letto(), atteso);
    ASSERT_GT(tutte, 40);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        metti(righe);
        esegui("update progetti set iddate = null where ID = 10000003");
        {
            const GuastoAPosto guasto(posto);
            ASSERT_NO_THROW(bloccaProgetto("31/03/2024"));
            EXPECT_TRUE(guasto.inviate() > posto || posto == tutte);
        }
        EXPECT_EQ(dataDelProgetto(), posto == 1 ? "NULL" : alle("2024-03-31"));
        EXPECT_TRUE(letto().size() == righe.size());
        bloccaProgetto("31/03/2024");
        ASSERT_EQ(letto(), atteso);
        ASSERT_EQ(dataDelProgetto(), alle("2024-03-31"));
    }
}

TEST_F(ProjectLock, AnOptionalAccountThatFailsOnceIsInItsListAllTheSame) {
    metti({});
    int volte = 0;
    std::string chiusura;
    ado::setStatementRecorder([&](const std::string& testo) {
        if (testo.find("NOT EXISTS") != std::string::npos) {
            chiusura = testo;
        }
        if (testo == "SELECT  * From TabellaContiUtili  where id = 18" && ++volte == 1) {
            throw ado::Error(ado::kUnspecified, "la prova");
        }
    });
    bloccaProgetto("31/03/2024");
    ado::setStatementRecorder({});
    EXPECT_THAT(chiusura, testing::HasSubstr(" or b.idconto = 1060"));
}

TEST_F(ProjectLock, WithoutTheLedgerNothingIsSaidAndTheDateStands) {
    scrivi("drop table partitadoppia");
    ASSERT_NO_THROW(bloccaProgetto("31/03/2024"));
    EXPECT_EQ(dataDelProgetto(), alle("2024-03-31"));
}

TEST_F(ProjectLock, WithoutItsConnectionNothingIsSaid) {
    DbAzienda.Close();
    ASSERT_NO_THROW(bloccaProgetto("31/03/2024"));
}

TEST_F(ProjectLock, LeavesItsSharedRecordsetsFree) {
    metti({{.id = 1, .seziva = 1}});
    bloccaProgetto("31/03/2024");
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        EXPECT_FALSE(RsCondivisi(posto).IsOpen()) << posto;
    }
}

} // namespace
} // namespace vabo
