// The payment terms while the user goes from field to field: order of entry, instalments, name.

#include "CondizioniForm.h"
#include "kit/IsEmptyValue.h"

#include <QLineEdit>

#include <random>

namespace vabo {
namespace {

const Qt::Key kFine[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab};

TEST_F(FormCondizioni, EnterAndTabGoAlongTheFields) {
    apri();
    for (const Qt::Key tasto : kFine) {
        SCOPED_TRACE(static_cast<int>(tasto));
        vaiA("IDDecorrenza");
        ASSERT_EQ(fuoco(), "IDDecorrenza");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "RataAnticipo");
        for (int i = 1; i <= 12; ++i) {
            gui.press(tasto);
            EXPECT_EQ(fuoco(), scadenza(i));
            gui.type(std::to_string(i));
        }
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "IdTipoRimessa");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "Descrizione") << "the text of no choice is a filled field";
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "IDDecorrenza");
        EXPECT_EQ(scadenze(), "|1|2|3|4|5|6|7|8|9|10|11|12") << "nothing was stored";
    }
}

TEST_F(FormCondizioni, AnEmptyInstalmentLeadsToTheKind) {
    apri();
    for (const Qt::Key tasto : kFine) {
        for (const char* vuota : {"", "0", " "}) {
            for (int i = 1; i <= 12; ++i) {
                SCOPED_TRACE(i);
                for (int k = 1; k < i; ++k) {
                    campo(scadenza(k)).setText("30");
                }
                vaiA(scadenza(i));
                campo(scadenza(i)).setText(vuota);
                gui.press(tasto);
                EXPECT_EQ(fuoco(), "IdTipoRimessa");
                EXPECT_EQ(testo(scadenza(i)), "");
            }
        }
    }
}

TEST_F(FormCondizioni, AnEmptyKindIsNotLeft) {
    apri();
    for (const Qt::Key tasto : kFine) {
        for (const char* vuoto : {"", " ", "0"}) {
            vaiA("IdTipoRimessa");
            pagina.combo("IdTipoRimessa").setText(vuoto);
            gui.press(tasto);
            EXPECT_EQ(fuoco(), "IdTipoRimessa") << vuoto;
        }
    }
}

TEST_F(FormCondizioni, TheTwelfthInstalmentIsLeftForTheKindByAnyWayWhileItIsEmpty) {
    apri();
    for (int i = 1; i <= 11; ++i) {
        campo(scadenza(i)).setText("30");
    }
    for (const char* dove : {"Descrizione", "IDDecorrenza", "Scadenza3", "NRrate", "Chiudi"}) {
        for (const char* vuota : {"", "0"}) {
            vaiA("Chiudi");
            vaiA("Scadenza12");
            ASSERT_EQ(fuoco(), "Scadenza12");
            campo("Scadenza12").setText(vuota);
            vaiA(dove);
            EXPECT_EQ(fuoco(), "IdTipoRimessa") << dove;
        }
        vaiA("Scadenza12");
        campo("Scadenza12").setText("360");
        vaiA(dove);
        EXPECT_EQ(fuoco(), dove);
    }
    vaiA("Scadenza12");
    campo("Scadenza12").setText("");
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "IdTipoRimessa");
    vaiA("Scadenza12");
    gui.click(kCondizioni, "Chiudi");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda") << "a button does its work all the same";
}

TEST_F(FormCondizioni, GapsAreClosedWhereverTheFocusComes) {
    apri();
    Riga mete = {"NRrate", "Descrizione"};
    for (int i = 1; i <= 12; ++i) {
        mete.push_back(scadenza(i));
    }
    for (const std::string& meta : mete) {
        vaiA("Chiudi");
        campo("Scadenza1").setText("30");
        campo("Scadenza2").setText("0");
        campo("Scadenza3").setText("90");
        campo("NRrate").setText("7");
        vaiA(meta);
        EXPECT_EQ(scadenze(), "|30|||||||||||") << meta;
        EXPECT_EQ(testo("NRrate"), "1") << meta;
    }
    for (const char* meta : {"IDDecorrenza", "RataAnticipo", "IdTipoRimessa", "DataGrid1", "Chiudi"}) {
        campo("Scadenza3").setText("90");
        vaiA(meta);
        EXPECT_EQ(scadenze(), "|30||90|||||||||") << meta;
    }
}

TEST_F(FormCondizioni, AnEmptyFirstInstalmentEmptiesAllOnTheNextFocus) {
    apri();
    campo("Scadenza3").setText("90");
    vaiA("Scadenza5");
    EXPECT_EQ(scadenze(), "||||||||||||");
    EXPECT_EQ(testo("NRrate"), "1");
}

TEST_F(FormCondizioni, ATermIsNamedAsItGrows) {
    apri();
    componi("Fine mese", "", {"30", "60", "90"}, "Rimessa diretta");
    EXPECT_EQ(fuoco(), "Descrizione");
    EXPECT_EQ(campi(),
              (Riga{"Fine mese", "0,00", "|30|60|90", "Rimessa diretta", "3", "Rimessa diretta a 30-60-90 Fine mese"}));
    EXPECT_EQ(campo("Descrizione").selectedText().toStdString(), testo("Descrizione"));
    gui.type("A mano");
    vaiA("Scadenza3");
    EXPECT_EQ(testo("Descrizione"), "Rimessa diretta a 30-60-90 Fine mese") << "the user's name is gone";
    gui.type("0");
    invio();
    EXPECT_EQ(campi()[4], "2");
    EXPECT_EQ(testo("Descrizione"), "Rimessa diretta a 30-60 Fine mese");
}

TEST_F(FormCondizioni, TabAndEnterNameItAheadOfTheNextField) {
    apri();
    scegli(3);
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        vaiA("Scadenza3");
        gui.type(tasto == Qt::Key_Tab ? "120" : "91");
        gui.press(tasto);
        EXPECT_EQ(testo("Descrizione"),
                  std::string("Rimessa diretta a 30-60-") + (tasto == Qt::Key_Tab ? "120" : "91") + " Fine mese");
    }
    vaiA("Scadenza3");
    gui.type("45");
    vaiA("IDDecorrenza");
    EXPECT_EQ(testo("Descrizione"), "Rimessa diretta a 30-60-120 Fine mese") << "the mouse leaves it to the next focus";
}

TEST_F(FormCondizioni, WithoutAKindTheNameIsBuiltOnceAndThenStays) {
    apri();
    pagina.pick("IDDecorrenza", "Fine mese");
    for (int i = 1; i <= 12; ++i) {
        campo(scadenza(i)).setText(std::to_string(i));
    }
    vaiA("Descrizione");
    EXPECT_EQ(testo("Descrizione"), "Seleziona Fine mese  1  2  3  4  5  6  7  8  9  10");
    EXPECT_EQ(campo("Descrizione").selectedText().toStdString(), testo("Descrizione"));
    EXPECT_EQ(testo("NRrate"), "1");
    gui.type("A mano");
    vaiA("Scadenza1");
    vaiA("Descrizione");
    EXPECT_EQ(testo("Descrizione"), "A mano");
}

TEST_F(FormCondizioni, FieldsSelectWhatTypingReplaces) {
    apri();
    scegli(3);
    vaiA("Chiudi");
    campo("Scadenza2").setText("1234567");
    vaiA("Scadenza2");
    EXPECT_EQ(campo("Scadenza2").selectedText(), "12345");
    gui.type("9");
    EXPECT_EQ(testo("Scadenza2"), "967");
    vaiA("Scadenza12");
    EXPECT_EQ(campo("Scadenza12").selectedText(), "");
    vaiA("RataAnticipo"); // the empty one leads to the kind
    vaiA("RataAnticipo");
    EXPECT_EQ(campo("RataAnticipo").selectedText(), "0");
    vaiA("NRrate");
    EXPECT_EQ(campo("NRrate").selectedText(), "3");
    vaiA("IdTipoRimessa");
    EXPECT_EQ(pagina.combo("IdTipoRimessa").lineEdit()->selectedText(), "Rimessa diretta");
    vaiA("IDDecorrenza");
    EXPECT_EQ(pagina.combo("IDDecorrenza").lineEdit()->selectedText(), "Fine mese");
    pagina.combo("IdTipoRimessa").setText(std::string(300, 'x'));
    vaiA("Descrizione");
    EXPECT_EQ(campo("Descrizione").selectedText().size(), 255) << "no more";
}

TEST_F(FormCondizioni, NoSequenceOfFocusMovesLeavesAGap) {
    constexpr unsigned kSeme = 20;
    std::mt19937 caso(kSeme);
    const auto fino = [&](int quanti) { return std::uniform_int_distribution<int>(0, quanti - 1)(caso); };
    apri();
    const char* valori[] = {"30", "60", "0", "", " ", "x", "120"};
    const Qt::Key tasti[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab};
    for (int passo = 0; passo < 300; ++passo) {
        if (fino(4) == 0) {
            pagina.combo("IdTipoRimessa").setText(fino(2) == 0 ? "Assegno" : "Seleziona");
        }
        const std::string dove = scadenza(fino(12) + 1);
        vaiA(dove);
        campo(dove).setText(valori[fino(7)]);
        fino(2) == 0 ? gui.press(tasti[fino(3)]) : vaiA(fino(2) == 0 ? "NRrate" : "Descrizione");
        vaiA("NRrate"); // where the last one has led, instalments needn't be looked at
        int piene = 0;
        bool finite = false;
        for (int i = 1; i <= 12; ++i) {
            const bool vuota = IsEmptyValue(testo(scadenza(i)));
            ASSERT_FALSE(finite && !vuota) << scadenze();
            ASSERT_FALSE(vuota && !testo(scadenza(i)).empty()) << scadenze();
            finite = finite || vuota;
            piene += vuota ? 0 : 1;
        }
        const int attese = tipo() == "Assegno" ? std::max(1, piene) : 1;
        ASSERT_EQ(testo("NRrate"), std::to_string(attese)) << scadenze();
    }
}

} // namespace
} // namespace vabo
