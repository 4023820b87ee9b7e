// The form of municipalities with the keyboard alone: new ones, a correction, the states, the way out.

#include "geography/ComuniFixture.h"

namespace vabo {
namespace {

class ComuniTastiera : public ComuniForm {};

TEST_F(ComuniTastiera, FromTheFirstMunicipalityToTheWayOut) {
    apri();
    for (const char* valore : {"Palestrina", "RM", "00036", "Italia"}) {
        campo(valore);
    }
    EXPECT_EQ(comune("Palestrina"), (Riga{"Palestrina", "RM", "00036", "1"}));
    EXPECT_EQ(fuoco(), "DES_COMUNE");

    // A second one along Tab, whose state is taken from the whole list.
    for (const char* valore : {"Mombasa", "KE", "80100"}) {
        gui.type(valore);
        gui.press(Qt::Key_Tab);
    }
    ASSERT_EQ(fuoco(), "DataCombo1");
    gui.type("keny");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Tab);
    pagina.comeToFront();
    EXPECT_EQ(comune("Mombasa"), (Riga{"Mombasa", "KE", "80100", idStato("Kenya")}));
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");

    // It is searched in the grid by its first letters, chosen, and corrected; its state stays as it is.
    premiFinoA("DataGrid1", Qt::Key_Backtab);
    gui.type("momb");
    EXPECT_EQ(campi(), kComuneVuoto);
    gui.press(Qt::Key_Space);
    EXPECT_EQ(campi(), (Riga{"Mombasa", "KE", "80100", "Kenya"}));
    for (const char* valore : {"Mombasa", "MB", "80101", ""}) {
        campo(valore);
    }
    EXPECT_EQ(comune("Mombasa"), (Riga{"Mombasa", "MB", "80101", idStato("Kenya")}));

    // One whose state is missing: the states are opened from the field, and closed again.
    for (const char* valore : {"Pristina", "PR", "10000"}) {
        campo(valore);
    }
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    gui.waitForFront("stati");
    EXPECT_EQ(gui.visibleForms(), "stati");
    EXPECT_EQ(comune("Pristina")[3], idStato("Kenya")) << "the state chosen last";
    gui.press(Qt::Key_C, Qt::AltModifier);
    gui.waitForFront("frmComuni");
    EXPECT_EQ(fuoco(), "DES_COMUNE");

    premiFinoA("Command4", Qt::Key_Backtab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(ComuniTastiera, TheMnemonicsWorkFromEachField) {
    apri();
    for (const char* campo : {"DES_COMUNE", "DES_PROVIN", "COD_CAP"}) {
        scegli("Aosta");
        vaiA(campo);
        gui.press(Qt::Key_N, Qt::AltModifier);
        support::Gui::waitFor("the fields", [this] { return campi() == kComuneVuoto; });
        EXPECT_EQ(fuoco(), "DES_COMUNE");
    }
    gui.press(Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the way out", [this] { return !gui.isVisible("frmComuni"); });
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

} // namespace
} // namespace vabo
