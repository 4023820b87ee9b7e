// The commands of the form of the users that change only the screen, and the deletion of a user.

#include "UtentiForm.h"

#include <QKeyEvent>
#include <QPushButton>

namespace vabo {
namespace {

using LoginComandi = UtentiForm;

TEST_F(LoginComandi, EnterInTheNameCleansItAndBeginsTheEditing) {
    apri();
    for (const auto& [scritto, pulito] :
         {std::pair{"Mario", "mario"}, std::pair{"Mario Rossi", "mario_rossi"}, std::pair{"MARIO ", "mario_"},
          std::pair{"O'Brien", "o_brien"}, std::pair{"È-Così", "è_così"}, std::pair{"", ""}}) {
        gui.forms().unload("Login");
        support::Gui::handleEvents();
        apri();
        nuovo(scritto);
        EXPECT_EQ(nome(), pulito);
        EXPECT_TRUE(aperta());
        EXPECT_TRUE(salvaSiVede());
        EXPECT_EQ(caselle(), "000000000002");
        EXPECT_EQ(fuoco(), "txtNomeUtente");
    }
}

TEST_F(LoginComandi, TheEnterOfTheKeypadCountsAndTabDoesNot) {
    apri();
    gui.press(Qt::Key_Tab);
    EXPECT_FALSE(aperta());
    vaiA("txtNomeUtente");
    gui.press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(aperta());
}

TEST_F(LoginComandi, TheNameIsSelectedWhenItGetsTheFocus) {
    apri();
    scegli("contabile");
    vaiA("txtNomeUtente");
    EXPECT_EQ(pagina.control<controls::TextBox>("txtNomeUtente").selectedText(), "contabile");
}

TEST_F(LoginComandi, AllRightsAreTickedInGreyAndTheUserIsEnabled) {
    apri();
    nuovo("mario");
    premi("Command1");
    EXPECT_EQ(caselle(), "022222222220");
    EXPECT_TRUE(salvaSiVede());
    EXPECT_EQ(fuoco(), "cmdUpdate");
    spazioSu("txtDisabilita");
    premi("Command1");
    EXPECT_EQ(caselle(), "022222222220") << "the rights were all ticked already";
    scegli("amministratore");
    premi("Command1");
    EXPECT_EQ(caselle(), "122222222220") << "the administrator's box is left alone";
}

TEST_F(LoginComandi, ARightToEnterEnablesTheUserAndGoesToTheSave) {
    apri();
    nuovo("mario");
    for (const char* altra : {"txtA_Cancella", "txtA_Iva", "txtA_Bilancio", "txtA_Personale", "txtA_ArchivioStoria",
                              "txtA_Synchro", "txtA_Progetta", "txtAdministrator"}) {
        spazioSu(altra);
        EXPECT_EQ(pagina.box("txtDisabilita"), 2) << altra;
        EXPECT_EQ(fuoco(), altra);
    }
    spazioSu("txtA_Inserisci");
    EXPECT_EQ(caselle(), "111111101010");
    EXPECT_EQ(fuoco(), "cmdUpdate");
    spazioSu("txtDisabilita");
    EXPECT_EQ(caselle(), "111111101011");
    EXPECT_EQ(fuoco(), "txtDisabilita") << "this box does nothing of its own";
    spazioSu("txtA_Inserisci");
    EXPECT_EQ(caselle(), "101111101011");
    EXPECT_EQ(fuoco(), "txtA_Inserisci") << "nor does the other one when its tick is taken away";
}

// Its box is ticked by the pick, as by the user.
TEST_F(LoginComandi, AUserWhoMayEnterIsPickedAndTheSaveHasTheFocus) {
    apri();
    scegli("disabilitato");
    EXPECT_FALSE(pagina.isShown("cmdUpdate"));
    EXPECT_EQ(fuoco(), "DataGrid1");
    scegli("contabile");
    EXPECT_EQ(caselle(), "010110010000");
    EXPECT_TRUE(salvaSiVede());
    EXPECT_EQ(fuoco(), "cmdUpdate");
    EXPECT_FALSE(aperta());
    esegui("update AbilitazioneAccessi set Disabilita = 1 where NomeUtente = 'contabile'");
    gui.forms().unload("Login");
    support::Gui::handleEvents();
    apri();
    scegli("contabile");
    EXPECT_EQ(caselle(), "010110010001") << "whoever is disabled stays so";
}

TEST_F(LoginComandi, DisablingTakesEveryRightFromTheScreenAlone) {
    apri();
    const auto prima = tabella();
    scegli("contabile");
    invioNelNome();
    const support::StatementRecorder recorder;
    premi("CancelButton");
    EXPECT_EQ(recorder.texts(), Testi{std::string(kProvaAttesa) + " and not idautonumber = 2"});
    EXPECT_EQ(caselle(), "000000000002");
    EXPECT_TRUE(salvaSiVede());
    EXPECT_EQ(fuoco(), "cmdUpdate");
    EXPECT_EQ(tabella(), prima);
}

TEST_F(LoginComandi, ANewUserIsDisabledWithoutAnExclusion) {
    apri();
    nuovo("mario");
    spazioSu("txtA_Iva");
    const support::StatementRecorder recorder;
    premi("CancelButton");
    EXPECT_EQ(recorder.texts(), Testi{kProvaAttesa});
    EXPECT_EQ(caselle(), "000000000002");
}

// The box is looked at, not the row.
TEST_F(LoginComandi, TheOnlyAdministratorIsDisabledWhereTickedAndRefusedWhereNot) {
    apri();
    scegli("amministratore");
    invioNelNome();
    spazioSu("txtAdministrator");
    script.expectMessage(kOccorre);
    premi("CancelButton");
    EXPECT_EQ(caselle(), "011111111100") << "nothing changes";
    EXPECT_TRUE(script.allShown());
    spazioSu("txtAdministrator");
    premi("CancelButton");
    EXPECT_EQ(caselle(), "000000000002");
}

TEST_F(LoginComandi, CtrlDAsksAndDeletes) {
    apri();
    scegli("disabilitato");
    script.expectQuestion("Vuoi cancellare disabilitato?", false);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco().size(), 4U);
    const support::StatementRecorder recorder;
    script.expectQuestion("Vuoi cancellare disabilitato?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(recorder.texts(), (Testi{"delete from AbilitazioneAccessi where IdAutonumber=4", kElencoAtteso}));
    EXPECT_EQ(elenco(), (Riga{"contabile", "nuovo_utente", "amministratore"}));
    EXPECT_EQ(fuoco(), "DataGrid1");
}

TEST_F(LoginComandi, TheDeletedUserStaysInTheFieldsUntilTheNextPick) {
    apri();
    scegli("disabilitato");
    script.expectQuestion("Vuoi cancellare disabilitato?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(nome(), "disabilitato");
    EXPECT_EQ(caselle(), "000000000001");
    script.expectQuestion("Vuoi cancellare disabilitato?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco().size(), 3U) << "nobody else is deleted";
    invioNelNome();
    script.expectMessage(kSenzaRiga);
    premi("cmdUpdate");
    EXPECT_EQ(tabella().size(), 3U);
    EXPECT_TRUE(aperta());
    scegli("amministratore");
    EXPECT_EQ(nome(), "amministratore");
}

TEST_F(LoginComandi, TheLastAdministratorMayBeDeleted) {
    apri();
    scegli("amministratore");
    vaiA("DataGrid1");
    script.expectQuestion("Vuoi cancellare amministratore?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(valore("select count(*) from AbilitazioneAccessi where Administrator = 1"), "0");
}

TEST_F(LoginComandi, TheQuestionNamesTheTypedUserAndThePickedOneIsDeleted) {
    apri();
    scegli("disabilitato");
    vaiA("txtNomeUtente");
    gui.type("contabile");
    vaiA("DataGrid1");
    script.expectQuestion("Vuoi cancellare contabile?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco(), (Riga{"contabile", "nuovo_utente", "amministratore"}));
}

TEST_F(LoginComandi, NoOtherKeyDeletesAndNoneWithoutAUser) {
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_D, Qt::ControlModifier);
    scegli("disabilitato");
    for (const Qt::KeyboardModifiers altri :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier}) {
        gui.press(Qt::Key_D, altri);
    }
    for (const Qt::Key tasto : {Qt::Key_Delete, Qt::Key_Control, Qt::Key_E}) {
        gui.press(tasto, Qt::ControlModifier);
    }
    EXPECT_EQ(elenco().size(), 4U);
}

TEST_F(LoginComandi, AHeldCtrlDAsksOnce) {
    apri();
    scegli("disabilitato");
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_D, Qt::ControlModifier, QString(), true);
    QApplication::sendEvent(&pagina.grid("DataGrid1"), &ripetuto);
    EXPECT_EQ(script.shown().size(), 0U);
}

TEST_F(LoginComandi, AfterASaveNobodyIsOnTheScreenToBeDeleted) {
    apri();
    scegli("contabile");
    premi("cmdUpdate");
    vaiA("DataGrid1");
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco().size(), 4U);
}

TEST_F(LoginComandi, WhoIsNoLongerAnAdministratorIsSentToTheLoginByAnyKeyBehindAPick) {
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_A, Qt::Key_Control, Qt::Key_Space}) {
        SCOPED_TRACE(static_cast<int>(tasto));
        DirittiUtente.Administrator = kVero;
        apri();
        DirittiUtente.Administrator = kFalso;
        vaiA("DataGrid1");
        gui.press(tasto); // nobody is on the screen
        if (nome().empty()) {
            scegli("disabilitato");
        }
        vaiA("DataGrid1");
        script.expectMessage(kNonDisponi);
        gui.press(tasto);
        EXPECT_FALSE(gui.forms().isLoaded("Login"));
        EXPECT_EQ(gui.visibleForms(), "About Avvio_Azienda");
        gui.forms().unload("About");
        support::Gui::handleEvents();
    }
}

TEST_F(LoginComandi, NorDoesCtrlDDeleteForThem) {
    apri();
    scegli("disabilitato");
    DirittiUtente.Administrator = kFalso;
    script.expectMessage(kNonDisponi);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(tabella().size(), 4U);
    EXPECT_FALSE(gui.forms().isLoaded("Login"));
}

} // namespace
} // namespace vabo
