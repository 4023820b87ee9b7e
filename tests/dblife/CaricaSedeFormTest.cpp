// The form of the headquarters: what it shows, and the branch that is picked.

#include "CaricaSedeFixture.h"
#include "session/TreatForms.h"

#include <QLabel>
#include <QScreen>

namespace vabo {
namespace {

constexpr const char* kStati = "SELECT * FROM Stati order by descstato";
constexpr const char* kSedi =
    "SELECT E.IdSede, E.Città, E.Indirizzo, E.StatoOProvincia, E.IdStato, S.IdStato, S.DescStato FROM ElencoSedi AS E "
    "INNER JOIN Stati AS S ON E.IdStato = S.IdStato order by e.idsede";

const Riga kVuoti = {"", "", "", "", "Seleziona", "", "", "", ""};
const Riga kTorino = {"Torino",
                      "",
                      "TO",
                      "10121",
                      "Italia",
                      "011 5550100",
                      "011 5550101",
                      "sede@aurora.example",
                      "Sede legale e amministrativa"};

TEST_F(CaricaSedeForm, ItIsOpenedFromTheGeneralTablesAndComesBackThere) {
    PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
    CimaForm = 1;
    const support::FormPage console(gui, "Avvio_Morlan");
    console.show();
    console.turnTo("SSTab1", 3);
    gui.click("Avvio_Morlan", "Command2");
    EXPECT_EQ(gui.visibleForms(), kForm);
    EXPECT_TRUE(FormInCima(kForm));
    gui.click(kForm, "Command7");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded(kForm));
}

TEST_F(CaricaSedeForm, ReadsTwoListsOnTheCompanysConnectionText) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Riga{kStati, kSedi}));
    EXPECT_EQ(pagina.control<controls::DataControl>("AdcStati").ConnectionString, StringaAzienda);
    EXPECT_EQ(pagina.control<controls::DataControl>("elenco").ConnectionString, StringaAzienda);
    EXPECT_EQ(gui.form(kForm).windowTitle(), "Tlv - Aldane Works Software Solutions");
}

TEST_F(CaricaSedeForm, StartsEmptyAtTheGridWithTheStatesInTheirList) {
    apri();
    EXPECT_EQ(campi(), kVuoti);
    EXPECT_EQ(fuoco(), "DataGrid1");
    controls::DataCombo& combo = pagina.combo("DCStato");
    EXPECT_EQ(std::to_string(combo.count()), valore("select count(*) from stati"));
    combo.setText("Kenya");
    EXPECT_EQ(combo.BoundText(), valore("select IdStato from stati where DescStato = 'Kenya'"));
}

TEST_F(CaricaSedeForm, EachFieldHasItsLabelAndEachCommandItsMnemonic) {
    apri();
    const std::pair<const char*, const char*> etichette[] = {
        {"città", "Città"},
        {"Indirizzo", "Indirizzo"},
        {"statooprovincia", "Prov."},
        {"cap", "Cap"},
        {"DCStato", "Stato"},
        {"telefonoufficio", "Tel. ufficio"},
        {"numerofax", "Numero fax"},
        {"indirizzopostaelettronica", "E-mail"},
        {"Note", "Note"},
    };
    for (const auto& [campo, scritta] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), scritta);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
    }
    EXPECT_EQ(gui.mnemonics(kForm), "AC");
}

TEST_F(CaricaSedeForm, TheGridIsLockedAndHidesItsKeys) {
    apri();
    const std::pair<const char*, bool> colonne[] = {
        {"IdSede", false},  {"Città", true},    {"Indirizzo", true}, {"StatoOProvincia", true},
        {"IdStato", false}, {"IdStato", false}, {"Stato", true}};
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    ASSERT_EQ(griglia.ColumnCount(), 7);
    for (int i = 0; i < 7; ++i) {
        const auto colonna = griglia.Columns(i);
        EXPECT_TRUE(colonna.Locked()) << i;
        EXPECT_EQ(colonna.Visible(), colonne[i].second) << i;
        if (colonna.Visible()) {
            EXPECT_STRCASEEQ(colonna.Caption().c_str(), colonne[i].first);
            EXPECT_GT(colonna.Width(), 0) << i;
        }
    }
    EXPECT_EQ(griglia.Columns(6).Caption(), "Stato");
}

TEST_F(CaricaSedeForm, TakesTheScreenAndItsColumnsTheWholeWidth) {
    apri();
    const controls::Form& form = gui.form(kForm);
    EXPECT_GE(form.height(), form.screen()->availableSize().height() * 9 / 10);
    const controls::DataGrid& griglia = pagina.grid("DataGrid1");
    int larghezza = 0;
    for (int colonna = 0; colonna < 7; ++colonna) {
        larghezza += griglia.columnWidth(colonna);
    }
    EXPECT_NEAR(larghezza, griglia.viewport()->width(), 6);
}

TEST_F(CaricaSedeForm, ABranchIsReadOnTheOpenConnection) {
    apri();
    StringaAzienda = "Server=altrove";
    scegli("4");
    EXPECT_EQ(testo("città"), "Nairobi");
    EXPECT_EQ(stato(), "Kenya");
}

TEST_F(CaricaSedeForm, ListsTheBranchesWithAStateInTheOrderOfTheirNumbers) {
    apri();
    ASSERT_EQ(pagina.rows("DataGrid1"), 7);
    EXPECT_EQ(valore("select count(*) from ElencoSedi"), "8");
    for (int riga = 0; riga < 7; ++riga) {
        EXPECT_EQ(pagina.cell("DataGrid1", riga, 0), std::to_string(riga + 1));
    }
    EXPECT_EQ(pagina.cell("DataGrid1", 3, 1), "Nairobi");
    EXPECT_EQ(pagina.cell("DataGrid1", 3, 6), "Kenya");
}

TEST_F(CaricaSedeForm, ABranchFillsItsFieldsButTheAddress) {
    apri();
    const support::StatementRecorder recorder;
    scegli("1");
    EXPECT_EQ(recorder.texts(),
              (Riga{"Select * from ElencoSedi where IdSede = 1", "Select * from stati where IdStato = 1"}));
    EXPECT_EQ(campi(), kTorino);
}

TEST_F(CaricaSedeForm, AMovementInTheGridPicksToo) {
    apri();
    gui.press(Qt::Key_Down);
    EXPECT_EQ(testo("città"), "Milano");
}

TEST_F(CaricaSedeForm, WhatABranchHasNotKeepsWhatStoodThere) {
    apri();
    scegli("1");
    scegli("7");
    Riga attesi = kTorino;
    attesi[0] = "Tirana";
    attesi[4] = valore("select DescStato from stati where Sigla = 'AL'");
    EXPECT_EQ(campi(), attesi);
    esegui("update ElencoSedi set città = '', cap = '0', numerofax = ' ', Note = '00' where IdSede = 7");
    scegli("1");
    scegli("7");
    attesi[0] = "Torino";
    EXPECT_EQ(campi(), attesi);
}

TEST_F(CaricaSedeForm, EveryColumnMayBeNull) {
    apri();
    esegui("update ElencoSedi set città = null, Indirizzo = null, statooprovincia = null, cap = null, telefonoufficio "
           "= null, numerofax = null, indirizzopostaelettronica = null, Note = null, IdStato = null where IdSede = 2");
    const support::StatementRecorder recorder;
    scegli("2");
    EXPECT_EQ(campi(), kVuoti);
    EXPECT_EQ(recorder.texts(), Riga{"Select * from ElencoSedi where IdSede = 2"});
    scegli("1");
    scegli("2");
    EXPECT_EQ(campi(), kTorino) << "the state of the branch before, too";
}

TEST_F(CaricaSedeForm, NullsInTheGridAreEmptyCells) {
    esegui("update ElencoSedi set città = null, Indirizzo = null, statooprovincia = null where IdSede = 1");
    esegui("update stati set DescStato = null where IdStato = 1");
    apri();
    for (const int colonna : {1, 2, 3, 6}) {
        EXPECT_EQ(pagina.cell("DataGrid1", 0, colonna), "") << colonna;
    }
    scegli("4");
    scegli("1");
    EXPECT_EQ(stato(), "Kenya") << "a state without a name keeps what stood there";
}

TEST_F(CaricaSedeForm, AStateOfNoNumberShowsThatNoneIsChosen) {
    apri();
    scegli("4");
    EXPECT_EQ(stato(), "Kenya");
    esegui("update ElencoSedi set IdStato = 0 where IdSede = 1");
    scegli("1");
    EXPECT_EQ(stato(), "Seleziona");
}

TEST_F(CaricaSedeForm, ABranchOrStateThatIsGoneMeanwhileKeepsTheFields) {
    apri();
    scegli("1");
    esegui("delete from ElencoSedi where IdSede = 4");
    scegli("4");
    EXPECT_EQ(campi(), kTorino);
    esegui("update ElencoSedi set IdStato = 99999 where IdSede = 5");
    scegli("5");
    EXPECT_EQ(testo("città"), "Maputo");
    EXPECT_EQ(stato(), "Italia");
}

TEST_F(CaricaSedeForm, WithoutTheStatesTheErrorIsToldAndTheFormStandsEmpty) {
    esegui("drop table stati");
    script.expectMessage("Invalid object name 'Stati'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    applica();
    gui.click(kForm, "Command7");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(CaricaSedeForm, WithoutTheBranchesTheGridIsEmptyInSilence) {
    esegui("drop table ElencoSedi");
    apri();
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_GT(pagina.combo("DCStato").count(), 0);
}

// The form of the server's folder leaves such a text behind.
TEST_F(CaricaSedeForm, WithAConnectionTextOfNoCompanyTheErrorIsToldOnce) {
    StringaAzienda = posto.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt") + "database = vabodati";
    script.expectMessage("Cannot open database \"vabodati\" requested by the login. The login failed.");
    apri();
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
}

} // namespace
} // namespace vabo
