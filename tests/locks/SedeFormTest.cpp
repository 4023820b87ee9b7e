// What the form of the branch's lock does besides running.

#include "locks/SedeForm.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using libro::alle;

TEST_F(BranchForm, HasItsTitleAndItsControls) {
    apri();
    EXPECT_EQ(gui.form(form).windowTitle(), "Tlv - Aldane Works Software Solutions - Ver.Nr. 1.2.3");
    EXPECT_EQ(pagina.text("titolo"), "Sblocca Sede");
    EXPECT_EQ(pagina.text("Label1"), "Sede");
    EXPECT_EQ(pagina.text("Label2"), "Data Blocco Finale");
    EXPECT_EQ(gui.mnemonics(form), "BC");
    EXPECT_EQ(elenco().accessibleName(), "Sede");
    EXPECT_EQ(data().accessibleName(), "Data Blocco Finale");
    EXPECT_EQ(fuoco(), "Combo1");
    aspettaVuota();
}

TEST_F(BranchForm, ListsTheBranchesByTownWithTheirStates) {
    esegui("update ElencoSedi set città = null where IdSede = 7");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"Select E.idsede,E.città,S.descstato from elencosedi AS E left "
                                       "join stati AS S on E.idstato=S.idstato order by città"});
    EXPECT_THAT(voci(), testing::ElementsAre("   -   Albania", "La Paz   -   Bolivia", "Magazzino mobile   -   ",
                                             "Maputo   -   Mozambico", "Milano   -   Italia", "Nairobi   -   Kenya",
                                             "Roma   -   Italia", "Torino   -   Italia"));
    EXPECT_EQ(elenco().itemData(5), 4);
}

TEST_F(BranchForm, ABranchPickedShowsItsDateReadyToBeTypedOver) {
    apri();
    const support::StatementRecorder recorder;
    prendi(kSede);
    EXPECT_EQ(recorder.texts(), std::vector<std::string>{"SELECT  iddatainvio From  elencosedi   Where  idsede = 4"});
    EXPECT_EQ(testo(), "31/03/2024");
    EXPECT_EQ(fuoco(), "DataInizio");
    EXPECT_TRUE(tuttoScelto());
}

TEST_F(BranchForm, ABranchWithoutADateLeavesTheTextAsItIs) {
    apri();
    prendi(kSede);
    prendi(1);
    EXPECT_EQ(testo(), "31/03/2024") << "the one of the branch before";
    EXPECT_EQ(fuoco(), "DataInizio");
    EXPECT_TRUE(tuttoScelto()) << "as in every field that gets the focus";
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
}

TEST_F(BranchForm, ABranchDeletedMeanwhileLeavesTheTextAsItIs) {
    apri();
    prendi(kSede);
    esegui("delete from ElencoSedi where IdSede = 1");
    prendi(1);
    EXPECT_EQ(testo(), "31/03/2024");
    EXPECT_TRUE(tuttoScelto());
}

TEST_F(BranchForm, TheDateIsReadWheneverTheFocusComesBack) {
    apri();
    prendi(kSede);
    digita("01/06/2024");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "Command1");
    EXPECT_EQ(testo(), "01/06/2024");
    gui.press(Qt::Key_Backtab);
    EXPECT_EQ(testo(), "31/03/2024");
    EXPECT_TRUE(tuttoScelto());
}

TEST_F(BranchForm, WithoutABranchTheDateAsksNothing) {
    apri();
    const support::StatementRecorder recorder;
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        elenco().setFocus();
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "DataInizio");
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(BranchForm, AGoodDateAfterTheBalanceLeadsToTheRun) {
    apri();
    const std::pair<const char*, const char*> date[] = {
        {"010124", "01/01/2024"}, {"31122024", "31/12/2024"}, {"12/12/2024", "12/12/2024"}, {"1/2/2024", "1/2/2024"}};
    for (const auto& [digitata, scritta] : date) {
        digita(digitata);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(), scritta);
        EXPECT_EQ(fuoco(), "Command1") << digitata << ": the last one is refused, and compared all the same";
    }
}

TEST_F(BranchForm, EnterRefusesADateBeforeTheBalanceAndTheBalanceItself) {
    apri();
    for (const char* digitata : {"30/12/2023", "31/12/2023", "311223"}) {
        digita(digitata);
        script.expectMessage(kPrimaDelBilancio);
        gui.press(Qt::Key_Return);
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(fuoco(), "DataInizio") << digitata;
    }
    EXPECT_EQ(testo(), "31/12/2023");
}

TEST_F(BranchForm, TabIsNoEndOfTheDate) {
    apri();
    digita("30/12/2023");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(testo(), "30/12/2023");
    EXPECT_EQ(fuoco(), "Command1");
}

TEST_F(BranchForm, ATextThatIsNoDateIsSelectedAndTheComparisonToldAsItFails) {
    apri();
    for (const char* digitata : {"", "32012024", "31/04/2024", "aabb"}) {
        digita(digitata);
        script.expectMessage("Type mismatch");
        gui.press(Qt::Key_Return);
        EXPECT_TRUE(script.allShown()) << digitata;
        EXPECT_EQ(testo(), digitata);
        EXPECT_EQ(fuoco(), "DataInizio");
        EXPECT_TRUE(tuttoScelto()) << digitata;
    }
}

TEST_F(BranchForm, WithoutItsTableItIsToldAndTheListIsEmpty) {
    scrivi("drop table ElencoSedi");
    script.expectMessage("Invalid object name 'elencosedi'.");
    apri();
    EXPECT_EQ(elenco().count(), 0);
    EXPECT_EQ(elenco().Text(), "Seleziona");
    EXPECT_EQ(gui.form(form).windowTitle(), "Tlv - Aldane Works Software Solutions - Ver.Nr. 1.2.3");
}

TEST_F(BranchForm, ABranchWithoutAKeyEndsTheListThereAndIsTold) {
    scrivi("drop table ElencoSedi");
    scrivi("create table ElencoSedi (IdSede int null, città nvarchar(50) null, IdStato int null, idDatainvio datetime "
           "null)");
    scrivi("insert into ElencoSedi (IdSede, città) values (4, 'Asti'), (null, 'Bari'), (5, 'Como')");
    script.expectMessage("Invalid use of Null");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_THAT(voci(), testing::ElementsAre("Asti   -   "));
}

TEST_F(BranchForm, ClosesBackToWhatOpenedItAndForgetsItsBranch) {
    apri();
    prendi(kSede);
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan"}));
    apri();
    digita("31/03/2024");
    premi("Command1"); // asks nothing
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(BranchForm, TheKeyboardAloneDoesItAll) {
    metti({{.id = 1, .transazione = alle("2023-05-02")}});
    apri();
    gui.press(Qt::Key_Down);
    QTest::keyClick(elenco().view(), 'n');
    QTest::keyClick(elenco().view(), Qt::Key_Return);
    pagina.comeToFront();
    ASSERT_EQ(elenco().Text(), "Nairobi   -   Kenya");
    gui.type("300424");
    gui.press(Qt::Key_Return);
    script.expectQuestion(domanda("30/04/2024"), true);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(dataDellaSede(), alle("2024-04-30"));
    EXPECT_EQ(valore("select definito from partitadoppia"), "-1");
    gui.press(Qt::Key_Backtab);
    EXPECT_EQ(fuoco(), "Command4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

} // namespace
} // namespace vabo
