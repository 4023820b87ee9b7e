// The addition of a section, which also writes a section over.

#include "ado/Error.h"
#include "fiscal/SezionaliAperti.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

constexpr const char* kPrimo = "select * from IvaSezionale order by id";

TEST_F(SezionaliAperti, AnAdditionNeedsADescription) {
    const support::StatementRecorder recorder;
    for (const char* vuoto : {"", " ", "0"}) {
        script.expectMessage("Inserire la descrizione", platform::Icon::None);
        EXPECT_FALSE(AggiungiSezionale({"", vuoto, ""}, 0)) << vuoto;
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, AnAdditionWithoutANumberDoesNothing) {
    const support::StatementRecorder recorder;
    for (const char* vuoto : {"", " ", "0"}) {
        EXPECT_FALSE(AggiungiSezionale({vuoto, "Mostre", "Arte"}, 0)) << vuoto;
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, AnAdditionRefusedReadsTheListAgainAndNothingElse) {
    const support::StatementRecorder recorder;
    script.expectQuestion("Sei sicuro?", false);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", "Arte"}, 0));
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, ANewSectionTakesTheDatesAndThePeriodOfTheFirst) {
    const support::StatementRecorder recorder;
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", " Mostre ", " Arte "}, 0));
    EXPECT_EQ(recorder.holding("select"), (Testi{kPrimo, "select * from IvaSezionale where idautonumber = 0"}));
    EXPECT_EQ(
        scritture(recorder),
        (Testi{"INSERT INTO [IvaSezionale] ([id], [idsede], [UltimaDataAcquisti], [UltimaDatavendite], "
               "[UltimaDataAcquistir], [UltimaDatavenditer], [ultimaFatturaAcquisti], [Ultimaresoacquisti], "
               "[ultimaFatturavendite], [Ultimaresivendite], [ultimoprogressivoAcquisti], [Ultimoprogressivovendite], "
               "[importodefinitivo1], [importodefinitivo2], [importodefinitivo3], [importodefinitivo4], "
               "[importodefinitivo5], [importodefinitivo6], [importodefinitivo7], [importodefinitivo8], "
               "[importodefinitivo9], [importodefinitivo10], [importodefinitivo11], [importodefinitivo12], "
               "[importodefinitivoAnno], [Liquidazione], [UltimaPaginaAcquisti], [UltimaPaginaVendite], "
               "[descrizione], [AreaAttivita]) VALUES (4, 1, CONVERT(DATETIME, '2024-06-28 00:00:00.000', 121), "
               "CONVERT(DATETIME, '2024-06-29 00:00:00.000', 121), CONVERT(DATETIME, '2024-03-31 00:00:00.000', 121), "
               "CONVERT(DATETIME, '2024-03-31 00:00:00.000', 121), 0, 0, 0, 0, 0, 0, 0.00, 0.00, 0.00, 0.00, "
               "0.00, 0.00, 0.00, 0.00, 0.00, 0.00, 0.00, 0.00, 0.00, 3, 0, 0, N'Mostre', N'Arte')"}));
    EXPECT_EQ(testate().back(), (Riga{"4", "1", "Mostre", "Arte", "3"}));
    EXPECT_EQ(date().back(), (Riga{"2024-06-28 00:00:00.000", "2024-03-31 00:00:00.000", "2024-06-29 00:00:00.000",
                                   "2024-03-31 00:00:00.000"}));
}

TEST_F(SezionaliAperti, ThePickedSectionIsWrittenOverAsIfItWereNew) {
    esegui("update IvaSezionale set idsede = 9 where idautonumber = 2");
    const support::StatementRecorder recorder;
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", "Arte"}, 2));
    EXPECT_EQ(recorder.texts()[1], "select * from IvaSezionale where idautonumber = 2");
    EXPECT_EQ(testate(), (Righe{{"1", "1", "Attività commerciale", "Botteghe", "3"},
                                {"4", "1", "Mostre", "Arte", "3"},
                                {"10", "1", "Affitto sale", "Immobili", "3"}}));
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "0", "0"}));
    EXPECT_EQ(progressivi()[1], (Riga{"0", "0", "0", "0"}));
    EXPECT_EQ(importi()[1], Riga(13, "0.00"));
    EXPECT_EQ(date()[1], date()[0]);
    EXPECT_EQ(contatori()[0], (Riga{"214", "3", "388", "5"}));
}

TEST_F(SezionaliAperti, AnEmptyFirstSectionGivesNulls) {
    esegui("update IvaSezionale set id = null, Liquidazione = null where idautonumber = 3"); // nulls come first
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", "Arte"}, 2));
    EXPECT_EQ(testate()[1], (Riga{"4", "1", "Mostre", "Arte", "NULL"}));
    EXPECT_EQ(date()[1], (Riga{"NULL", "NULL", "NULL", "NULL"}));
}

TEST_F(SezionaliAperti, WithNoSectionAtAllTheNewOneHasNoDates) {
    esegui("delete from IvaSezionale");
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"1", "Mostre", ""}, 2));
    EXPECT_EQ(testate(), (Righe{{"1", "1", "Mostre", "", "NULL"}}));
    EXPECT_EQ(date(), (Righe{{"NULL", "NULL", "NULL", "NULL"}}));
}

TEST_F(SezionaliAperti, AnAreaThatIsTooLongIsSkippedAndTheRestAdded) {
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", std::string(4'000, 'x')}, 0));
    EXPECT_EQ(testate().back(), (Riga{"4", "1", "Mostre", "NULL", "3"}));
}

TEST_F(SezionaliAperti, ANumberOrADescriptionThatDoesNotFitMakesTheAdditionFail) {
    const Righe prima = tutto();
    for (const CampiSezionale& campi :
         {CampiSezionale{"abc", "Mostre", ""}, CampiSezionale{"99999999999", "Mostre", ""},
          CampiSezionale{"4; delete from IvaSezionale", "Mostre", ""},
          CampiSezionale{"4", std::string(4'000, 'x'), ""}}) {
        script.expectQuestion("Sei sicuro?", true);
        EXPECT_THROW(AggiungiSezionale(campi, 2), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
}

TEST_F(SezionaliAperti, NoTextOfAnAdditionEntersAStatement) {
    const Righe prima = tutto();
    for (const std::string& numero : {std::string("'"), std::string("2'; --"), std::string("\""), std::string("\x01"),
                                      std::string("4\x7f"), std::string(4'000, '9'), std::string(4'000, '\'')}) {
        SCOPED_TRACE(numero.substr(0, 20));
        script.expectQuestion("Sei sicuro?", true);
        EXPECT_THROW(AggiungiSezionale({numero, "Mostre", "Arte"}, 2), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
    for (const std::string testo :
         {"'", "x'; delete from IvaSezionale --", "a;b", "/*", "\"", "a\tb", "\x01", "a\nb"}) {
        SCOPED_TRACE(testo);
        script.expectQuestion("Sei sicuro?", true);
        EXPECT_TRUE(AggiungiSezionale({"2", testo, testo}, 2));
        EXPECT_EQ(testate()[1], (Riga{"2", "1", testo, testo, "3"}));
        EXPECT_EQ(testate().size(), 3U);
    }
}

TEST_F(SezionaliAperti, ASectionThatSomebodyElseHoldsMakesAnAdditionFail) {
    const Righe prima = tutto();
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto tenuta = altro->hold("select * from IvaSezionale where idautonumber = 2");
        script.expectQuestion("Sei sicuro?", true);
        EXPECT_THROW(AggiungiSezionale({"2", "Mostre", "Arte"}, 2), ado::Error);
        EXPECT_FALSE(RsCondivisi(9).IsOpen());
    }
    EXPECT_EQ(tutto(), prima);
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"2", "Mostre", "Arte"}, 2));
    EXPECT_EQ(testate()[1], (Riga{"2", "1", "Mostre", "Arte", "3"}));
}

TEST_F(SezionaliAperti, AnAdditionClosesTheSharedRecordsets) {
    ApriScrivibile(RsCondivisi(20), "select * from stati", DbAzienda);
    script.expectQuestion("Sei sicuro?", true);
    EXPECT_TRUE(AggiungiSezionale({"4", "Mostre", "Arte"}, 0));
    EXPECT_FALSE(RsCondivisi(20).IsOpen());
}

} // namespace
} // namespace vabo
