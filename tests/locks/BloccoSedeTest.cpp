#include "ado/Error.h"
#include "locks/GuastoAPosto.h"
#include "locks/LibroAperto.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;
using libro::Riga;

class BranchLock : public LibroAperto {
protected:
    std::string definito(int id) const {
        return valore("select definito from partitadoppia where idautonumber = " + std::to_string(id));
    }
    std::string dataDellaSede() const {
        return valore("select idDatainvio from ElencoSedi where IdSede = " + std::to_string(kSede));
    }
    /// A row of a transaction of its own, of that day.
    static Riga del(int id, const std::string& giorno, int definito) {
        return {
            .id = id, .numero = id, .transazione = alle(giorno), .report = alle("2022-02-02"), .definito = definito};
    }
};

TEST_F(BranchLock, StoresTheDateOfItsBranchAlone) {
    metti({});
    const auto altre = lettura("select * from ElencoSedi where IdSede <> 4 order by IdSede");
    bloccaSede("07/05/2024");
    EXPECT_EQ(dataDellaSede(), alle("2024-05-07"));
    EXPECT_EQ(lettura("select * from ElencoSedi where IdSede <> 4 order by IdSede"), altre);
}

TEST_F(BranchLock, RowsBetweenTheBalanceAndTheDateStayAsTheyWere) {
    metti({del(1, "2023-12-31", 0), del(2, "2024-01-01", 0), del(3, "2024-01-01", -1), del(4, "2024-03-31", 0),
           del(5, "2024-03-31", -1), del(6, "2024-04-01", -1), del(7, "2024-04-01", 0), del(8, "2020-01-01", 0)});
    bloccaSede("31/03/2024");
    const char* const atteso[] = {"-1", "0", "-1", "0", "-1", "0", "0", "-1"};
    for (int id = 1; id <= 8; ++id) {
        EXPECT_EQ(definito(id), atteso[id - 1]) << id;
    }
}

TEST_F(BranchLock, ABalanceAtTheEndOfAMonthClosesItsLastDay) {
    const std::pair<const char*, const char*> bilanci[] = {{"2024-01-31", "2024-02-01"}, {"2024-02-29", "2024-03-01"},
                                                           {"2023-02-28", "2023-03-01"}, {"2023-12-31", "2024-01-01"},
                                                           {"2024-04-30", "2024-05-01"}, {"2024-06-15", "2024-06-16"}};
    for (const auto& [bilancio, giornoDopo] : bilanci) {
        SCOPED_TRACE(bilancio);
        esegui(std::string("update contatorepd set iddate = '") + bilancio + "'");
        Libro righe = {del(1, bilancio, 0), del(2, giornoDopo, 0), del(3, bilancio, 0)};
        righe[2].transazione = alle(bilancio, "23:59");
        metti(righe);
        const support::StatementRecorder recorder;
        bloccaSede("31/12/2024");
        EXPECT_EQ(definito(1) + definito(2) + definito(3), "-10-1");
    }
}

TEST_F(BranchLock, WithoutABalanceTheBoundIsTheFirstDayOf2001) {
    esegui("update contatorepd set iddate = null");
    metti({del(1, "2000-12-31", 0), del(2, "2001-01-01", 0)});
    const support::StatementRecorder recorder;
    bloccaSede("31/12/2000");
    EXPECT_EQ(recorder.count("update partitadoppia set definito =-1  where idsedecompetenza =4 and  (datatransazione < "
                             "CONVERT(DATETIME, '2001-1-1', 102)  )"),
              1);
    EXPECT_EQ(definito(1) + definito(2), "-10");
}

TEST_F(BranchLock, AVatRowMakesItsWholeTransactionDefinitiveAndLeavesItsReportAlone) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = {}, .seziva = 2},
           {.id = 2, .transazione = alle("2024-05-03"), .report = alle("2024-06-01"), .competenza = kAltraSede},
           {.id = 3, .transazione = alle("2024-05-04"), .report = alle("2024-06-01"), .competenza = {}},
           {.id = 4, .numero = 1, .sede = 2, .transazione = alle("2024-05-02"), .definito = -1}});
    Libro righe = {
        {.id = 1, .transazione = alle("2024-05-02"), .report = {}, .seziva = 2, .definito = -1},
        {.id = 2,
         .transazione = alle("2024-05-03"),
         .report = alle("2024-06-01"),
         .competenza = kAltraSede,
         .definito = -1},
        {.id = 3, .transazione = alle("2024-05-04"), .report = alle("2024-06-01"), .competenza = {}, .definito = -1},
        {.id = 4, .numero = 1, .sede = 2, .transazione = alle("2024-05-02"), .definito = 0}};
    bloccaSede("31/03/2024");
    EXPECT_EQ(letto(), testi(righe));
}

TEST_F(BranchLock, WithoutItsRowTheDateIsNotStoredAndThePassesRun) {
    esegui("delete from ElencoSedi where IdSede = 4");
    metti({del(1, "2023-12-31", 0)});
    bloccaSede("31/03/2024");
    EXPECT_EQ(definito(1), "-1");
    EXPECT_EQ(valore("select count(*) from ElencoSedi where IdSede = 4"), "0");
}

TEST_F(BranchLock, ARowWithoutItsKeyStopsTheRunThere) {
    metti({{.id = 1, .numero = 1, .transazione = alle("2024-05-02"), .seziva = 1},
           {.id = 2, .numero = {}, .transazione = alle("2024-05-02"), .seziva = 1},
           {.id = 3, .numero = 3, .transazione = alle("2024-05-02"), .seziva = 1}});
    try {
        bloccaSede("31/03/2024");
        FAIL() << "the server took a statement with a gap";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.description(), "Incorrect syntax near the keyword 'and'.");
    }
    EXPECT_EQ(definito(1) + definito(2) + definito(3), "-100");
}

TEST_F(BranchLock, TellsTheDateThatABranchHas) {
    EXPECT_EQ(LeggiDataSede(kSede), "31/03/2024");
    esegui("update ElencoSedi set idDatainvio = '2024-03-31 10:30' where IdSede = 4");
    EXPECT_EQ(LeggiDataSede(kSede), "31/03/2024 10:30:00");
    EXPECT_EQ(LeggiDataSede(1), std::nullopt) << "no date yet";
    EXPECT_EQ(LeggiDataSede(999), std::nullopt) << "no such branch";
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        EXPECT_FALSE(RsCondivisi(posto).IsOpen()) << posto;
    }
    scrivi("drop table ElencoSedi");
    EXPECT_THROW(LeggiDataSede(kSede), ado::Error);
    EXPECT_FALSE(RsCondivisi(8).IsOpen());
}

TEST_F(BranchLock, ComparesADateWithTheBalance) {
    EXPECT_TRUE(PrimaDelBilancio("30/12/2023"));
    EXPECT_FALSE(PrimaDelBilancio("31/12/2023"));
    EXPECT_FALSE(PrimaDelBilancio("01/01/2024"));
    EXPECT_TRUE(NonDopoIlBilancio("30/12/2023"));
    EXPECT_TRUE(NonDopoIlBilancio("31/12/2023"));
    EXPECT_FALSE(NonDopoIlBilancio("01/01/2024"));
    EXPECT_THROW(NonDopoIlBilancio("010203"), ado::Error);
}

/// What each place of a run may fail at, told to the user as the server says it; the accounts of the nine places,
/// which are loaded with errors ignored, don't stop it.
TEST_F(BranchLock, AFailureStopsTheRunWhereItStandsAndASecondOnePutsItRight) {
    const Libro righe = {del(1, "2023-12-31", 0),
                         del(2, "2024-05-02", -1),
                         {.id = 3, .numero = 3, .transazione = alle("2024-05-02"), .seziva = 1},
                         {.id = 4, .numero = 3, .transazione = alle("2024-05-02"), .competenza = kAltraSede},
                         {.id = 5, .numero = 5, .transazione = alle("2024-05-02"), .conto = 1166}};
    const auto atteso =
        testi(dopoLaSede(righe, kSede, alle("2024-03-31"), alle(kBilancio), alle("2024-01-01"), contiDelCampione()));
    senzaGruppi();
    int tutte = 0;
    {
        metti(righe);
        const GuastoAPosto nessuno;
        bloccaSede("31/03/2024");
        tutte = nessuno.inviate();
    }
    ASSERT_EQ(letto(), atteso);
    int fermate = 0;
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        metti(righe);
        esegui("update ElencoSedi set idDatainvio = null where IdSede = 4");
        {
            const GuastoAPosto guasto(posto);
            try {
                bloccaSede("31/03/2024");
                EXPECT_EQ(guasto.inviate(), tutte);
            } catch (const ado::Error& errore) {
                ++fermate;
                EXPECT_EQ(errore.description(), GuastoAPosto::kRifiuto);
                EXPECT_EQ(guasto.inviate(), posto) << "nothing runs behind the failure";
            }
        }
        for (int condiviso = 1; condiviso <= RecordsetCondivisi::kNumero; ++condiviso) {
            ASSERT_FALSE(RsCondivisi(condiviso).IsOpen()) << condiviso;
        }
        bloccaSede("31/03/2024");
        ASSERT_EQ(letto(), atteso);
        ASSERT_EQ(dataDellaSede(), alle("2024-03-31"));
    }
    EXPECT_EQ(tutte - fermate, 9) << "the accounts of the nine places are skipped";
}

TEST_F(BranchLock, ABranchThatSomebodyHoldsIsToldAndNothingIsDone) {
    metti({del(1, "2023-12-31", 0)});
    const auto tenuta = lato->hold("select * from ElencoSedi where IdSede = 4");
    try {
        bloccaSede("31/05/2024");
        FAIL() << "a row that somebody holds was written";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.nativeError(), 1222);
    }
    EXPECT_EQ(definito(1), "0");
    EXPECT_EQ(dataDellaSede(), alle("2024-03-31"));
}

} // namespace
} // namespace vabo
