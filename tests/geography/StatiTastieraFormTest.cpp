// The form of states with the keyboard alone: a new state with a new area, a change, the way out.

#include "geography/StatiFixture.h"

namespace vabo {
namespace {

class StatiTastiera : public StatiForm {};

TEST_F(StatiTastiera, FromTheFirstStateToTheWayOut) {
    apri();
    for (const char* valore : {"Repubblica del Kosovo", "Balcani", "17022008", "", "EUR"}) {
        campo(valore);
    }
    EXPECT_EQ(stato("Repubblica del Kosovo")[1], "2008-02-17 00:00:00.000");
    EXPECT_EQ(fuoco(), "DescStato");

    // A second one, whose area is taken from what the search finds.
    campo("Somaliland britannico");
    gui.type("africa or");
    QWidget* trovati = QApplication::activePopupWidget();
    ASSERT_NE(trovati, nullptr);
    QTest::keyClick(trovati, Qt::Key_Down);
    QTest::keyClick(trovati, Qt::Key_Return);
    pagina.comeToFront();
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
    for (const char* valore : {"180591", "", "SOS"}) {
        campo(valore);
    }
    EXPECT_EQ(stato("Somaliland britannico")[4], "Africa orientale");
    EXPECT_EQ(stato("Somaliland britannico")[1], "2091-05-18 00:00:00.000");

    // Its century was the present one: it is searched in the grid by its first letters, chosen, and corrected.
    premiFinoA("DataGrid1", Qt::Key_Backtab);
    gui.type("somalil");
    EXPECT_EQ(fuoco(), "DataGrid1");
    EXPECT_EQ(campi(), kStatoVuoto);
    gui.press(Qt::Key_Space);
    EXPECT_EQ(testo("DescStato"), "Somaliland britannico");
    EXPECT_EQ(fuoco(), "DescStato");
    campo("Somaliland");
    campo("");
    for (const char* valore : {"18051991", "", "SOS"}) {
        campo(valore);
    }
    EXPECT_EQ(stato("Somaliland")[1], "1991-05-18 00:00:00.000");
    EXPECT_EQ(stato("Somaliland")[4], "Africa orientale");
    EXPECT_EQ(quanti("stati where DescStato = 'Somaliland britannico'"), 0);

    premiFinoA("Command4", Qt::Key_Backtab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

} // namespace
} // namespace vabo
