// The form of the users with the keyboard alone: a new user, a change, a deletion, the way out.

#include "UtentiForm.h"
#include "controls/DataControl.h"

namespace vabo {
namespace {

class LoginTastiera : public UtentiForm {
protected:
    /// Presses a key until that control has the focus.
    void premiFinoA(const std::string& controllo, Qt::Key tasto) const {
        constexpr int kPiuDelleFermate = 20;
        for (int i = 0; i < kPiuDelleFermate && fuoco() != controllo; ++i) {
            gui.press(tasto);
        }
        ASSERT_EQ(fuoco(), controllo);
    }
    void mnemonico(Qt::Key tasto, const std::function<bool()>& fatto) const {
        QTest::keyClick(gui.form("Login").windowHandle(), tasto, Qt::AltModifier);
        support::Gui::waitFor("the command", fatto);
        support::Gui::handleEvents();
    }
};

TEST_F(LoginTastiera, TabGoesAlongTheScreen) {
    apri();
    for (const char* fermata : {"txtNomeUtente", "txtPassword1", "DataGrid1", "cmdClose", "txtNomeUtente"}) {
        EXPECT_EQ(fuoco(), fermata) << "while the boxes are disabled";
        gui.press(Qt::Key_Tab);
    }
    invioNelNome();
    for (const char* fermata :
         {"txtNomeUtente", "txtPassword1", "txtAdministrator", "Command1", "txtA_Inserisci", "txtA_Cancella",
          "txtA_Iva", "txtA_Bilancio", "txtA_Personale", "txtA_ArchivioStoria", "txtA_Synchro", "txtA_Progetta",
          "txtDisabilita", "CancelButton", "cmdUpdate", "DataGrid1", "cmdClose", "txtNomeUtente"}) {
        EXPECT_EQ(fuoco(), fermata);
        gui.press(Qt::Key_Tab);
    }
}

TEST_F(LoginTastiera, TheArrowsGoAlongTheListAndSpacePicks) {
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Down);
    EXPECT_EQ(nome(), "");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(nome(), "nuovo_utente");
    vaiA("DataGrid1");
    gui.press(Qt::Key_Up);
    EXPECT_EQ(nome(), "nuovo_utente");
    gui.type("amm");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(nome(), "amministratore");
}

TEST_F(LoginTastiera, TheMousePicksOnARowAndNobodyBesideTheRows) {
    apri();
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    const auto clicca = [&](const QPoint& punto) {
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, Qt::NoModifier, punto);
        support::Gui::handleEvents();
    };
    clicca(griglia.viewport()->rect().bottomLeft() + QPoint(5, -5));
    EXPECT_EQ(nome(), "");
    clicca(griglia.visualRect(griglia.model()->index(1, 1)).center());
    EXPECT_EQ(nome(), "disabilitato");
}

TEST_F(LoginTastiera, AClickBesideTheRowsOfAListWithoutAPositionShowsNobody) {
    apri();
    ado::Recordset& rs = pagina.control<controls::DataControl>("elenco").Recordset();
    const auto verifica = [&](bool fine) {
        ASSERT_EQ(rs.EOF(), fine);
        ASSERT_EQ(rs.BOF(), !fine);
        QWidget& sfondo = *pagina.grid("DataGrid1").viewport();
        QTest::mouseClick(&sfondo, Qt::LeftButton, Qt::NoModifier, sfondo.rect().bottomLeft() + QPoint(5, -5));
        EXPECT_EQ(caselle(), "000000000002");
    };
    rs.MovePrevious();
    verifica(false);
    rs.MoveLast();
    rs.MoveNext();
    verifica(true);
}

TEST_F(LoginTastiera, AnEmptyListIsClickedInSilence) {
    esegui("delete from AbilitazioneAccessi");
    apri();
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton);
    EXPECT_EQ(caselle(), "000000000002") << "no user has been read";
    vaiA("DataGrid1");
    gui.press(Qt::Key_Space);
    gui.press(Qt::Key_D, Qt::ControlModifier);
}

TEST_F(LoginTastiera, FromANewUserToTheWayOut) {
    apri();
    gui.type("Mario");
    gui.press(Qt::Key_Return);
    premiFinoA("txtA_Cancella", Qt::Key_Tab);
    gui.press(Qt::Key_Space);
    premiFinoA("txtDisabilita", Qt::Key_Tab);
    gui.press(Qt::Key_Space);
    premiFinoA("cmdUpdate", Qt::Key_Tab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(flag("mario"), "001000000000");

    // The new user is searched in the list by its letters, picked, given all rights and made an administrator.
    premiFinoA("DataGrid1", Qt::Key_Tab);
    gui.type("mar");
    gui.press(Qt::Key_Space);
    premiFinoA("txtNomeUtente", Qt::Key_Tab);
    gui.press(Qt::Key_Return);
    mnemonico(Qt::Key_T, [this] { return fuoco() == "cmdUpdate" && caselle() == "022222222220"; });
    premiFinoA("txtAdministrator", Qt::Key_Backtab);
    gui.press(Qt::Key_Space);
    mnemonico(Qt::Key_R, [this] { return nome().empty(); });
    EXPECT_EQ(flag("mario"), "111111111110");

    // The other one is disabled.
    premiFinoA("DataGrid1", Qt::Key_Tab);
    for (int i = 0; i < 3; ++i) {
        gui.press(Qt::Key_Down);
    }
    gui.press(Qt::Key_Space);
    EXPECT_EQ(nome(), "amministratore");
    EXPECT_EQ(fuoco(), "cmdUpdate");
    premiFinoA("txtNomeUtente", Qt::Key_Tab);
    gui.press(Qt::Key_Return);
    mnemonico(Qt::Key_D, [this] { return caselle() == "000000000002"; });
    gui.press(Qt::Key_Return);
    EXPECT_EQ(flag("amministratore"), "000000000001");

    // And deleted: a pick of a user who may enter leaves the list, this one doesn't.
    premiFinoA("DataGrid1", Qt::Key_Tab);
    gui.press(Qt::Key_Space); // it leads the list now
    script.expectQuestion("Vuoi cancellare amministratore?", true);
    gui.press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(elenco(), (Riga{"contabile", "disabilitato", "nuovo_utente", "mario"}));
    mnemonico(Qt::Key_C, [this] { return gui.visibleForms() == "Avvio_Azienda"; });
}

} // namespace
} // namespace vabo
