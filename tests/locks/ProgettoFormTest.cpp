// What the form of the project's lock does besides running.

#include "locks/ProgettoForm.h"

namespace vabo {
namespace {

using libro::alle;

TEST_F(ProjectForm, HasItsTitleAndItsControls) {
    apri();
    EXPECT_EQ(gui.form(form).windowTitle(), "Aggiorna Data Definitiva Progetto");
    EXPECT_EQ(pagina.text("Label2"), "Data Definitiva");
    EXPECT_EQ(gui.mnemonics(form), "AC");
    EXPECT_EQ(elenco().accessibleName(), "Progetto");
    EXPECT_EQ(data().accessibleName(), "Data Definitiva");
    EXPECT_EQ(barra().accessibleName(), "Avanzamento");
    EXPECT_EQ(fuoco(), "Combo1");
    aspettaVuota();
}

TEST_F(ProjectForm, ListsTheProjectsByTheirShortTitle) {
    esegui("update progetti set titolobreve = null where ID = 10000005");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"Select id,titolobreve,IdDate from progetti  order by  titolobreve"});
    const auto tutte = voci();
    ASSERT_EQ(tutte.size(), 13U);
    EXPECT_EQ(tutte[0], "   -   10000005") << "without a title";
    EXPECT_EQ(tutte[1], "Acqua Kitui   -   10000002");
    EXPECT_EQ(tutte[12], "Tessitrici Altopiano   -   10000006");
    EXPECT_EQ(elenco().itemData(1), 10000002);
}

TEST_F(ProjectForm, AProjectPickedShowsItsDateReadyToBeTypedOver) {
    apri();
    esegui("update progetti set iddate = '2024-07-09 10:30' where ID = 10000003"); // since the list was read
    prendi(kProgetto);
    EXPECT_EQ(IdProgettoScelto, kProgetto);
    EXPECT_EQ(testo(), "09/07/2024");
    EXPECT_EQ(fuoco(), "iddateend");
    EXPECT_TRUE(tuttoScelto());
    prendi(10000001);
    EXPECT_EQ(testo(), "") << "a project without a date yet";
    EXPECT_EQ(fuoco(), "iddateend");
}

TEST_F(ProjectForm, AProjectThatIsGoneMeanwhileIsTold) {
    apri();
    esegui("delete from progetti where ID = 10000003");
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    prendi(kProgetto);
    EXPECT_TRUE(gui.isVisible(form));
}

TEST_F(ProjectForm, EnterAndTabLeadFromTheProjectToTheDate) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        elenco().setFocus();
        gui.press(tasto, tasto == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        EXPECT_EQ(fuoco(), "iddateend");
    }
}

TEST_F(ProjectForm, AGoodDateIsWrittenOutAndLeadsToTheRun) {
    apri();
    const std::pair<const char*, const char*> date[] = {{"010203", "01/02/2003"},
                                                        {"31122024", "31/12/2024"},
                                                        {"01024", "01/02/2024"},
                                                        {"12/12/2020", "12/12/2020"},
                                                        {"0102", "0102"}};
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        for (const auto& [digitata, scritta] : date) {
            digita(digitata);
            gui.press(tasto);
            EXPECT_EQ(testo(), scritta);
            EXPECT_EQ(fuoco(), "Command1") << digitata;
        }
    }
}

TEST_F(ProjectForm, ABadDateIsSelectedAndKeepsTheFocus) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        for (const char* digitata : {"32012024", "01132024", "31/04/2024", "1/2/2020", "aabb"}) {
            digita(digitata);
            EXPECT_FALSE(tuttoScelto());
            gui.press(tasto);
            EXPECT_EQ(testo(), digitata) << "as typed";
            EXPECT_EQ(fuoco(), "iddateend");
            EXPECT_TRUE(tuttoScelto()) << digitata;
        }
    }
}

TEST_F(ProjectForm, NothingComesOfAnEmptyDate) {
    apri();
    for (const char* digitata : {"", "/", "0", "00", "000"}) {
        digita(digitata);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(), digitata);
        EXPECT_EQ(fuoco(), "iddateend");
        EXPECT_TRUE(data().selectedText().isEmpty()) << digitata;
    }
}

TEST_F(ProjectForm, ClosesBackToWhatOpenedItAndForgetsItsProject) {
    apri();
    prendi(kProgetto);
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded(form));
    EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan"}));
    apri();
    const support::StatementRecorder recorder;
    digita("31/03/2024");
    premi("Command1");
    EXPECT_TRUE(recorder.texts().empty()) << "none is chosen in the new list";
    gui.form(form).close();
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan") << "by the window too";
}

TEST_F(ProjectForm, WithoutItsTableItIsToldAndTheListIsEmpty) {
    scrivi("drop table progetti");
    script.expectMessage("Invalid object name 'progetti'.");
    apri();
    EXPECT_EQ(elenco().count(), 0);
    EXPECT_EQ(elenco().Text(), "Seleziona");
    premi("Command1");
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(ProjectForm, AProjectWithoutAKeyEndsTheListThereAndIsTold) {
    scrivi("drop table progetti");
    scrivi("create table progetti (id int null, titolobreve nvarchar(50) null, iddate datetime null)");
    scrivi("insert into progetti (id, titolobreve) values (10000003, 'Acqua'), (null, 'Boschi'), (10000004, 'Campi')");
    script.expectMessage("Invalid use of Null");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(elenco().count(), 1);
    prendi(kProgetto);
    EXPECT_EQ(IdProgettoScelto, kProgetto) << "those ahead of it can be used";
}

TEST_F(ProjectForm, TheKeyboardAloneDoesItAll) {
    metti({{.id = 1, .transazione = alle("2023-05-02"), .report = alle("2023-05-02")}});
    apri();
    gui.press(Qt::Key_Down);
    QTest::keyClick(elenco().view(), 's');
    QTest::keyClick(elenco().view(), 'c');
    QTest::keyClick(elenco().view(), Qt::Key_Return);
    pagina.comeToFront();
    ASSERT_EQ(elenco().Text(), "Scuole Nairobi   -   10000003");
    gui.type("300424");
    gui.press(Qt::Key_Tab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    EXPECT_EQ(valore("select definito from partitadoppia"), "-1");
    EXPECT_EQ(fuoco(), "Combo1");
    gui.press(Qt::Key_Backtab);
    EXPECT_EQ(fuoco(), "Command4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

} // namespace
} // namespace vabo
