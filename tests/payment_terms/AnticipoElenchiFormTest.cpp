// The payment terms: the amount paid in advance, and the lists of rules and kinds.

#include "CondizioniForm.h"

#include <QLineEdit>

namespace vabo {
namespace {

/// What is typed as advance, and what the field shows behind Enter.
struct Anticipo {
    const char* digitato;
    const char* scritto;
};

TEST_F(FormCondizioni, TheAdvanceIsWrittenAsAnAmount) {
    const Anticipo casi[] = {{"1.500", "1,50"}, {"1500", "1.500,00"}, {".5", "0,50"}, {"10", "10,00"},
                             {"0,00", "0,00"},  {"0", "0"},           {" ", " "}};
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        for (const Anticipo& caso : casi) {
            vaiA("RataAnticipo");
            gui.type(caso.digitato);
            gui.press(tasto);
            EXPECT_EQ(testo("RataAnticipo"), caso.scritto);
            EXPECT_EQ(fuoco(), "Scadenza1");
        }
    }
    vaiA("RataAnticipo");
    gui.type("1.500");
    vaiA("Scadenza1");
    EXPECT_EQ(testo("RataAnticipo"), "1.500") << "the mouse leaves it as it is";
}

TEST_F(FormCondizioni, AnAdvanceThatIsNoNumberIsToldAndKeepsTheFocus) {
    apri();
    vaiA("RataAnticipo");
    gui.type("dieci");
    script.expectMessage("Type mismatch");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(fuoco(), "RataAnticipo");
    EXPECT_EQ(testo("RataAnticipo"), "dieci");
}

TEST_F(FormCondizioni, ARuleIsTakenWithItsTextAndAPickGoesOn) {
    apri();
    pagina.pick("IDDecorrenza", "Sc.il 10 del mese");
    EXPECT_EQ(fuoco(), "RataAnticipo");
    pagina.pick("IdTipoRimessa", "Assegno");
    EXPECT_EQ(fuoco(), "Descrizione");
    pagina.combo("IDDecorrenza").setText("Fine mese"); // a change of the text alone
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(ultima()[2], "2");
    EXPECT_EQ(ultima()[5], "4");
}

TEST_F(FormCondizioni, ATextOutsideTheListLeavesTheRuleAsItWas) {
    apri();
    pagina.pick("IDDecorrenza", "Fine mese");
    pagina.pick("IdTipoRimessa", "Assegno");
    pagina.combo("IDDecorrenza").setText("Mai");
    vaiA("NRrate");
    vaiA("Descrizione");
    EXPECT_EQ(testo("Descrizione"), "Assegno a  Mai");
    invio();
    EXPECT_EQ(ultima(), (Riga{"Assegno a  Mai", "1", "2", "0.00", "0 0 0 0 0 0 0 0 0 0 0 0", "4"}));
}

TEST_F(FormCondizioni, TheKindsAreListedAnewWhenTheirFieldGetsTheFocus) {
    apri();
    auto& dati = pagina.control<controls::DataControl>("TipoIncasso");
    ado::Recordset& rs = dati.Recordset();
    vaiA("Chiudi");
    rs.setFilter("idtiporimessa=4");
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 1);
    pagina.combo("IdTipoRimessa").ListField = "IdTipoRimessa";
    vaiA("IdTipoRimessa");
    EXPECT_EQ(pagina.combo("IdTipoRimessa").itemText(0), "4");
}

TEST_F(FormCondizioni, ADoubleClickOrCtrlEnterInTheRuleOpensTheRules) {
    apri();
    vaiA("Descrizione");
    QTest::mouseDClick(pagina.combo("IdTipoRimessa").lineEdit(), Qt::LeftButton);
    EXPECT_EQ(gui.visibleForms(), kCondizioni) << "of the rule alone";
    for (const bool conIlMouse : {true, false}) {
        vaiA("IDDecorrenza");
        if (conIlMouse) {
            QTest::mouseDClick(pagina.combo("IDDecorrenza").lineEdit(), Qt::LeftButton);
        } else {
            gui.press(Qt::Key_Return, Qt::ControlModifier);
        }
        support::Gui::handleEvents();
        EXPECT_EQ(gui.visibleForms(), kDecorrenze);
        EXPECT_EQ(PilaForm, (Riga{"Avvio_Azienda", kCondizioni, kDecorrenze}));
        gui.waitForFront(kDecorrenze);
        gui.click(kDecorrenze, "Chiudi");
        EXPECT_EQ(gui.visibleForms(), kCondizioni);
        gui.waitForFront(kCondizioni);
    }
}

} // namespace
} // namespace vabo
