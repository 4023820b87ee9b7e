// The form of the users with values and texts that aren't sound: nulls, zeros, columns that aren't there, and whatever
// may be typed as a name.

#include "UtentiForm.h"
#include "controls/DataControl.h"
#include "session/RegoleLogin.h"
#include "support/Attacks.h"
#include "support/HeardBoxes.h"
#include "support/TestedDriver.h"

namespace vabo {
namespace {

class LoginTesti : public UtentiForm {
protected:
    /// The table again, as another program might have created it: with every column nullable and no rows.
    void ricreaConNulli() const {
        esegui("drop table AbilitazioneAccessi");
        esegui("create table AbilitazioneAccessi (idautonumber int null, NomeUtente nvarchar(25) null, PaswUtente "
               "nvarchar(12) null, Administrator bit null, A_Inserisci bit null, A_Cancella bit null, A_Iva bit null, "
               "A_Bilancio bit null, A_Personale bit null, A_ArchivioStoria bit null, A_PFinanza bit null, A_Synchro "
               "bit null, A_EmettiPagamenti bit null, A_Progetta bit null, Disabilita bit null)");
    }
};

// What can't be read leaves its field as it was: nothing of the former user is taken away.
TEST_F(LoginTesti, ANullNameOrPasswordLeavesWhatStoodThere) {
    esegui("update AbilitazioneAccessi set NomeUtente = null where idautonumber = 4");
    apri();
    scegli("contabile");
    scegli("nuovo_utente");
    EXPECT_EQ(pagina.text("txtPassword1"), "estate24") << "the password of the user picked before";
    EXPECT_EQ(nome(), "nuovo_utente");
    scegli("");
    EXPECT_EQ(nome(), "nuovo_utente");
    EXPECT_EQ(pagina.text("txtPassword1"), "autunno");
    EXPECT_EQ(caselle(), "000000000001");
}

TEST_F(LoginTesti, EachNullRightIsAnEmptyBox) {
    ricreaConNulli();
    esegui("insert into AbilitazioneAccessi values (7, 'pieno', 'x', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)");
    const char* colonne[] = {"Administrator", "A_Inserisci",       "A_Cancella",       "A_Iva",
                             "A_Bilancio",    "A_Personale",       "A_ArchivioStoria", "A_PFinanza",
                             "A_Synchro",     "A_EmettiPagamenti", "A_Progetta",       "Disabilita"};
    for (std::size_t i = 0; i < std::size(colonne); ++i) {
        esegui(std::string("update AbilitazioneAccessi set ") + colonne[i] + " = null");
        apri();
        scegli("pieno");
        std::string attese(kCaselle.size(), '1');
        attese[i] = '0';
        EXPECT_EQ(caselle(), attese) << colonne[i];
        EXPECT_EQ(aperta(), false);
        gui.forms().unload("Login");
        support::Gui::handleEvents();
        esegui(std::string("update AbilitazioneAccessi set ") + colonne[i] + " = 1");
    }
}

TEST_F(LoginTesti, ANullKeyLeavesTheKeyOfTheUserPickedBefore) {
    ricreaConNulli();
    esegui("insert into AbilitazioneAccessi (idautonumber, NomeUtente, Administrator) values (7, 'sette', 1)");
    esegui("insert into AbilitazioneAccessi (NomeUtente, Administrator) values ('senza', 0)");
    apri();
    scegli("sette");
    scegli("senza");
    EXPECT_EQ(nome(), "senza");
    script.expectQuestion("Vuoi cancellare senza?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco(), Riga{"senza"}) << "the one picked before is deleted";
}

// A test that fails counts as true.
TEST_F(LoginTesti, ColumnsThatTheListDoesNotHaveTickTheirBoxes) {
    apri();
    auto& lista = pagina.control<controls::DataControl>("elenco");
    lista.RecordSource = "select NomeUtente, A_Iva from AbilitazioneAccessi order by idautonumber";
    lista.Refresh();
    for (int i = 0; i < 2; ++i) {
        pagina.grid("DataGrid1").Columns(i).setLocked(true);
    }
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Space);
    EXPECT_EQ(nome(), "nuovo_utente");
    EXPECT_EQ(caselle(), "111011111111");
}

TEST_F(LoginTesti, AKeyOfZeroIsANewUser) {
    ricreaConNulli();
    esegui("insert into AbilitazioneAccessi (idautonumber, NomeUtente, Administrator) values (0, 'zero', 1)");
    apri();
    scegli("zero");
    gui.press(Qt::Key_D, Qt::ControlModifier); // nobody is on the screen
    EXPECT_EQ(elenco(), Riga{"zero"});
}

TEST_F(LoginTesti, ATableThatIsGoneIsToldAndTheFormStands) {
    esegui("drop table AbilitazioneAccessi");
    script.expectMessage("Invalid object name 'AbilitazioneAccessi'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_TRUE(gui.isVisible("Login"));
    EXPECT_EQ(caselle(), "000000000002");
    EXPECT_FALSE(aperta());
    QTest::mouseClick(pagina.grid("DataGrid1").viewport(), Qt::LeftButton);
    support::Gui::handleEvents();
    premi("cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

/// The names that a user may type, up to the longest that the column takes.
Testi brevi() {
    Testi testi;
    for (const std::string& testo : support::attacks()) {
        const QString letto = QString::fromStdString(testo);
        if (letto.toUcs4().size() <= 25 && !letto.contains(QChar(0)) && QString(letto).remove(u'\ufffd') == letto) {
            testi.push_back(testo);
        }
    }
    return testi;
}

TEST_F(LoginTesti, EveryHostileNameBehindItsEnterIsTheNameThatTheLoginLooksFor) {
    apri();
    esegui("delete from AbilitazioneAccessi where Administrator = 0");
    int provati = 0;
    for (const std::string& ostile : brevi()) {
        auto& campo = pagina.control<controls::TextBox>("txtNomeUtente");
        campo.setText(ostile);
        const std::string tenuto = Normalizzato(campo.Text());
        invioNelNome();
        ASSERT_EQ(nome(), tenuto);
        premi("cmdUpdate");
        if (tenuto.empty() || !nome().empty()) {
            continue; // without a name, or with one of zeros, nothing is stored
        }
        ++provati;
        const auto righe = tabella();
        ASSERT_EQ(righe.size(), 2U) << ostile;
        EXPECT_EQ(righe[1][1], tenuto);
        esegui("delete from AbilitazioneAccessi where Administrator = 0");
    }
    EXPECT_GT(provati, 100);
}

TEST_F(LoginTesti, EveryHostileNameWithoutItsEnterIsStoredAsItStands) {
    apri();
    esegui("delete from AbilitazioneAccessi where Administrator = 0");
    invioNelNome();
    for (const std::string& ostile : brevi()) {
        auto& campo = pagina.control<controls::TextBox>("txtNomeUtente");
        campo.setText(ostile);
        const std::string scritto = campo.Text();
        premi("cmdUpdate");
        if (!nome().empty()) {
            continue;
        }
        const auto righe = tabella();
        ASSERT_EQ(righe.size(), scritto.empty() ? 1U : 2U) << ostile;
        if (!scritto.empty()) {
            EXPECT_EQ(righe[1][1], scritto);
        }
        esegui("delete from AbilitazioneAccessi where Administrator = 0");
    }
    EXPECT_EQ(tabella().size(), 1U);
}

TEST_F(LoginTesti, ANameThatIsTooLongIsRefusedAndStaysInTheField) {
    apri();
    const auto prima = tabella();
    for (const std::string& lungo : {std::string(26, 'x'), std::string(4'000, 'x')}) {
        pagina.control<controls::TextBox>("txtNomeUtente").setText(lungo);
        invioNelNome();
        script.expectMessage("Multiple-step operation generated errors. Check each status value.");
        premi("cmdUpdate");
        EXPECT_EQ(nome(), lungo);
        EXPECT_TRUE(aperta());
    }
    EXPECT_EQ(tabella(), prima);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
    pagina.control<controls::TextBox>("txtNomeUtente").setText(std::string(25, 'x'));
    premi("cmdUpdate");
    EXPECT_EQ(tabella().back()[1], std::string(25, 'x'));
}

TEST_F(LoginTesti, TheQuestionOfADeletionShowsWhateverIsTyped) {
    apri();
    scegli("disabilitato");
    for (const char* ostile : {"<b>x</b>", "a\tb", "'; delete from AbilitazioneAccessi --", ""}) {
        pagina.control<controls::TextBox>("txtNomeUtente").setText(ostile);
        script.expectQuestion(std::string("Vuoi cancellare ") + ostile + "?", false);
        vaiA("DataGrid1");
        gui.press(Qt::Key_D, Qt::ControlModifier);
    }
    EXPECT_EQ(tabella().size(), 4U);
}

} // namespace
} // namespace vabo
