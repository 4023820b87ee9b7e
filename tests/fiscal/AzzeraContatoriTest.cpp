// The resets of the registers, and the keys in the statements.

#include "ado/Error.h"
#include "fiscal/SezionaliAperti.h"
#include "state/variabili.h"

namespace vabo {
namespace {

constexpr const char* kFineAnno = "2024-12-31 00:00:00.000";
constexpr const char* kCancellare = "Sei sicuro di voler cancellare ?";

std::string azzero(const std::string& chiave) {
    return "Azzero i contatori del Sezionale " + chiave + "\nSei sicuro";
}

TEST_F(SezionaliAperti, AResetNeedsASection) {
    const support::StatementRecorder recorder;
    for (const Registro registro : {Registro::Acquisti, Registro::Vendite}) {
        script.expectMessage("Selezionare il Sezionale da annullare", platform::Icon::None);
        EXPECT_FALSE(AzzeraContatori(registro, 0));
        script.expectQuestion(azzero("2"), false);
        EXPECT_FALSE(AzzeraContatori(registro, 2));
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, PurchasesAreSetBackToTheEndOfTheDefinitiveYear) {
    const Righe importiPrima = importi(), progressiviPrima = progressivi();
    const support::StatementRecorder recorder;
    script.expectQuestion(azzero("2"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Acquisti, 2));
    EXPECT_EQ(recorder.texts().front(), " select * from ivasezionale where id = 2");
    EXPECT_EQ(scritture(recorder).back(),
              "UPDATE [IvaSezionale] SET [UltimaDataAcquisti] = CONVERT(DATETIME, '2024-12-31 00:00:00.000', 121), "
              "[ultimaFatturaAcquisti] = 0, [Ultimaresoacquisti] = 0 WHERE [idautonumber] = 2");
    EXPECT_EQ(contatori(), (Righe{{"214", "3", "388", "5"}, {"0", "0", "57", "1"}, {"0", "0", "0", "0"}}));
    EXPECT_EQ(date()[1],
              (Riga{kFineAnno, "2024-03-31 00:00:00.000", "2024-06-20 00:00:00.000", "2024-03-31 00:00:00.000"}));
    EXPECT_EQ(importi(), importiPrima);
    EXPECT_EQ(progressivi(), progressiviPrima);
}

TEST_F(SezionaliAperti, SalesAreSetBackToTheEndOfTheDefinitiveYear) {
    esegui("update IvaSezionale set UltimaDatavenditer = '20191231 10:20:30' where idautonumber = 1");
    const support::StatementRecorder recorder;
    script.expectQuestion(azzero("1"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Vendite, 1));
    EXPECT_EQ(scritture(recorder).back(),
              "UPDATE [IvaSezionale] SET [UltimaDatavendite] = CONVERT(DATETIME, '2019-12-31 00:00:00.000', 121), "
              "[ultimaFatturavendite] = 0, [Ultimaresivendite] = 0 WHERE [idautonumber] = 1");
    EXPECT_EQ(contatori(), (Righe{{"214", "3", "0", "0"}, {"41", "0", "57", "1"}, {"0", "0", "0", "0"}}));
    EXPECT_EQ(date()[0], (Riga{"2024-06-28 00:00:00.000", "2024-03-31 00:00:00.000", "2019-12-31 00:00:00.000",
                               "2019-12-31 10:20:30.000"}));
}

TEST_F(SezionaliAperti, TheSectionSetBackIsTheOneWhoseNumberIsThePickedKey) {
    esegui("update IvaSezionale set id = 30 - idautonumber");
    esegui("update IvaSezionale set id = 3 where idautonumber = 1");
    script.expectQuestion(azzero("3"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Acquisti, 3));
    EXPECT_EQ(ovunque("ultimaFatturaAcquisti"), "0 41 0");
    EXPECT_EQ(date()[0][0], kFineAnno);
    EXPECT_EQ(date()[2][0], "NULL");
}

TEST_F(SezionaliAperti, WhereNoNumberIsThePickedKeyNothingIsSetBack) {
    const Righe prima = tutto();
    const support::StatementRecorder recorder;
    script.expectQuestion(azzero("3"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Acquisti, 3)) << "the list is read again all the same";
    EXPECT_EQ(recorder.texts(), Testi{" select * from ivasezionale where id = 3"});
    EXPECT_EQ(tutto(), prima);
}

TEST_F(SezionaliAperti, OfSeveralSectionsOfThatNumberTheFirstIsSetBack) {
    esegui("update IvaSezionale set id = 1");
    script.expectQuestion(azzero("1"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Acquisti, 1));
    EXPECT_EQ(ovunque("ultimaFatturaAcquisti"), "0 41 0");
}

TEST_F(SezionaliAperti, WithoutADefinitiveDateAResetFailsAndTheCountersStay) {
    esegui("update IvaSezionale set UltimaDataAcquistir = null, UltimaDatavenditer = null");
    const Righe prima = tutto();
    for (const Registro registro : {Registro::Acquisti, Registro::Vendite}) {
        script.expectQuestion(azzero("2"), true);
        try {
            AzzeraContatori(registro, 2);
            ADD_FAILURE() << "nothing raised";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.number(), ado::kInvalidUseOfNull);
        }
    }
    EXPECT_EQ(tutto(), prima);
    esegui("update IvaSezionale set UltimaDataAcquistir = '20200101'");
    script.expectQuestion(azzero("2"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Acquisti, 2)) << "the shared recordset was given back";
}

TEST_F(SezionaliAperti, ALargeKeyGoesIntoTheStatementInPlainDigits) {
    const support::StatementRecorder recorder;
    script.expectQuestion(azzero("1000000"), true);
    EXPECT_TRUE(AzzeraContatori(Registro::Vendite, 1'000'000));
    script.expectQuestion(kCancellare, true);
    EXPECT_TRUE(EliminaSezionale(1'000'000));
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", "Arte"}, 1'000'000));
    Testi testi = recorder.texts();
    testi.pop_back(); // of the data layer
    EXPECT_EQ(
        testi,
        (Testi{" select * from ivasezionale where id = 1000000", "Select * from partitadoppia where sezIva = 1000000",
               "delete from IvaSezionale where idautonumber = 1000000", "select * from IvaSezionale order by id",
               "select * from IvaSezionale where idautonumber = 1000000"}));
}

TEST_F(SezionaliAperti, ASectionThatSomebodyElseHoldsMakesAResetFail) {
    const Righe prima = tutto();
    for (const Registro registro : {Registro::Acquisti, Registro::Vendite}) {
        {
            const auto altro = posto.engineSession(support::kCompany);
            const auto tenuta = altro->hold("select * from IvaSezionale where idautonumber = 2");
            script.expectQuestion(azzero("2"), true);
            EXPECT_THROW(AzzeraContatori(registro, 2), ado::Error);
            EXPECT_FALSE(RsCondivisi(9).IsOpen());
            EXPECT_EQ(tutto(), prima);
        }
    }
    for (const Registro registro : {Registro::Acquisti, Registro::Vendite}) {
        script.expectQuestion(azzero("2"), true);
        EXPECT_TRUE(AzzeraContatori(registro, 2));
    }
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "0", "0"}));
}

} // namespace
} // namespace vabo
