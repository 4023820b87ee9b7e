#include "MorlanFixture.h"
#include "general_tables/TestiAttesi.h"

#include <QComboBox>
#include <QGroupBox>
#include <QScreen>

namespace vabo {
namespace {

class MorlanFrame : public MorlanForm {};

TEST_F(MorlanFrame, SixTabsUnderTheTitle) {
    apri();
    auto& schede = controllo<QTabWidget>("SSTab1");
    const char* const didascalie[] = {"Piano dei Conti",
                                      "Tabella generale conti",
                                      "Altri conti",
                                      "Impostazioni Generali e Dati Generali",
                                      "Tabella Gestione Iva e Fatturazione",
                                      "Personale"};
    ASSERT_EQ(schede.count(), 6);
    for (int i = 0; i < schede.count(); ++i) {
        EXPECT_EQ(schede.tabText(i), didascalie[i]);
    }
    EXPECT_EQ(testo("Label21"), "Morlan");
    EXPECT_EQ(testo("Command39"), "Tabelle Morlan");
    EXPECT_EQ(controllo<QComboBox>("Combo8").currentText().toStdString(), support::kCompany);
}

TEST_F(MorlanFrame, EveryCaptionIsAsItsUsersKnowIt) {
    apri();
    const std::pair<const char*, const char*> gruppi[] = {
        {"Frame1", "Gestione Piano dei Conti"},
        {"Frame15", "Gestione Caselle Budget Items"},
        {"Frame5", "Tabella Generale Conti per le registrazioni di Fatture"},
    };
    for (const auto& [nome, titolo] : gruppi) {
        EXPECT_EQ(controllo<QGroupBox>(nome).title(), titolo);
    }
    // box, its caption, the title of the group around it
    const char* const caselle[][3] = {
        {"Check1", "Gestisci Note Di Debito", "Gestione Note di Debito"},
        {"Check2", "Usa Mastro Conto S/conto", "Gestione Caselle Budget Items"},
        {"Check3", "Inserimento Automatico da Prima Nota", "Gestione Scadenziari"},
        {"Check4", "Gestisci Previsionale", "Gestione Previsionale"},
        {"Check5", "Riaprire gli Oneri dei progetti a fine Es.", "Gestione Chiusure e Riaperture"},
        {"Check6", "Usa Sede Amministrativa in Contabilità", "Gestione Sede Amministrativa"},
        {"Check13", "Usa C/Transitorio Economico", "Gestione Conto Transitorio"},
        {"Check7", "Aggiornamento Automatico B.Items ONG", "Gestione Caselle Budget Items"},
        {"Check9", "Esporta solo registrazioni di loco", "Gestione Sincronismo"},
        {"Check10", "Usa InforEuro", "Tassi di Cambio ONG"},
        {"Check11", "Usa Banca d'Italia", "Tassi di Cambio ONG"},
        {"Check12", "Richiedi Badge in contabilità", "Gestione Badge"},
    };
    for (const auto& [nome, didascalia, titolo] : caselle) {
        EXPECT_EQ(testo(nome), didascalia);
        const auto* gruppo = dynamic_cast<QGroupBox*>(controllo<controls::CheckBox>(nome).parentWidget());
        ASSERT_NE(gruppo, nullptr) << nome;
        EXPECT_EQ(gruppo->title(), titolo);
    }
    EXPECT_EQ(testo("Command31"), "Definizione del Piano dei Conti utilizzato");
}

TEST_F(MorlanFrame, EveryButtonHasAMnemonicOfItsOwn) {
    apri();
    const char* const lettere[] = {"CDM", "CM", "CMT", "CEIMPS", "CMS", "BCM"};
    for (int numero = 0; numero < 6; ++numero) {
        scheda(numero);
        EXPECT_EQ(gui.mnemonics("Avvio_Morlan"), lettere[numero]) << numero;
    }
    scheda(1);
    scegli("DataGrid2", "4");
    EXPECT_EQ(gui.mnemonics("Avvio_Morlan"), "CMS");
    scheda(2);
    scegli("DataGrid4", "2");
    EXPECT_EQ(gui.mnemonics("Avvio_Morlan"), "CMST");
    gui.click("Avvio_Morlan", "Command18");
    EXPECT_EQ(gui.mnemonics("Avvio_Morlan"), "CMST") << "the caption changes, the mnemonic stays";
    QTest::keyClick(gui.form("Avvio_Morlan").windowHandle(), Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the company console", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
}

TEST_F(MorlanFrame, ItsSizeIsTheScreensAndThenTheUsers) {
    apri();
    controls::Form& form = gui.form("Avvio_Morlan");
    const QSize schermo = form.screen()->availableSize();
    EXPECT_LE(form.width(), schermo.width());
    EXPECT_LE(form.height(), schermo.height());
    EXPECT_GE(form.height(), schermo.height() * 9 / 10);
    const QSize scelta(form.minimumSizeHint().width() + 7, 600);
    form.resize(scelta);
    riapri();
    EXPECT_EQ(gui.form("Avvio_Morlan").size(), scelta);
}

TEST_F(MorlanFrame, TheArrowsOfTheTabsAreNoStop) {
    apri();
    auto& schede = controllo<QTabWidget>("SSTab1");
    schede.setCurrentIndex(0);
    gui.form("Avvio_Morlan").resize(gui.form("Avvio_Morlan").minimumSizeHint());
    support::Gui::handleEvents();
    ASSERT_GT(schede.tabBar()->sizeHint().width(), schede.width()) << "the tabs don't fit";
    schede.setFocus();
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "Check7");
}

TEST_F(MorlanFrame, EveryPickerHasItsLabel) {
    apri();
    const std::pair<const char*, const char*> etichette[] = {{"DCBItem1", "Budget Item"},
                                                             {"DCBitem2", "Budget Item"},
                                                             {"DCBItems3", "Budget Item"},
                                                             {"DCBitems4", "Budget Item"},
                                                             {"DCBitem5", "Trattamento Iva Standard"},
                                                             {"Descrizione", "Descrizione"},
                                                             {"tipoanagrafe", "Tipo conto"}};
    for (const auto& [nome, didascalia] : etichette) {
        EXPECT_EQ(gui.find("Avvio_Morlan", nome).accessibleName(), didascalia) << nome;
    }
    for (const char* nome : {"DCBItem1", "DCBitem2", "DCBItems3", "DCBitems4"}) {
        EXPECT_EQ(combo(nome).Text(), "Seleziona");
    }
}

TEST_F(MorlanFrame, TheEditFramesShowOnlyWhileARowIsChanged) {
    apri();
    EXPECT_FALSE(visibile("Frame6"));
    EXPECT_FALSE(visibile("Frame2"));
    EXPECT_FALSE(gui.find("Avvio_Morlan", "Command14").isEnabled());
}

TEST_F(MorlanFrame, TheLoadSendsItsStatementsInTheirOrderAndNoOther) {
    const support::StatementRecorder recorder;
    apri();
    std::vector<std::string> inviate = recorder.texts();
    // Without the data layer's own statements, which a box that is set sends to write its row.
    std::erase_if(inviate, [](const std::string& t) { return t.starts_with("SELECT [") || t.starts_with("UPDATE ["); });
    EXPECT_EQ(inviate, (std::vector<std::string>{"select * from TabellaUilityConti where id = 8",
                                                 "select * from TabellaUilityConti where id = 8", // the box it sets
                                                 "select * from TabellaUilityConti where id = 9",
                                                 kElencoContiUtili,
                                                 kElencoAltriConti,
                                                 kElencoContiPersonale,
                                                 kElencoContiFatture,
                                                 kTestoContiPersonale,
                                                 kElencoTrattamenti,
                                                 "select * from IvaAliquotaStandard  ",
                                                 " select descrizione from IvaTrattamento Where idautonumber = 2",
                                                 " select Aliquota from IvaTrattamento Where idautonumber = 2",
                                                 " select quotadetrazione from IvaTrattamento Where idautonumber = 2",
                                                 " select Sigla from IvaTrattamento Where idautonumber = 2",
                                                 "select * from datiGenerali where descrizione ='Sede Amministrativa'",
                                                 "select * from TabellaUilityConti where id = 7",
                                                 kTestiAltriConti[0],
                                                 kTestoContiUtili,
                                                 "select * from TabellaUilityConti where id = 5",
                                                 "select * from datiGenerali where id = 6",
                                                 "select * from datiGenerali where id = 6", // the box it sets
                                                 "select * from datiGenerali where id = 7",
                                                 "select * from datiGenerali where id = 8",
                                                 "select * from datiGenerali where id = 8", // the box it sets
                                                 "select * from datiGenerali where id = 9",
                                                 "select * from datiGenerali where id = 10",
                                                 "select * from datiGenerali where id = 10", // the box it sets
                                                 "select * from datiGenerali where id = 15",
                                                 kTestoContiIva}));
}

struct Layout {
    const char* griglia;
    std::vector<std::pair<std::string, int>> colonne; ///< caption and width in twips of the visible ones
};

TEST_F(MorlanFrame, TheGridsShowTheirColumnsAndTakeNoText) {
    apri();
    const Layout layouts[] = {
        {"DataGrid2", {{"Descrizione", 4000}, {"Conto", 3000}, {"Progetto", 700}, {"Piano dei conti", 4000}}},
        {"DataGrid4", {{"TipoAnagrafe", 4000}, {"NomeConto", 4000}, {"dettagli", 4000}}},
        {"DataGrid11", {{"Descrizione", 1000}, {"Conto", 2300}, {"Progetto", 800}, {"M.C.S/C", 2300}}},
        {"DataGridPersonale", {{"Descrizione", 3500}, {"Conto", 4500}, {"dettagli", 4500}}},
    };
    for (const auto& [nome, colonne] : layouts) {
        SCOPED_TRACE(nome);
        std::vector<std::pair<std::string, int>> viste;
        for (int i = 0; i < griglia(nome).ColumnCount(); ++i) {
            const auto colonna = griglia(nome).Columns(i);
            EXPECT_TRUE(colonna.Locked()) << i;
            if (colonna.Visible()) {
                viste.emplace_back(colonna.Caption(), colonna.Width());
            }
        }
        EXPECT_EQ(viste, colonne);
    }
}

} // namespace
} // namespace vabo
