// The form of the headquarters with the keyboard alone.

#include "CaricaSedeFixture.h"

namespace vabo {
namespace {

using CaricaSedeTastiera = CaricaSedeForm;

TEST_F(CaricaSedeTastiera, FromABranchToTheWayOut) {
    apri();
    for (int riga = 0; riga < 4; ++riga) {
        gui.press(Qt::Key_Down);
    }
    EXPECT_EQ(testo("città"), "Maputo");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "città");
    gui.press(Qt::Key_Return);
    gui.type("Rua da Aurora 78");
    const char* const seguenti[] = {"cap",       "statooprovincia",           "DCStato", "telefonoufficio",
                                    "numerofax", "indirizzopostaelettronica", "Note",    "Command1"};
    for (const char* campo : seguenti) {
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fuoco(), campo);
    }
    attendiScelta("C:\\Nuova", true);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(sedi()[0][0], "5");
    EXPECT_EQ(sedi()[0][2], "Rua da Aurora 78");
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "Command7");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(CaricaSedeTastiera, TabGoesTheSameWay) {
    apri();
    const char* const fermate[] = {"città",   "Indirizzo",       "cap",       "statooprovincia",
                                   "DCStato", "telefonoufficio", "numerofax", "indirizzopostaelettronica",
                                   "Note",    "Command1",        "Command7"};
    for (const char* campo : fermate) {
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(fuoco(), campo);
    }
}

TEST_F(CaricaSedeTastiera, LettersSearchABranchAndSpacePicksIt) {
    apri();
    gui.type("rom");
    EXPECT_EQ(testo("città"), "");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(testo("città"), "Roma");
}

TEST_F(CaricaSedeTastiera, AStateTypedAndNotPickedIsTakenBack) {
    apri();
    scegli("4");
    pagina.control("DCStato").setFocus();
    pagina.typeWithoutPick("DCStato", "qualunque'; --");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "telefonoufficio");
    EXPECT_EQ(stato(), "Kenya");
}

} // namespace
} // namespace vabo
