// The form of states: what it shows, its order of entry, its commands.

#include "controls/DataControl.h"
#include "geography/StatiFixture.h"
#include "session/TreatForms.h"

#include <QLabel>

namespace vabo {
namespace {

TEST_F(StatiForm, ItIsOpenedByItsName) {
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm("stati", true));
    EXPECT_TRUE(gui.isVisible("stati"));
    EXPECT_TRUE(FormInCima("stati"));
}

TEST_F(StatiForm, ReadsTwoListsAndNothingElse) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{"Select * from ZoneGeografiche ", "SELECT * from stati order by DescStato"}));
    const auto& elenco = pagina.control<controls::DataControl>("elenco");
    EXPECT_EQ(elenco.ConnectionString, StringaAzienda);
    EXPECT_EQ(elenco.RecordSource, "SELECT * from stati order by DescStato");
    EXPECT_EQ(pagina.control<controls::DataControl>("areaGeo").ConnectionString, StringaAzienda);
}

TEST_F(StatiForm, ItsTextsStandLetterForLetter) {
    apri();
    EXPECT_EQ(gui.form("stati").windowTitle().toStdString(), "Tlv - Aldane Works Software Solutions");
    const std::pair<const char*, const char*> etichette[] = {{"DescStato", "Stato"},
                                                             {"DataCombo1", "Area   Geografica"},
                                                             {"DataIstituzioneStato", "Data Istituzione "},
                                                             {"DataSoppressioneStato", "Data Soppressione "},
                                                             {"IsoValuta", "Iso Valuta"}};
    for (const auto& [campo, testo] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), testo);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
        EXPECT_FALSE(pagina.control(campo).accessibleName().isEmpty()) << campo;
    }
    EXPECT_EQ(testo("titolo"), "Stati");
    EXPECT_EQ(testo("istruzioni"), "Un clic, Spazio o Invio su una riga la porta nei campi. La riga si registra quando "
                                   "si lascia Iso Valuta.");
    EXPECT_EQ(gui.mnemonics("stati"), "CN");
}

TEST_F(StatiForm, AClickOnAnAreaOfTheListGoesOnToTheDate) {
    apri();
    vaiA("DescStato");
    pagina.pickByMouse("DataCombo1", "Caraibi");
    EXPECT_EQ(area(), "Caraibi");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
}

TEST_F(StatiForm, AnAreaWithoutATextStandsInTheListAsAnEmptyOne) {
    esegui("insert into ZoneGeografiche (Descrizione) values (null)");
    apri();
    EXPECT_EQ(pagina.combo("DataCombo1").count(), quanti("ZoneGeografiche"));
    EXPECT_GE(pagina.combo("DataCombo1").findText("", Qt::MatchExactly), 0);
    scrivi(kKosovo);
    EXPECT_EQ(stato("Repubblica del Kosovo")[4], "Balcani");
}

TEST_F(StatiForm, StartsWithEmptyFieldsAndTheFocusOnTheName) {
    apri();
    EXPECT_EQ(campi(), kStatoVuoto);
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(pagina.control<controls::TextBox>("DescStato").selectedText(), "Seleziona");
    EXPECT_EQ(corrente(), "Afghanistan");
}

TEST_F(StatiForm, LaysItsGridAgainAfterEachReading) {
    const std::vector<Colonna> colonne = {{"IdStato", 0},
                                          {"Stato", 3000},
                                          {"Istituzione Stato", 1500},
                                          {"Soppressione Stato", 1500},
                                          {"ISO valuta", 1200},
                                          {"Sigla", 0},
                                          {"Sigla3", 0},
                                          {"CodiceNumerico", 0},
                                          {"Area", 2500}};
    apri();
    verificaColonne(colonne);
    scrivi({"Repubblica del Kosovo", "Balcani", "", "", "EUR"}); // behind a save
    verificaColonne(colonne);
    script.expectMessage("Stato con questo nome già inserito");
    scrivi({"Kenya", "Balcani", "", "", "EUR"}); // behind a duplicate
    verificaColonne(colonne);
}

TEST_F(StatiForm, ATableWithFewerColumnsIsToldAndNothingElseStops) {
    esegui("drop table stati create table stati (IdStato int identity(1,1) not null primary key, DescStato "
           "nvarchar(100) null, DataIstituzioneStato datetime null, DataSoppressioneStato datetime null, IsoValuta "
           "nvarchar(3) null, Area nvarchar(50) null)");
    esegui("insert into stati (DescStato) values ('Italia')");
    script.expectMessage("Subscript out of range");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(pagina.rows("DataGrid1"), 1);
}

TEST_F(StatiForm, AListThatCannotBeReadIsToldAndTheFormStands) {
    esegui("drop table ZoneGeografiche");
    script.expectMessage("Invalid object name 'ZoneGeografiche'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_TRUE(gui.isVisible("stati"));
    EXPECT_EQ(pagina.rows("DataGrid1"), 0) << "the error ended the load";
    gui.click("stati", "Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(StatiForm, EnterGoesAlongTheFieldsAndBackToTheName) {
    apri();
    for (const char* campo :
         {"DescStato", "DataCombo1", "DataIstituzioneStato", "DataSoppressioneStato", "IsoValuta"}) {
        EXPECT_EQ(fuoco(), campo);
        gui.press(Qt::Key_Return);
    }
    EXPECT_EQ(fuoco(), "DescStato");
    gui.press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(fuoco(), "DataCombo1");
}

TEST_F(StatiForm, TabGoesAlongTheScreen) {
    apri();
    for (const char* campo :
         {"DescStato", "DataCombo1", "DataIstituzioneStato", "DataSoppressioneStato", "IsoValuta"}) {
        EXPECT_EQ(fuoco(), campo);
        gui.press(Qt::Key_Tab);
    }
    // Leaving the currency sends the focus to the name, wherever Tab leads.
    EXPECT_EQ(fuoco(), "DescStato");
    gui.press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "Command4");
    gui.press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "Command1");
    gui.press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "DataGrid1");
}

TEST_F(StatiForm, AClickInTheListOfAreasGoesOnToTheFoundingDate) {
    apri();
    pagina.pick("DataCombo1", "Caraibi");
    EXPECT_EQ(area(), "Caraibi");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
}

TEST_F(StatiForm, AClickElsewhereOnTheAreaStaysThere) {
    apri();
    QTest::mouseClick(pagina.combo("DataCombo1").lineEdit(), Qt::LeftButton);
    EXPECT_EQ(fuoco(), "DataCombo1");
}

TEST_F(StatiForm, EachFieldSelectsItsTextWhenItGetsTheFocus) {
    apri();
    scegli("Cecoslovacchia");
    vaiA("DataCombo1");
    EXPECT_EQ(pagina.combo("DataCombo1").lineEdit()->selectedText(), "Europa orientale");
    for (const char* campo : {"DataIstituzioneStato", "DataSoppressioneStato", "IsoValuta", "DescStato"}) {
        vaiA(campo);
        const auto& scatola = pagina.control<controls::TextBox>(campo);
        EXPECT_EQ(scatola.selectedText().toStdString(), scatola.Text()) << campo;
        EXPECT_NE(scatola.Text(), "");
    }
}

TEST_F(StatiForm, NewEmptiesTheFieldsForAnotherState) {
    apri();
    scegli("Cecoslovacchia");
    const int prima = quanti("stati");
    gui.click("stati", "Command1");
    EXPECT_EQ(campi(), kStatoVuoto);
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(pagina.control<controls::TextBox>("DescStato").selectedText(), "Seleziona");
    scrivi({"Repubblica del Kosovo", "Seleziona", "", "", "EUR"});
    EXPECT_EQ(quanti("stati"), prima + 1);
    EXPECT_EQ(quanti("stati where DescStato = 'Cecoslovacchia'"), 1);
}

TEST_F(StatiForm, CloseStepsBackAndPurgesTheRowsWithoutAName) {
    esegui("insert into stati (IsoValuta) values ('AAA')");
    apri();
    RsCondivisi(1).Open("select * from progetti", DbAzienda);
    const support::StatementRecorder recorder;
    gui.click("stati", "Command4");
    EXPECT_EQ(recorder.texts(), Testi{"delete from stati where descstato is null"});
    EXPECT_EQ(quanti("stati where DescStato is null"), 0);
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
    EXPECT_FALSE(gui.forms().isLoaded("stati"));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(StatiForm, APurgeThatFailsIsToldAndTheFormStays) {
    apri();
    esegui("drop table stati");
    script.expectMessage("Invalid object name 'stati'.");
    gui.click("stati", "Command4");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(gui.visibleForms(), "stati");
}

TEST_F(StatiForm, TheWindowsOwnCloseStepsBackWithoutAPurgeAndWithoutASave) {
    esegui("insert into stati (IsoValuta) values ('AAA')");
    apri();
    scrivi({"Repubblica del Kosovo", "Seleziona", "", ""});
    gui.type("EUR");
    ASSERT_EQ(fuoco(), "IsoValuta");
    const support::StatementRecorder recorder;
    gui.form("stati").close();
    support::Gui::handleEvents();
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(StatiForm, ItFitsANarrowScreen) {
    apri();
    EXPECT_LE(gui.form("stati").minimumSizeHint().width(), 960);
}

} // namespace
} // namespace vabo
