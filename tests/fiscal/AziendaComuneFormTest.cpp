// The town of the company, which fills the rest of the address, and the tax codes.

#include "controls/DataControl.h"
#include "fiscal/AziendaForm.h"
#include "session/TreatForms.h"

#include <QLineEdit>

namespace vabo {
namespace {

const Testi kIndirizzo = {"DataCombo1", "cap", "statooprovincia", "DataCombo2"};

TEST_F(AziendaForm, APickedTownFillsTheAddressAndMovesOn) {
    apri();
    const support::StatementRecorder recorder;
    pagina.pick("DataCombo1", "L'Aquila");
    EXPECT_EQ(fuoco(), "cap");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"L'Aquila", "67100", "AQ", "Italia"}));
    EXPECT_EQ(recorder.texts(), (Testi{kComuni, "Select * from stati where idstato=1", kComuni}));
    const auto& comuni = pagina.control<controls::DataControl>("comuni");
    EXPECT_EQ(comuni.ConnectionString, StringaAzienda);
    EXPECT_EQ(comuni.RecordSource, kComuni);
}

TEST_F(AziendaForm, AClickOnTheTextOfTheTownStaysThere) {
    apri();
    QTest::mouseClick(pagina.combo("DataCombo1").lineEdit(), Qt::LeftButton);
    support::Gui::handleEvents();
    EXPECT_EQ(fuoco(), "DataCombo1");
}

TEST_F(AziendaForm, ATownIsSearchedByKeyboard) {
    apri();
    vaiA("DataCombo1");
    QTest::keyClick(&pagina.search("DataCombo1", "cagl"), Qt::Key_Return);
    pagina.comeToFront();
    EXPECT_EQ(fuoco(), "cap");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Cagliari", "09121", "CA", "Italia"}));
}

TEST_F(AziendaForm, TheTownFillsTheAddressEachTimeItIsLeft) {
    apri();
    vaiA("DataCombo1");
    EXPECT_EQ(scelto("DataCombo1"), "Torino");
    EXPECT_EQ(testo("statooprovincia"), "");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Torino", "10121", "TO", "Italia"}));
    metti("cap", "10199");
    metti("statooprovincia", "XX");
    vaiA("DataCombo1");
    vaiA("Banca");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Torino", "10199", "TO", "Italia"})) << "a code of the same area stays";
    metti("cap", "99999");
    vaiA("DataCombo1");
    vaiA("Banca");
    EXPECT_EQ(testo("cap"), "10121");
}

TEST_F(AziendaForm, ACodeOfAHundredFillsAnEmptyFieldAsFiveDigits) {
    esegui("update comuni set cod_cap = '100' where des_comune = 'Torino'");
    apri();
    metti("cap", "");
    vaiA("DataCombo1");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("cap"), "00100");
}

TEST_F(AziendaForm, ATownOfAnotherStateBringsItsState) {
    const std::string francia = valore("select idstato from stati where descstato = 'Francia'");
    esegui("insert into comuni values ('Nizza', 'PC', '06000', " + francia + ")");
    esegui("insert into comuni values ('Nessuno', null, null, null)");
    esegui("insert into comuni values ('Altrove', null, null, 999)");
    apri();
    pagina.pick("DataCombo1", "Nizza");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Nizza", "06000", "PC", "Francia"}));
    pagina.pick("DataCombo1", "Nessuno");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Nessuno", "06000", "PC", "Francia"})) << "nulls leave what stood there";
    pagina.pick("DataCombo1", "Altrove");
    EXPECT_EQ(testo("DataCombo2"), "Francia") << "a state that isn't there has no name";
    salva();
    EXPECT_EQ(colonna("IdStato"), "999") << "its key is stored all the same";
}

TEST_F(AziendaForm, WithoutATownNothingIsFilledAndNothingIsAsked) {
    for (const char* vuoto : {"null", "''", "'0'", "'Seleziona'"}) {
        esegui(std::string("update DatiAzienda set città = ") + vuoto);
        esegui("update comuni set des_comune = '0' where des_comune = 'Agrigento'");
        apri();
        vaiA("DataCombo1");
        const support::StatementRecorder recorder;
        gui.press(Qt::Key_Return);
        EXPECT_EQ(recorder.texts(), Testi{}) << vuoto;
        EXPECT_EQ(testi({"cap", "statooprovincia"}), (Riga{"10121", ""}));
        chiudi();
    }
}

// What is looked for is the town of the list with that text, which there is none of, and not the text.
TEST_F(AziendaForm, ATownThatIsNotListedFillsNothingAndTheListIsReadAgain) {
    for (const char* altro : {"Torino (TO)", "Torin-", "torino"}) {
        esegui(std::string("update DatiAzienda set città = '") + altro + "'");
        apri();
        vaiA("DataCombo1");
        const support::StatementRecorder recorder;
        gui.press(Qt::Key_Return);
        EXPECT_EQ(recorder.texts(), Testi{kComuni});
        EXPECT_EQ(testi(kIndirizzo), (Riga{altro, "10121", "", "Italia"}));
        EXPECT_EQ(pagina.control<controls::DataControl>("comuni").Recordset().Filter(), "");
        chiudi();
    }
}

TEST_F(AziendaForm, TheTownsAreReadAgainWhenTheirFieldIsEntered) {
    apri();
    esegui("insert into comuni values ('Aalborg', 'XX', '9000', 1)");
    const support::StatementRecorder recorder;
    vaiA("DataCombo1");
    EXPECT_EQ(recorder.texts(), Testi{kComuni});
    EXPECT_EQ(pagina.combo("DataCombo1").itemText(0), "Aalborg");
    EXPECT_EQ(scelto("DataCombo1"), "Torino");
}

TEST_F(AziendaForm, TheTownsAreConnectedAgainWhenTheirFieldIsEntered) {
    apri();
    auto& comuni = pagina.control<controls::DataControl>("comuni");
    comuni.RecordSource = "select * from stati";
    StringaAzienda += ";";
    const support::StatementRecorder recorder;
    vaiA("DataCombo1");
    EXPECT_EQ(recorder.texts(), Testi{kComuni});
    EXPECT_EQ(comuni.RecordSource, kComuni);
    EXPECT_EQ(comuni.ConnectionString, StringaAzienda);
}

TEST_F(AziendaForm, ATownTypedInFullIsTakenAndFillsTheAddress) {
    esegui("insert into comuni values ('Cagliaritano', 'XX', '9000', 1)");
    for (const char* scritto : {"Cagliari", "cagliari"}) {
        apri();
        vaiA("DataCombo1");
        pagina.typeWithoutPick("DataCombo1", scritto);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testi(kIndirizzo), (Riga{"Cagliari", "09121", "CA", "Italia"}));
        EXPECT_EQ(fuoco(), "cap");
        chiudi();
    }
}

TEST_F(AziendaForm, TownsThatCannotBeReadAreTold) {
    apri();
    esegui("drop table comuni");
    script.expectMessage("Invalid object name 'comuni'.");
    vaiA("DataCombo1");
    EXPECT_TRUE(script.allShown());
    script.expectMessage("Object variable or With block variable not set");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "cap");
    EXPECT_EQ(testi(kIndirizzo), (Riga{"Torino", "10121", "", "Italia"}));
}

TEST_F(AziendaForm, ADoubleClickAsksForATownFormOfANameThatNobodyHas) {
    apri();
    QTest::mouseDClick(pagina.combo("DataCombo1").lineEdit(), Qt::LeftButton);
    support::Gui::handleEvents();
    EXPECT_EQ(gui.forms().markOf("frmComuni"), "anagrafica");
    EXPECT_TRUE(gui.isVisible("Avvio_Azienda"));
    EXPECT_FALSE(gui.forms().isLoaded("frmComuni"));
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
    EXPECT_EQ(CimaForm, 0);
    EXPECT_TRUE(aperta());
    EXPECT_TRUE(gui.isVisible("frmDatiAzienda"));
    pagina.comeToFront();
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
}

TEST_F(AziendaForm, CtrlEnterOnTheTownIsItsDoubleClick) {
    apri();
    vaiA("DataCombo1");
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(gui.forms().markOf("frmComuni"), "anagrafica");
    EXPECT_TRUE(gui.isVisible("Avvio_Azienda"));
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
}

// The tax codes.

TEST_F(AziendaForm, AWrongFiscalCodeKeepsTheFocusInCapitals) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
        scrivi("codice_fiscale", "rssmra85t10a562t");
        script.expectMessage(kErrato, platform::Icon::None);
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "codice_fiscale");
        EXPECT_EQ(testo("codice_fiscale"), "RSSMRA85T10A562T");
        EXPECT_EQ(scelto("codice_fiscale"), "RSSMRA85T10A562T");
    }
    script.expectMessage(kErrato);
    gui.click("frmDatiAzienda", "Banca");
    EXPECT_EQ(fuoco(), "codice_fiscale");
    gui.type("rssmra85t10a562s");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "p_iva");
    EXPECT_EQ(testo("codice_fiscale"), "RSSMRA85T10A562S");
}

TEST_F(AziendaForm, AZeroKeepsTheFocusWithoutAWord) {
    apri();
    scrivi("codice_fiscale", "0");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "codice_fiscale");
    EXPECT_EQ(testo("codice_fiscale"), "0");
    metti("codice_fiscale", "");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "p_iva");
}

TEST_F(AziendaForm, ANumericFiscalCodeIsCopiedIntoAnEmptyVatNumber) {
    apri();
    metti("p_iva", "");
    vaiA("codice_fiscale");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "p_iva");
    EXPECT_EQ(testi({"codice_fiscale", "p_iva"}), (Riga{"97088120015", "97088120015"}));
    EXPECT_EQ(scelto("p_iva"), "97088120015");
    scrivi("p_iva", "08765120012");
    vaiA("codice_fiscale");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("p_iva"), "08765120012") << "one that is there stays";
}

TEST_F(AziendaForm, AWrongVatNumberIsToldAndTheFocusMovesOn) {
    apri();
    for (const char* errata : {"08765120013", "it08765120012", "'; --"}) {
        scrivi("p_iva", errata);
        script.expectMessage(kErrato, platform::Icon::None);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fuoco(), "telefonoufficio");
        EXPECT_EQ(testo("p_iva"), errata) << "not in capitals";
    }
    EXPECT_TRUE(script.allShown());
}

TEST_F(AziendaForm, AbroadTheCodesAreTakenAsTyped) {
    apri();
    pagina.pick("DataCombo2", "Francia");
    scrivi("codice_fiscale", "rssmra85t10a562t");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "p_iva");
    gui.type("fr1");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "telefonoufficio");
    EXPECT_EQ(testi({"codice_fiscale", "p_iva"}), (Riga{"rssmra85t10a562t", "fr1"}));
    metti("codice_fiscale", "123");
    metti("p_iva", "");
    vaiA("codice_fiscale");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("p_iva"), "123") << "a number is copied from abroad too";
}

TEST_F(AziendaForm, WithoutAStateTheCodesAreChecked) {
    esegui("update DatiAzienda set IdStato = null");
    apri();
    scrivi("codice_fiscale", "x");
    script.expectMessage(kErrato);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "codice_fiscale");
}

TEST_F(AziendaForm, TheCodesOfTheSampleAreGood) {
    apri();
    vaiA("codice_fiscale");
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "telefonoufficio");
}

} // namespace
} // namespace vabo
