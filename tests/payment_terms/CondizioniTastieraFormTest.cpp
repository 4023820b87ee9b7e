// The form of the payment terms by keyboard alone.

#include "CondizioniForm.h"

#include <algorithm>

namespace vabo {
namespace {

TEST_F(FormCondizioni, ATermIsEnteredChangedAndLeftByKeyboardAlone) {
    apri();
    const auto cerca = [&](const char* combo, const char* lettere) { // Enter takes the only one found
        QTest::keyClick(&pagina.search(combo, lettere), Qt::Key_Return);
        pagina.comeToFront();
    };
    cerca("IDDecorrenza", "10 - 25");
    EXPECT_EQ(fuoco(), "RataAnticipo");
    gui.press(Qt::Key_Tab);
    for (const char* giorni : {"30", "60", "90"}) {
        gui.type(giorni);
        gui.press(Qt::Key_Tab);
    }
    gui.press(Qt::Key_Tab);
    cerca("IdTipoRimessa", "bonif");
    EXPECT_EQ(testo("Descrizione"), "Bonifico bancario a 30-60-90 Sc.il 10 - 25 del mese");
    invio();
    const std::string chiave = valore("select max(IDPagamento) from CondizioniPagamento");
    EXPECT_EQ(ultima(), (Riga{"Bonifico bancario a 30-60-90 Sc.il 10 - 25 del mes", "3", "5", "0.00",
                              "30 60 90 0 0 0 0 0 0 0 0 0", "2"}));
    // Back to the grid, to the new row, to its second instalment.
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(fuoco(), "DataGrid1");
    for (int i = 0; i < 30 && testo("IDPagamento") != "N. " + chiave; ++i) {
        vaiA("DataGrid1");
        gui.press(Qt::Key_Down);
    }
    gui.press(Qt::Key_Tab);
    gui.press(Qt::Key_Tab);
    gui.press(Qt::Key_Tab);
    ASSERT_EQ(fuoco(), "Scadenza2");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Tab);
    gui.press(Qt::Key_Tab);
    ASSERT_EQ(fuoco(), "Descrizione");
    invio();
    EXPECT_EQ(ultima()[4], "30 0 0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(ultima()[0], "Bonifico bancario a 30 Sc.il 10 - 25 del mese");
    QTest::keyClick(gui.form(kCondizioni).windowHandle(), Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the form below", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
}

TEST_F(FormCondizioni, ShiftTabLeadsFromTheKindToWhereTheInstalmentsEnd) {
    apri();
    for (int piene = 0; piene <= 12; ++piene) {
        SCOPED_TRACE(piene);
        for (int i = 1; i <= 12; ++i) {
            campo(scadenza(i)).setText(i <= piene ? "30" : "");
        }
        vaiA("IdTipoRimessa");
        ASSERT_EQ(fuoco(), "IdTipoRimessa");
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        const int meta = piene == 12 ? 12 : std::min(piene + 1, 11);
        ASSERT_EQ(fuoco(), scadenza(meta));
        for (int i = meta - 1; i >= 1; --i) {
            gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
            ASSERT_EQ(fuoco(), scadenza(i));
        }
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), "RataAnticipo");
    }
}

TEST_F(FormCondizioni, AnEmptyKindIsLeftBackwards) {
    apri();
    for (const char* vuoto : {"", " ", "0"}) {
        vaiA("IdTipoRimessa");
        pagina.combo("IdTipoRimessa").setText(vuoto);
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), "Scadenza1") << vuoto;
    }
}

TEST_F(FormCondizioni, ARowFoundByItsLettersIsShownByEnter) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        const int prima = tasto == Qt::Key_Return ? 3 : 14;
        const int meta = tasto == Qt::Key_Return ? 9 : 3;
        scegli(prima);
        vaiA("DataGrid1");
        griglia().selectRow(rigaDi(meta));
        EXPECT_EQ(testo("IDPagamento"), "N. " + std::to_string(prima));
        gui.press(tasto);
        EXPECT_EQ(testo("IDPagamento"), "N. " + std::to_string(meta));
        EXPECT_EQ(fuoco(), "IDDecorrenza");
    }
}

TEST_F(FormCondizioni, EveryControlIsReachedByTab) {
    apri();
    for (int i = 1; i <= 12; ++i) {
        campo(scadenza(i)).setText("30"); // or the last one leads elsewhere
    }
    vaiA("IDDecorrenza");
    Riga campi = {"Chiudi", "DataGrid1", "Descrizione", "NRrate", "IdTipoRimessa"};
    for (int i = 12; i >= 1; --i) {
        campi.push_back(scadenza(i));
    }
    campi.insert(campi.end(), {"RataAnticipo", "IDDecorrenza"});
    for (const std::string& prossimo : campi) {
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), prossimo);
    }
}

} // namespace
} // namespace vabo
