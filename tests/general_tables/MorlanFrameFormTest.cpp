#include "MorlanFixture.h"
#include "controls/RecordedForm.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/TestiAttesi.h"
#include "platform/Automation.h"

#include <QComboBox>
#include <QGroupBox>
#include <QScreen>

namespace vabo {
namespace {

class MorlanFrame : public MorlanForm {
protected:
    /// Adds a form of that name whose Unload takes it off the stack, as that of every form on the stack does.
    void costruisci(const char* nome) {
        gui.forms().add(nome, [this, nome] {
            return std::make_unique<RecordedForm>(nome, eventi,
                                                  FormEvents{.load =
                                                                 [this](RecordedForm& /*form*/) {
                                                                     clessidra =
                                                                         QGuiApplication::overrideCursor() != nullptr;
                                                                 },
                                                             .unload = [](RecordedForm& /*form*/) { ChiudiForm(); }});
        });
    }
    void premi(const char* bottone, int numero) {
        scheda(numero);
        gui.click("Avvio_Morlan", bottone);
    }

    std::vector<std::string> eventi;
    bool clessidra = false; ///< whether the hourglass was shown while the form loaded
};

struct Comando {
    const char* bottone;
    int scheda;
    const char* form;
    const char* didascalia;
};
constexpr Comando kComandi[] = {
    {"Command1", 4, "I_Iva_sezionali", "Sezionali Iva"},
    {"Command2", 3, "caricasedecentrale", "Carica Sede Centrale"},
    {"Command3", 3, "IndirizzoVaboSuServer", "Carica Indirizzo Server"},
    {"Command4", 3, "Scegli_progetto_4", "Modifica Data Definitiva Progetto"},
    {"Command5", 5, "TabelleBustePaga", "Tabelle Buste Paga"},
    {"Command6", 3, "Scegli_sede_Pd", "Modifica Data Definitiva Sede"},
};

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
    for (const Comando& comando : kComandi) {
        EXPECT_EQ(testo(comando.bottone), comando.didascalia);
    }
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

TEST_F(MorlanFrame, AListThatCannotBeReadIsToldAndLeavesTheSwitchesUnread) {
    esegui("drop table tipoanagrafica");
    script.expectMessage("Invalid object name 'tipoanagrafica'.");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_TRUE(gui.isVisible("Avvio_Morlan"));
    EXPECT_EQ(spuntate(), "Check10") << "only what stands ahead of the lists";
    EXPECT_EQ(righe("DataGrid2"), 0);
    EXPECT_TRUE(recorder.holding("datiGenerali").empty());
}

TEST_F(MorlanFrame, AfterTheFirstTwoListsFailuresAreSilent) {
    esegui("drop table TabellaContiUtiliTransfersHq");
    esegui("drop table IvaTrattamento");
    apri();
    EXPECT_EQ(combo("DCBitems4").count(), 0) << "its list leaves out what stands in the table";
    EXPECT_EQ(combo("DCBitem5").count(), 0);
    EXPECT_GT(combo("DCBItems3").count(), 0);
    EXPECT_EQ(righe("DataGrid11"), 10);
    EXPECT_EQ(testo("Aliquota"), "20,00");
}

TEST_F(MorlanFrame, EachCommandOpensItsFormAndTheConsoleComesBack) {
    for (const Comando& comando : kComandi) {
        costruisci(comando.form);
    }
    apri();
    for (const Comando& comando : kComandi) {
        SCOPED_TRACE(comando.bottone);
        premi(comando.bottone, comando.scheda);
        EXPECT_EQ(gui.visibleForms(), comando.form);
        EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan", comando.form}));
        EXPECT_TRUE(clessidra);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        const support::StatementRecorder recorder;
        gui.form(comando.form).close();
        support::Gui::handleEvents();
        EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
        EXPECT_TRUE(recorder.texts().empty()) << "it hid, it wasn't unloaded";
    }
}

/// A program whose only form is the console.
class MorlanAlone : public AziendaAperta {
protected:
    MorlanAlone() {
        gui.forms().add("Avvio_Morlan", [] { return std::make_unique<Avvio_Morlan>(); });
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        CimaForm = 1;
    }
    support::DialogScript script;
    support::Gui gui;
};

TEST_F(MorlanAlone, AFormThatIsNotThereLeavesTheConsoleInPlace) {
    gui.forms().show("Avvio_Morlan");
    for (const Comando& comando : kComandi) {
        SCOPED_TRACE(comando.bottone);
        gui.find<QTabWidget>("Avvio_Morlan", "SSTab1").setCurrentIndex(comando.scheda);
        gui.click("Avvio_Morlan", comando.bottone);
        EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
        EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan"}));
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
}

TEST_F(MorlanFrame, ClosingGivesTheCompanyConsoleBack) {
    apri();
    gui.click("Avvio_Morlan", "Command13");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("Avvio_Morlan"));
    EXPECT_EQ(CimaForm, 0);
}

class Stampante : public platform::Automation {
public:
    explicit Stampante(std::vector<std::string>& chiamate) : chiamate_(chiamate) {}
    std::unique_ptr<platform::ReportApplication> createObject(const std::string& /*progId*/) override {
        return std::make_unique<Programma>(chiamate_);
    }

private:
    class Programma : public platform::ReportApplication {
    public:
        explicit Programma(std::vector<std::string>& chiamate) : chiamate_(chiamate) {}
        void OpenCurrentDatabase(const std::string& path) override { chiamate_.push_back(path); }
        void OpenReport(const std::string& report, int view) override {
            chiamate_.push_back(report + " " + std::to_string(view));
        }
        void Maximize() override {}
        void ShowActiveReport() override {}
        void ShowApplication() override {}
        void Close() override {}

    private:
        std::vector<std::string>& chiamate_;
    };
    std::vector<std::string>& chiamate_;
};

TEST_F(MorlanFrame, TheReportIsShownInPrintPreview) {
    std::vector<std::string> chiamate;
    platform::setAutomation(std::make_unique<Stampante>(chiamate));
    PercorsoFileLocale = "C:\\Vabo\\Files\\aurora.mdb";
    apri();
    gui.click("Avvio_Morlan", "Command39");
    platform::setAutomation(nullptr);
    EXPECT_EQ(chiamate, (std::vector<std::string>{"C:\\Vabo\\Files\\aurora.mdb", "AccessoMorlan 2"}));
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
