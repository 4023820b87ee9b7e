// The commands of the form of the VAT sections, and the key that it keeps between them.

#include "fiscal/SezionaliForm.h"

namespace vabo {
namespace {

constexpr const char* kCancellare = "Sei sicuro di voler cancellare ?";
constexpr const char* kNessuno = "Selezionare il Sezionale da annullare";
constexpr const char* kRiporto = "Azzero tutti i campi delle liquidazioni mensili,\nMemorizzo il riporto annuale,\n"
                                 "Azzero i contatori dei Registri Iva!\nSei sicuro";

std::string azzero(const std::string& chiave) {
    return "Azzero i contatori del Sezionale " + chiave + "\nSei sicuro";
}

TEST_F(SezionaliForm, EnterInTheNumberStoresDescriptionAndAreaAndEmptiesTheFields) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        scegli("1");
        scrivi("Negozio", tasto == Qt::Key_Tab ? "Libri" : "Dischi", "1");
        gui.press(tasto);
        EXPECT_EQ(testate()[0], (Riga{"1", "1", "Negozio", tasto == Qt::Key_Tab ? "Libri" : "Dischi", "3"}));
        EXPECT_EQ(campi(), (Riga{"", "", ""}));
        EXPECT_EQ(fuoco(), "NSezionale");
    }
    EXPECT_EQ(contatori()[0], (Riga{"214", "3", "388", "5"}));
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 2), "Negozio") << "the list is read again";
    script.expectMessage(kNessuno);
    premi("Command1");
}

TEST_F(SezionaliForm, ANewNumberIsANewRow) {
    apri();
    scegli("1");
    scrivi("Mostre", "Arte", "4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testate().back(), (Riga{"4", "1", "Mostre", "Arte", "1"}));
    EXPECT_EQ(righe(), 4);
    EXPECT_EQ(pagina.cell("DataGrid1", 2, 1), "4") << "in the order of the numbers";
}

TEST_F(SezionaliForm, ANumberThatIsNoneIsToldAndTheFieldsStay) {
    const Righe prima = tutto();
    apri();
    scegli("2");
    scrivi("Mostre", "Arte", "quattro");
    script.expectMessage("Invalid column name 'quattro'.");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(campi(), (Riga{"Mostre", "Arte", "quattro"}));
    EXPECT_EQ(tutto(), prima);
    script.expectQuestion(azzero("2"), false);
    premi("Command1"); // the key has stayed, too
    scrivi("Mostre", "Arte", "4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testate().back()[2], "Mostre");
}

TEST_F(SezionaliForm, AdditionWithoutARowPickedAddsOne) {
    apri();
    script.expectMessage("Inserire la descrizione");
    premi("Command5");
    vaiA("Descrizione");
    gui.type("Mostre");
    premi("Command5"); // without a number nothing happens
    scrivi("Mostre", "Arte", "4");
    script.expectQuestion("Sei sicuro?", true);
    premi("Command5");
    EXPECT_EQ(testate().back(), (Riga{"4", "1", "Mostre", "Arte", "3"}));
    EXPECT_EQ(righe(), 4);
    EXPECT_EQ(campi(), (Riga{"Mostre", "Arte", "4"})) << "the fields stay";
}

TEST_F(SezionaliForm, AdditionWithARowPickedWritesItOver) {
    apri();
    scegli("2");
    for (const bool risposta : {false, true}) {
        script.expectQuestion("Sei sicuro?", risposta);
        premi("Command5");
        EXPECT_EQ(contatori()[1], (risposta ? Riga{"0", "0", "0", "0"} : Riga{"41", "0", "57", "1"}));
    }
    EXPECT_EQ(righe(), 3);
    EXPECT_EQ(testate()[1], (Riga{"2", "1", "Formazione", "Corsi", "3"}));
    script.expectQuestion(azzero("2"), false);
    premi("Command2"); // it is still the picked one
}

TEST_F(SezionaliForm, AnAdditionRefusedReadsTheListAgain) {
    apri();
    scegli("2");
    esegui("update IvaSezionale set descrizione = 'Altro' where idautonumber = 1");
    script.expectQuestion("Sei sicuro?", false);
    premi("Command5");
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 2), "Altro");
}

TEST_F(SezionaliForm, APeriodPickedIsThatOfAllSections) {
    apri();
    script.expectQuestion("Sei sicuro", true);
    scegliLiquidazione(0);
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1");
    EXPECT_EQ(valore("select liquidazione from contatorepd where id = 1"), "1");
    EXPECT_EQ(liquidazione(), "Mensile");
    EXPECT_EQ(pagina.cell("DataGrid1", 2, 6), "1");
    script.expectQuestion("Sei sicuro", true);
    scegliLiquidazione(1);
    EXPECT_EQ(ovunque("Liquidazione"), "3 3 3");
    script.expectQuestion("Sei sicuro", false);
    scegliLiquidazione(0);
    EXPECT_EQ(ovunque("Liquidazione"), "3 3 3");
    EXPECT_EQ(liquidazione(), "Mensile") << "it shows what was picked, not what is stored";
}

TEST_F(SezionaliForm, APeriodAndACarryKeepTheSectionThatWasPicked) {
    apri();
    scegli("2");
    script.expectQuestion("Sei sicuro", true);
    scegliLiquidazione(0);
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1") << "not that of the picked one alone";
    script.expectQuestion(azzero("2"), false);
    premi("Command1");
    script.expectQuestion(kRiporto, true);
    premi("Command4");
    script.expectQuestion(azzero("2"), false);
    premi("Command1");
    EXPECT_EQ(campi(), (Riga{"Formazione", "Corsi", "2"}));
}

TEST_F(SezionaliForm, OnlyADeletionAsksForARight) {
    DirittiUtente = {};
    apri();
    scegli("2");
    script.expectQuestion(azzero("2"), true);
    premi("Command1");
    script.expectQuestion(azzero("2"), true);
    premi("Command2");
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "0", "0"}));
    script.expectQuestion(kRiporto, true);
    premi("Command4");
    EXPECT_EQ(ovunque("importodefinitivoAnno"), "77.80 0.00 0.00");
    script.expectQuestion("Sei sicuro", true);
    scegliLiquidazione(0);
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1");
    script.expectQuestion("Sei sicuro?", true);
    premi("Command5");
    EXPECT_EQ(date()[1], date()[0]);
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    premi("Command3");
    EXPECT_EQ(righe(), 3);
}

TEST_F(SezionaliForm, ASectionThatSomebodyElseHoldsIsToldAndTheSecondTryStores) {
    apri();
    scegli("2");
    const Righe prima = tutto();
    const std::pair<const char*, std::string> comandi[] = {
        {"Command1", azzero("2")}, {"Command2", azzero("2")}, {"Command5", "Sei sicuro?"}};
    for (const auto& [bottone, domanda] : comandi) {
        SCOPED_TRACE(bottone);
        {
            const auto altro = posto.engineSession(support::kCompany);
            const auto tenuta = altro->hold("select * from IvaSezionale where idautonumber = 2");
            script.expectQuestion(domanda, true);
            script.expectMessage("Lock request time out period exceeded.");
            premi(bottone);
            EXPECT_TRUE(script.allShown());
        }
        EXPECT_EQ(tutto(), prima);
        EXPECT_EQ(campi(), (Riga{"Formazione", "Corsi", "2"}));
    }
    for (const auto& [bottone, domanda] : comandi) {
        script.expectQuestion(domanda, true);
        premi(bottone);
    }
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "0", "0"}));
    EXPECT_EQ(importi()[1], Riga(13, "0.00"));
}

TEST_F(SezionaliForm, TheRegistersAreSetBackApart) {
    apri();
    for (const char* bottone : {"Command1", "Command2"}) {
        script.expectMessage(kNessuno);
        premi(bottone);
    }
    scegli("2");
    script.expectQuestion(azzero("2"), true);
    premi("Command1");
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "57", "1"}));
    script.expectQuestion(azzero("2"), true); // the key stays
    premi("Command2");
    EXPECT_EQ(contatori()[1], (Riga{"0", "0", "0", "0"}));
    EXPECT_EQ(campi(), (Riga{"Formazione", "Corsi", "2"}));
}

TEST_F(SezionaliForm, AResetWithoutADefinitiveDateIsTold) {
    esegui("update IvaSezionale set UltimaDataAcquistir = null");
    const Righe prima = tutto();
    apri();
    scegli("2");
    script.expectQuestion(azzero("2"), true);
    script.expectMessage("Invalid use of Null");
    premi("Command1");
    EXPECT_EQ(tutto(), prima);
}

TEST_F(SezionaliForm, TheYearIsCarriedOverByItsButton) {
    apri();
    script.expectQuestion(kRiporto, true);
    premi("Command4");
    EXPECT_EQ(ovunque("importodefinitivoAnno"), "77.80 0.00 0.00");
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 4), "31/12/2024") << "the list is read again";
}

TEST_F(SezionaliForm, ASectionIsAddedSetBackAndDeletedByKeyboardAlone) {
    apri();
    const auto mnemonico = [&](Qt::Key tasto) { // the button goes down and up again before it acts
        const std::size_t prima = script.shown().size();
        QTest::keyClick(gui.form("I_Iva_sezionali").windowHandle(), tasto, Qt::AltModifier);
        support::Gui::waitFor("the box", [&] { return script.shown().size() > prima; });
        support::Gui::handleEvents();
    };
    gui.type("Mostre");
    gui.press(Qt::Key_Tab);
    gui.type("Arte");
    gui.press(Qt::Key_Return);
    gui.type("4");
    script.expectQuestion("Sei sicuro?", true);
    mnemonico(Qt::Key_A);
    EXPECT_EQ(righe(), 4);
    scegli("4");
    script.expectQuestion(azzero("4"), true);
    mnemonico(Qt::Key_Q);
    script.expectQuestion(azzero("4"), true);
    mnemonico(Qt::Key_V);
    EXPECT_EQ(date()[3], (Riga{"2024-12-31 00:00:00.000", "2024-03-31 00:00:00.000", "2024-12-31 00:00:00.000",
                               "2024-03-31 00:00:00.000"}));
    script.expectQuestion(kRiporto, false);
    mnemonico(Qt::Key_R);
    script.expectQuestion(kCancellare, true);
    mnemonico(Qt::Key_E);
    EXPECT_EQ(righe(), 3);
    QTest::keyClick(gui.form("I_Iva_sezionali").windowHandle(), Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the form below", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
}

TEST_F(SezionaliForm, LongAndHostileTextsAreStoredOrRefusedAndNothingHangs) {
    apri();
    for (const std::string& ostile :
         {std::string("x'; delete from IvaSezionale --"), std::string("\"/*--;"), std::string(255, '\'')}) {
        scrivi(ostile, ostile, "2");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testate().size(), 3U);
        EXPECT_EQ(testate()[1][2], ostile);
        EXPECT_EQ(testate()[1][3], ostile);
    }
    scrivi(std::string(4'000, 'x'), "Arte", "2");
    script.expectMessage("Multiple-step operation generated errors. Check each status value.");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testate()[1][2], std::string(255, '\''));
    scrivi("Mostre", "Arte", "2; delete from IvaSezionale");
    script.expectMessage("Multiple-step operation generated errors. Check each status value.");
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(testate().empty()) << "a second statement behind the number is run";
}

} // namespace
} // namespace vabo
