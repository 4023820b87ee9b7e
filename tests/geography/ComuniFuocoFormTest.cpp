// The form of municipalities: where the focus goes, and where it is sent back.

#include "geography/ComuniFixture.h"
#include "session/TreatForms.h"

#include <QLineEdit>

namespace vabo {
namespace {

class ComuniFuoco : public ComuniForm {
protected:
    /// Fields from which nothing is sent back; no state is chosen, so that nothing is stored.
    void riempi() const {
        metti("DES_COMUNE", "Palestrina");
        metti("DES_PROVIN", "RM");
        metti("COD_CAP", "00036");
    }
};

TEST_F(ComuniFuoco, EnterAndTabGoAlongTheFieldsAndBackToTheName) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        riempi();
        for (const char* campo : {"DES_COMUNE", "DES_PROVIN", "COD_CAP", "DataCombo1"}) {
            EXPECT_EQ(fuoco(), campo);
            gui.press(tasto, tasto == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        }
        EXPECT_EQ(fuoco(), "DES_COMUNE");
    }
}

TEST_F(ComuniFuoco, ShiftTabLeadsToTheCommandsAndTheGrid) {
    apri();
    for (const char* tappa : {"Command4", "Command1", "DataGrid1"}) {
        gui.press(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), tappa);
    }
}

TEST_F(ComuniFuoco, EachFieldSelectsItsTextWhenItGetsTheFocus) {
    apri();
    scegli("Aosta");
    EXPECT_EQ(scelto("DES_COMUNE"), "Aosta");
    for (const char* campo : {"DES_PROVIN", "COD_CAP", "DES_COMUNE"}) {
        vaiA(campo);
        EXPECT_NE(scelto(campo), "");
        EXPECT_EQ(scelto(campo), testo(campo));
    }
    vaiA("DataCombo1");
    EXPECT_EQ(pagina.combo("DataCombo1").lineEdit()->selectedText(), "Italia");
}

TEST_F(ComuniFuoco, ThePostalCodeSendsTheFocusBackToAnEmptyProvince) {
    apri();
    for (const char* vuota : {"", " ", "0", "00"}) {
        riempi();
        metti("DES_PROVIN", vuota);
        vaiA("COD_CAP");
        EXPECT_EQ(fuoco(), "DES_PROVIN") << vuota;
        EXPECT_EQ(scelto("DES_PROVIN"), vuota);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fuoco(), "DES_PROVIN") << "for as long as it is empty";
    }
    gui.type("RM");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "COD_CAP");
}

TEST_F(ComuniFuoco, ThePostalCodeSendsTheFocusBackFromTheMouseToo) {
    apri();
    gui.click("frmComuni", "COD_CAP");
    EXPECT_EQ(fuoco(), "DES_PROVIN");
}

TEST_F(ComuniFuoco, TheStateSendsTheFocusBackToAPostalCodeThatIsNoNumber) {
    apri();
    const support::StatementRecorder recorder;
    for (const char* cap : {"", "x", "00036x", "0 0036", "-", "'"}) {
        riempi();
        metti("COD_CAP", cap);
        vaiA("DES_PROVIN");
        vaiA("DataCombo1");
        EXPECT_EQ(fuoco(), "COD_CAP") << cap;
        EXPECT_EQ(scelto("COD_CAP"), cap);
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(fuoco(), "COD_CAP") << cap;
    }
    EXPECT_EQ(recorder.texts(), Testi{});
    for (const char* cap : {"00036", "-1", "1e3", "€ 5", " 12 ", "2,5", "1.000", "(3)"}) {
        metti("COD_CAP", cap);
        vaiA("DES_COMUNE");
        vaiA("DataCombo1");
        EXPECT_EQ(fuoco(), "DataCombo1") << cap;
    }
}

TEST_F(ComuniFuoco, TheStateSendsItBackAsFarAsTheProvince) {
    apri();
    gui.click("frmComuni", "DataCombo1");
    EXPECT_EQ(fuoco(), "DES_PROVIN");
    metti("COD_CAP", "00036");
    vaiA("DataCombo1");
    EXPECT_EQ(fuoco(), "DataCombo1") << "the province is looked at from the postal code alone";
}

TEST_F(ComuniFuoco, APostalCodeThatIsNoNumberAnyMoreGetsTheFocusWhenTheStateIsLeft) {
    apri();
    riempi();
    vaiA("COD_CAP");
    vaiA("DataCombo1");
    pagina.pick("DataCombo1", "Italia"); // stored
    ASSERT_EQ(campi(), kComuneVuoto);
    riempi();
    vaiA("COD_CAP");
    vaiA("DataCombo1");
    metti("COD_CAP", "x");
    const support::StatementRecorder recorder;
    for (const char* altrove : {"DES_COMUNE", "Command1"}) {
        metti("COD_CAP", "1");
        vaiA("DataCombo1");
        metti("COD_CAP", "x");
        vaiA(altrove);
        EXPECT_EQ(fuoco(), "COD_CAP") << altrove;
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(ComuniFuoco, ADoubleClickOnTheStateOpensTheStates) {
    gui.forms().show("Avvio_Azienda");
    AzzeraPilaForm();
    ApriForm("frmcomuni", true);
    gui.forms().hide("Avvio_Azienda");
    support::Gui::waitFor("the states", [this] { return combo() == "Seleziona"; });
    QTest::mouseDClick(pagina.combo("DataCombo1").lineEdit(), Qt::LeftButton);
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "stati");
    EXPECT_EQ(PilaForm, (Testi{"Avvio_Azienda", "frmcomuni", "stati"}));
}

TEST_F(ComuniFuoco, TheListOfStatesIsNotReadAgainOnTheWayBack) {
    gui.forms().show("Avvio_Azienda");
    AzzeraPilaForm();
    ApriForm("frmcomuni", true);
    support::Gui::waitFor("the states", [this] { return combo() == "Seleziona"; });
    const int prima = pagina.combo("DataCombo1").count();
    metti("COD_CAP", "1");
    vaiA("DataCombo1");
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(gui.isVisible("stati"));
    EXPECT_FALSE(gui.isVisible("frmComuni"));
    gui.waitForFront("stati");
    esegui("insert into stati (DescStato) values ('Repubblica del Kosovo')");
    const support::StatementRecorder recorder;
    gui.click("stati", "Command4");
    gui.waitForFront("frmComuni");
    constexpr int kPiuDelTimer = 30;
    QTest::qWait(kPiuDelTimer);
    EXPECT_EQ(recorder.texts(), Testi{"delete from stati where descstato is null"});
    EXPECT_EQ(pagina.combo("DataCombo1").count(), prima);
    EXPECT_EQ(PilaForm, (Testi{"Avvio_Azienda", "frmcomuni"}));
}

TEST_F(ComuniFuoco, GoingToTheStatesLeavesTheStateWhichStoresTheRow) {
    apri();
    scegli("Nairobi");
    vaiA("DES_PROVIN");
    gui.type("NB");
    vaiA("DataCombo1");
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    gui.waitForFront("stati");
    EXPECT_EQ(comune("Nairobi")[1], "NB");
    gui.click("stati", "Command4");
    gui.waitForFront("frmComuni");
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniFuoco, GoingToTheStatesWithANameThatIsRefusedIsToldFirst) {
    for (const auto& [nome, avviso] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Aosta", kComuneDoppio}, {"Sant'Angelo", kFiltroRifiutato}}) {
        apri();
        scrivi({"Palestrina", "RM", "00036", "Italia"});
        scrivi({nome, "RM", "00036"});
        script.expectMessage(avviso);
        gui.press(Qt::Key_Return, Qt::ControlModifier);
        gui.waitForFront("stati");
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(PilaForm.back(), "stati");
        gui.click("stati", "Command4");
        gui.waitForFront("frmComuni");
        EXPECT_EQ(testo("DES_COMUNE"), std::string(nome) == "Aosta" ? "" : nome);
        EXPECT_EQ(quanti(std::string("Comuni where COD_CAP = '00036' and DES_COMUNE <> 'Palestrina'")), 0);
        esegui("delete from Comuni where DES_COMUNE = 'Palestrina'");
        gui.forms().unload("frmComuni");
        support::Gui::handleEvents();
    }
}

} // namespace
} // namespace vabo
