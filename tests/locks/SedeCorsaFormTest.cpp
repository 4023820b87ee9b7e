// The run of the branch's lock from its form.

#include "locks/SedeForm.h"

#include <gmock/gmock.h>

#include <cmath>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;

TEST_F(BranchForm, WithoutABranchOrADateTheRunAsksNothing) {
    apri();
    digita("31/03/2024");
    const support::StatementRecorder recorder;
    premi("Command1");
    prendi(kSede);
    for (const char* niente : {"", " ", "00", "0,00"}) {
        digita(niente);
        premi("Command1");
    }
    EXPECT_TRUE(recorder.holding("update").empty());
}

TEST_F(BranchForm, NoLeavesAllAsItIs) {
    metti({{.id = 1, .transazione = alle("2023-05-02")}});
    const auto prima = letto();
    apri();
    prendi(kSede);
    script.expectQuestion(domanda("31/03/2024"), false);
    premi("Command1");
    EXPECT_EQ(letto(), prima);
    EXPECT_EQ(testo(), "31/03/2024");
    EXPECT_EQ(elenco().ItemData(), kSede);
}

TEST_F(BranchForm, YesLocksTellsNothingAndEmptiesTheForm) {
    const Libro righe = {{.id = 1, .transazione = alle("2023-05-02")},
                         {.id = 2, .numero = 2, .transazione = alle("2024-05-02"), .definito = -1},
                         {.id = 3, .numero = 3, .transazione = alle("2024-06-02"), .seziva = 1},
                         {.id = 4, .numero = 3, .transazione = alle("2024-06-02"), .competenza = 5}};
    metti(righe);
    apri();
    prendi(kSede);
    digita("30042024");
    gui.press(Qt::Key_Return);
    script.expectQuestion(domanda("30/04/2024"), true);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(letto(), testi(dopoLaSede(righe, kSede, alle("2024-04-30"), alle(kBilancio), alle("2024-01-01"),
                                        contiDelCampione())));
    EXPECT_EQ(dataDellaSede(), alle("2024-04-30"));
    aspettaVuota();
    EXPECT_EQ(fuoco(), "Combo1");
    digita("30042024");
    premi("Command1"); // no branch is chosen any more
    prendi(kSede);
    EXPECT_EQ(testo(), "30/04/2024") << "the next run";
}

TEST_F(BranchForm, ADateEqualToTheBalancePassesByAClick) {
    metti({{.id = 1, .transazione = alle("2024-01-01"), .definito = -1}});
    apri();
    prendi(kSede);
    digita("31/12/2023");
    script.expectQuestion(domanda("31/12/2023"), true);
    premi("Command1");
    EXPECT_EQ(dataDellaSede(), alle("2023-12-31"));
    EXPECT_EQ(valore("select definito from partitadoppia"), "0");
}

TEST_F(BranchForm, ADateBeforeTheBalanceIsRefusedAfterTheQuestion) {
    metti({{.id = 1, .transazione = alle("2023-05-02")}});
    const auto prima = letto();
    apri();
    prendi(kSede);
    digita("30/12/2023");
    script.expectQuestion(domanda("30/12/2023"), true);
    script.expectMessage(kPrimaDelBilancio);
    premi("Command1");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(fuoco(), "DataInizio");
    EXPECT_EQ(letto(), prima);
    EXPECT_EQ(dataDellaSede(), alle("2024-03-31"));
    EXPECT_EQ(elenco().ItemData(), kSede);
}

TEST_F(BranchForm, ATextThatIsNoDateIsAskedForAndNothingElse) {
    apri();
    prendi(kSede);
    digita("31/04/2024");
    script.expectQuestion(domanda("31/04/2024"), true);
    const support::StatementRecorder recorder;
    premi("Command1");
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(testo(), "31/04/2024");
}

TEST_F(BranchForm, TheBarTellsThePassesAndThenTheRowsInEveryRunAnew) {
    metti({{.id = 1, .numero = 1, .seziva = 1},
           {.id = 2, .numero = 2, .seziva = 1},
           {.id = 3, .numero = 3, .seziva = 1}});
    apri();
    for (int corsa = 1; corsa <= 2; ++corsa) {
        prendi(kSede);
        std::vector<double> passate, righe;
        const auto dueDecimali = [this] { return std::round(barra().Value() * 100) / 100; };
        const support::SomebodyElse chiunque([&](const std::string& inviata) {
            if (inviata.starts_with("update partitadoppia set definito = -1 ")) {
                righe.push_back(dueDecimali());
            } else if (inviata.starts_with("update partita") || inviata.starts_with("select * from partitadoppia")) {
                passate.push_back(dueDecimali());
            }
            if (inviata.find("partitadoppia") != std::string::npos) {
                EXPECT_TRUE(barra().isVisible());
                EXPECT_FALSE(gui.form(form).isEnabled());
            }
        });
        script.expectQuestion(domanda("31/03/2024"), true);
        premi("Command1");
        EXPECT_THAT(passate, testing::ElementsAre(0, 50, 100)) << corsa;
        EXPECT_THAT(righe, testing::ElementsAre(0, 33.33, 66.67));
    }
}

TEST_F(BranchForm, TheBarIsDrawnAheadOfTheFirstStatementAndMovesNoOtherControl) {
    metti({{.id = 1, .seziva = 1}});
    apri();
    prendi(kSede);
    const QRect prima = pagina.control("Command1").geometry();
    const Disegni disegni(barra());
    int disegnata = -1;
    const support::SomebodyElse chiunque([&](const std::string&) {
        if (barra().isVisible()) {
            disegnata = disegnata < 0 ? disegni.volte : disegnata;
            EXPECT_EQ(pagina.control("Command1").geometry(), prima);
        }
    });
    script.expectQuestion(domanda("31/03/2024"), true);
    premi("Command1");
    EXPECT_GE(disegnata, 1);
}

TEST_F(BranchForm, AFailureIsToldAndTheFormStandsReadyForASecondRun) {
    metti({{.id = 1, .numero = {}, .transazione = alle("2023-05-02"), .seziva = 1}});
    apri();
    prendi(kSede);
    script.expectQuestion(domanda("31/03/2024"), true);
    script.expectMessage("Incorrect syntax near the keyword 'and'.");
    premi("Command1");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(valore("select definito from partitadoppia"), "-1") << "the passes ahead of it are done";
    EXPECT_FALSE(barra().isVisible());
    EXPECT_TRUE(gui.form(form).isEnabled());
    EXPECT_EQ(elenco().ItemData(), kSede);
    esegui("update partitadoppia set numerotransazione = 1, datatransazione = '2024-05-02'");
    script.expectQuestion(domanda("31/03/2024"), true);
    premi("Command1");
    EXPECT_EQ(valore("select definito from partitadoppia"), "-1");
    aspettaVuota();
}

TEST_F(BranchForm, ACounterTableWithoutARowStopsTheDateAndTheRunInTheirWords) {
    constexpr const char* kSenzaRiga = "Either BOF or EOF is True, or the current record has been deleted. Requested "
                                       "operation requires a current record.";
    metti({{.id = 1, .transazione = alle("2023-05-02")}});
    const auto prima = letto();
    esegui("delete from contatorepd");
    apri();
    prendi(kSede);
    script.expectMessage(kSenzaRiga);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "DataInizio");
    script.expectQuestion(domanda("31/03/2024"), true);
    script.expectMessage(kSenzaRiga);
    premi("Command1");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(letto(), prima);
    EXPECT_EQ(elenco().ItemData(), kSede);
}

TEST_F(BranchForm, WithoutTheBalanceADateCanNotBeCompared) {
    scrivi("drop table contatorepd");
    apri();
    prendi(kSede);
    script.expectMessage("Invalid object name 'contatorepd'.");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "DataInizio");
    script.expectQuestion(domanda("31/03/2024"), true);
    script.expectMessage("Invalid object name 'contatorepd'.");
    premi("Command1");
    EXPECT_TRUE(script.allShown());
}

} // namespace
} // namespace vabo
