// The form of the users: what it shows, its three states, and how it is opened and closed.

#include "UtentiForm.h"
#include "controls/DataControl.h"
#include "session/FormFixture.h"
#include "session/TreatForms.h"

#include <QGroupBox>
#include <QLabel>

namespace vabo {
namespace {

TEST_F(UtentiForm, ItIsOpenedByItsNameAndClosesToTheFormBelow) {
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm("Login", true));
    EXPECT_TRUE(FormInCima("Login"));
    premi("cmdClose");
    EXPECT_FALSE(gui.forms().isLoaded("Login"));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
}

class DallaConsole : public FormTest {
protected:
    DallaConsole() {
        NomeTerminale = support::kTerminalName;
        DirittiUtente.Administrator = kVero;
    }
};

TEST_F(DallaConsole, AnAdministratorOpensItAndComesBack) {
    gui.forms().show("Avvio_Azienda");
    gui.click("Avvio_Azienda", "Command2");
    EXPECT_EQ(gui.visibleForms(), "Login");
    EXPECT_FALSE(gui.forms().isLoaded("Avvio_Azienda"));
    gui.click("Login", "cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"});
}

TEST_F(DallaConsole, AUserAddedThereComesInWithAFirstPassword) {
    gui.forms().show("Avvio_Azienda");
    gui.click("Avvio_Azienda", "Command2");
    gui.waitForFront("Login");
    gui.type("Mario");
    gui.press(Qt::Key_Return);
    gui.click("Login", "Command1");
    gui.press(Qt::Key_Return);
    gui.click("Login", "cmdClose");
    gui.forms().show("About");
    gui.forms().unload("Avvio_Azienda");
    gui.waitForFront("About");
    gui.type("mario");
    gui.press(Qt::Key_Return);
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    gui.press(Qt::Key_Return);
    script.expectMessage("Confirm your Password");
    for (int i = 0; i < 2; ++i) {
        gui.type("sole");
        gui.press(Qt::Key_Return);
    }
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(DirittiUtente.Administrator, kFalso);
    EXPECT_EQ(DirittiUtente.A_PFinanza, kVero);
    EXPECT_EQ(DirittiUtente.A_EmettiPagamenti, kVero);
}

// The login loses the rights, and the console comes back below it as with any form that closes.
TEST_F(DallaConsole, WithoutTheRightItGivesWayToTheLogin) {
    gui.forms().show("Avvio_Azienda");
    gui.click("Avvio_Azienda", "Command2");
    DirittiUtente.Administrator = kFalso;
    gui.forms().show("FormRefreshLinks");
    script.expectMessage(kNonDisponi);
    gui.forms().show("Login");
    gui.forms().unload("FormRefreshLinks");
    EXPECT_FALSE(gui.forms().isLoaded("Login"));
    EXPECT_EQ(gui.visibleForms(), "About Avvio_Azienda");
    EXPECT_EQ(DirittiUtente.Disabilita, kVero);
}

TEST_F(UtentiForm, WithoutTheRightOfAnAdministratorItOnlySaysSo) {
    DirittiUtente.Administrator = kFalso;
    PilaForm = {"Avvio_Azienda", "Login"};
    CimaForm = 1;
    script.expectMessage(kNonDisponi);
    gui.forms().show("Login");
    EXPECT_FALSE(gui.forms().isLoaded("Login"));
    EXPECT_EQ(gui.visibleForms(), "About Avvio_Azienda");
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(UtentiForm, ReadsOneListAndNothingElse) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), Testi{kElencoAtteso});
    const auto& elenco = pagina.control<controls::DataControl>("elenco");
    EXPECT_EQ(elenco.ConnectionString, StringaAzienda);
    EXPECT_EQ(elenco.RecordSource, kElencoAtteso);
}

TEST_F(UtentiForm, ItsTextsStandLetterForLetter) {
    apri();
    EXPECT_EQ(pagina.text("titolo"), "Gestione Abilitazione Utenti");
    const std::pair<const char*, const char*> etichette[] = {
        {"txtNomeUtente", "Nome Utente:"},
        {"txtPassword1", "Password:"},
        {"txtA_Inserisci", "Abilita Inserisci:"},
        {"txtA_Cancella", "Abilita Cancella:"},
        {"txtA_Iva", "Abilita Gestione Iva e Libro Giornale:"},
        {"txtA_Bilancio", "Abilita Gestione Bilancio:"},
        {"txtA_Personale", "Abilita Gestione Personale:"},
        {"txtA_ArchivioStoria", "Abilita Gestione Archivio Storico:"},
        {"txtA_Synchro", "Abilita gestione DB Sedi  e Synchro:"},
        {"txtA_Progetta", "Disabilita Inserimento contabilità:"},
        {"txtA_PFinanza", "Abilita Gestione Pian. Finanziaria:"},
        {"txtA_EmettiPagamenti", "Abilita Emissione Pagamenti:"}};
    for (const auto& [campo, scritta] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), scritta);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
        EXPECT_EQ(pagina.control(campo).accessibleName() + ":", etichetta.text());
    }
    EXPECT_EQ(pagina.control<QGroupBox>("Frame1").title(), "Administrator");
    EXPECT_EQ(pagina.control("txtAdministrator").accessibleName(), "Administrator");
    EXPECT_EQ(pagina.control<QGroupBox>("Frame2").title(), "Disabilita Utente");
    EXPECT_EQ(pagina.control("txtDisabilita").accessibleName(), "Disabilita Utente");
    for (const char* bottone : {"Command1", "CancelButton", "cmdUpdate", "cmdClose"}) {
        EXPECT_FALSE(pagina.control(bottone).toolTip().isEmpty()) << bottone;
        EXPECT_FALSE(pagina.control(bottone).accessibleName().isEmpty()) << bottone;
    }
    invioNelNome();
    EXPECT_EQ(gui.mnemonics("Login"), "CDRT");
}

TEST_F(UtentiForm, ThePasswordIsMaskedAndCutAtTwelveCharacters) {
    apri();
    auto& password = pagina.control<controls::TextBox>("txtPassword1");
    EXPECT_EQ(password.echoMode(), QLineEdit::Password);
    vaiA("txtPassword1");
    gui.type("1234567890123");
    EXPECT_EQ(password.Text(), "123456789012");
}

TEST_F(UtentiForm, TheRightsStandInTheirOrderDownTheScreen) {
    apri();
    int sopra = -1;
    for (const char* casella : {"txtA_Inserisci", "txtA_Cancella", "txtA_Iva", "txtA_Bilancio", "txtA_Personale",
                                "txtA_ArchivioStoria", "txtA_Synchro", "txtA_Progetta"}) {
        const int qui = pagina.control(casella).y();
        EXPECT_GT(qui, sopra) << casella;
        sopra = qui;
    }
}

TEST_F(UtentiForm, TheFormAndItsControlsHaveTheirHelpTopics) {
    apri();
    EXPECT_EQ(gui.form("Login").property("HelpContextID"), 90);
    for (const char* controllo : {"DataGrid1", "txtNomeUtente", "txtA_PFinanza", "cmdClose"}) {
        EXPECT_EQ(pagina.control(controllo).property("HelpContextID"), 60) << controllo;
    }
    const auto tutti = gui.form("Login").findChildren<QWidget*>();
    EXPECT_GT(tutti.size(), 30);
    for (const auto* controllo : tutti) {
        EXPECT_EQ(controllo->property("HelpContextID"), 60) << controllo->objectName().toStdString();
    }
}

TEST_F(UtentiForm, AdministratorsComeLastAndEachGroupGoesByName) {
    esegui("insert into AbilitazioneAccessi (NomeUtente, Administrator) values ('zeno', 0), ('anna', 1), ('bice', 0)");
    apri();
    EXPECT_EQ(elenco(), (Riga{"bice", "contabile", "disabilitato", "nuovo_utente", "zeno", "amministratore", "anna"}));
}

TEST_F(UtentiForm, LaysItsGridAgainAfterEachReading) {
    const auto verifica = [&] {
        ASSERT_EQ(pagina.grid("DataGrid1").ColumnCount(), 15);
        for (int i = 0; i < 15; ++i) {
            const auto colonna = pagina.grid("DataGrid1").Columns(i);
            EXPECT_TRUE(colonna.Locked()) << i;
            EXPECT_EQ(colonna.Visible(), i == 1) << i;
        }
        EXPECT_EQ(pagina.grid("DataGrid1").Columns(1).Caption(), "      Utente");
        EXPECT_EQ(pagina.grid("DataGrid1").Columns(1).Width(), 3000);
    };
    apri();
    verifica();
    nuovo("mario");
    premi("cmdUpdate");
    ASSERT_EQ(elenco().size(), 5U);
    verifica();
    scegli("mario");
    script.expectQuestion("Vuoi cancellare mario?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(elenco().size(), 4U);
    verifica();
}

TEST_F(UtentiForm, TheNamesFillTheWidthOfTheList) {
    apri();
    gui.form("Login").resize(1600, 900);
    support::Gui::handleEvents();
    const controls::DataGrid& griglia = pagina.grid("DataGrid1");
    EXPECT_NEAR(griglia.columnWidth(1), griglia.viewport()->width(), 1);
}

TEST_F(UtentiForm, StartsClosedWithEmptyFieldsAndTheFocusOnTheName) {
    apri();
    EXPECT_EQ(nome(), "");
    EXPECT_EQ(pagina.text("txtPassword1"), "");
    EXPECT_EQ(caselle(), "000000000002");
    EXPECT_FALSE(aperta());
    EXPECT_FALSE(pagina.isShown("cmdUpdate"));
    EXPECT_EQ(fuoco(), "txtNomeUtente");
}

TEST_F(UtentiForm, TwoRightsAreNeverSeen) {
    apri();
    const auto verifica = [&] {
        for (const char* casella : {"txtA_PFinanza", "txtA_EmettiPagamenti"}) {
            EXPECT_FALSE(pagina.isShown(casella));
            EXPECT_FALSE(pagina.isShown(std::string("etichetta") + casella));
        }
    };
    verifica();
    scegli("contabile");
    verifica();
    invioNelNome();
    premi("Command1");
    verifica();
}

TEST_F(UtentiForm, APickedUserIsShownAndTheBoxesStayDisabled) {
    apri();
    scegli("amministratore");
    EXPECT_EQ(nome(), "amministratore");
    EXPECT_EQ(pagina.text("txtPassword1"), "primavera");
    EXPECT_EQ(caselle(), "111111111100");
    EXPECT_FALSE(aperta());
    scegli("disabilitato");
    EXPECT_EQ(nome(), "disabilitato");
    EXPECT_EQ(caselle(), "000000000001");
}

TEST_F(UtentiForm, AUserPickedWhileTheBoxesAreEnabledLeavesThemSo) {
    apri();
    invioNelNome();
    scegli("disabilitato");
    EXPECT_TRUE(aperta());
    EXPECT_EQ(caselle(), "000000000001");
}

TEST_F(UtentiForm, EachColumnGoesIntoItsOwnBox) {
    const std::string tutte = "Administrator A_Inserisci A_Cancella A_Iva A_Bilancio A_Personale A_ArchivioStoria "
                              "A_PFinanza A_Synchro A_EmettiPagamenti A_Progetta Disabilita";
    std::istringstream colonne(tutte);
    std::string colonna;
    for (std::size_t i = 0; colonne >> colonna; ++i) {
        esegui("delete from AbilitazioneAccessi");
        esegui("insert into AbilitazioneAccessi (NomeUtente, " + colonna + ") values ('solo', 1)");
        apri();
        scegli("solo");
        std::string attese(kCaselle.size(), '0');
        attese[i] = '1';
        EXPECT_EQ(caselle(), attese) << colonna;
        gui.forms().unload("Login");
        support::Gui::handleEvents();
    }
}

} // namespace
} // namespace vabo
