// The picker of the general table: its search, what is typed there, and Esc.

#include "MorlanFixture.h"

namespace vabo {
namespace {

class MorlanRicerca : public MorlanForm {
protected:
    MorlanRicerca() {
        apri();
        scheda(1);
    }
    Riga conto(int id) const { return MorlanForm::conto("TabellaContiUtili", "ID", id); }
};

TEST_F(MorlanRicerca, EscLeavesTheFrameWithoutStoring) {
    for (const char* dove : {"DCBItem1", "Command8", "Descrizione", "DataGrid2"}) {
        SCOPED_TRACE(dove);
        scegli("DataGrid2", "4");
        gui.press(Qt::Key_Delete);
        gui.find("Avvio_Morlan", dove).setFocus();
        gui.press(Qt::Key_Escape);
        EXPECT_FALSE(visibile("Frame6"));
        EXPECT_EQ(fuoco(), "DataGrid2");
        EXPECT_EQ(rigaCorrente("DataGrid2"), "4");
        EXPECT_EQ(combo("DCBItem1").Text(), "Seleziona");
        QTest::keyClick(&combo("DCBItem1"), Qt::Key_Return);
        EXPECT_EQ(conto(4), (Riga{"1150", "39"}));
    }
}

TEST_F(MorlanRicerca, AnAccountThatWasLeftIsNotTheNextRows) {
    scegli("DataGrid2", "4");
    gui.press(Qt::Key_Escape);
    scegli("DataGrid2", "32");
    EXPECT_EQ(combo("DCBItem1").Text(), "");
}

TEST_F(MorlanRicerca, EscInTheSearchClosesItAloneAndTheNextOneLeavesTheFrame) {
    scegli("DataGrid2", "4");
    QTest::keyClick(&cerca("DCBItem1", "esercizi"), Qt::Key_Escape);
    tornaDavanti();
    EXPECT_TRUE(visibile("Frame6"));
    EXPECT_EQ(combo("DCBItem1").Text(), valore("select NomeConto from conti where IdConto = 1150"));
    gui.press(Qt::Key_Escape);
    EXPECT_FALSE(visibile("Frame6"));
}

TEST_F(MorlanRicerca, OneEnterTakesWhatTheSearchHasFoundAndStoresIt) {
    scegli("DataGrid2", "4");
    QTest::keyClick(&cerca("DCBItem1", "esercizi precedenti"), Qt::Key_Return);
    tornaDavanti();
    EXPECT_EQ(conto(4), (Riga{"1052", "19"}));
    EXPECT_FALSE(visibile("Frame6"));
}

TEST_F(MorlanRicerca, OneEnterStoresWithNothingHighlightedToo) {
    esegui("update TabellaContiUtili set idconto1 = 999 where ID = 4");
    scegli("DataGrid2", "4");
    QTest::keyClick(&cerca("DCBItem1", "banca"), Qt::Key_Return);
    tornaDavanti();
    EXPECT_EQ(conto(4), (Riga{"1150", "39"})) << "typing isn't a pick";
    EXPECT_FALSE(visibile("Frame6"));
}

TEST_F(MorlanRicerca, WhatWasTypedGoesBackBeforeAStore) {
    const std::string nome = valore("select NomeConto from conti where IdConto = " + conto(8)[0]);
    esegui("update conti set idmastro = 3 where IdConto = " + conto(8)[0]);
    scegli("DataGrid2", "8");
    digita("DCBItem1", "Cassa contanti");
    gui.press(Qt::Key_Return);
    ASSERT_TRUE(visibile("Frame6")) << "refused, the row stays open";
    EXPECT_EQ(combo("DCBItem1").Text(), nome);
    digita("DCBItem1", "Cassa contanti");
    QTest::keyClick(gui.form("Avvio_Morlan").windowHandle(), Qt::Key_S, Qt::AltModifier);
    support::Gui::waitFor("the name", [&] { return combo("DCBItem1").Text() == nome; });
    EXPECT_TRUE(visibile("Frame6"));
    digita("DCBItem1", "Cassa contanti");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(combo("DCBItem1").Text(), nome);
}

TEST_F(MorlanRicerca, DeleteIsHeardInTheSearchToo) {
    scegli("DataGrid2", "4");
    gui.type("banca");
    QAbstractItemView* trovati = combo("DCBItem1").completer()->popup();
    support::Gui::waitFor("the search", [&] { return trovati->isVisible(); });
    QTest::keyRelease(trovati, Qt::Key_Delete);
    trovati->hide();
    tornaDavanti();
    EXPECT_EQ(combo("DCBItem1").Text(), "");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(4), (Riga{"0", "0"}));
}

TEST_F(MorlanRicerca, NonsenseInThePickerStoresWhatWasChosenAndNeverCrashes) {
    for (const char* testo : {"' or 1=1 --", "%", "99999999999", "\x01\x7f", "🗝", "[a-z", "-2"}) {
        scegli("DataGrid2", "4");
        combo("DCBItem1").setText("");
        digita("DCBItem1", testo);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(conto(4), (Riga{"1150", "39"})) << testo;
    }
}

} // namespace
} // namespace vabo
