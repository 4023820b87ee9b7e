#include "MorlanFixture.h"
#include "controls/RecordedForm.h"
#include "general_tables/Avvio_Morlan.h"
#include "platform/Automation.h"

namespace vabo {
namespace {

class MorlanComandi : public MorlanForm {
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

TEST_F(MorlanComandi, EachIsCalledAsItsUsersKnowIt) {
    apri();
    for (const Comando& comando : kComandi) {
        EXPECT_EQ(testo(comando.bottone), comando.didascalia);
    }
}

TEST_F(MorlanComandi, EachCommandOpensItsFormAndTheConsoleComesBack) {
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

TEST_F(MorlanComandi, NoCommandAsksForARight) {
    DirittiUtente = {};
    std::vector<std::string> chiamate;
    platform::setAutomation(std::make_unique<Stampante>(chiamate));
    for (const Comando& comando : kComandi) {
        costruisci(comando.form);
    }
    apri();
    for (const Comando& comando : kComandi) {
        premi(comando.bottone, comando.scheda);
        EXPECT_EQ(gui.visibleForms(), comando.form);
        gui.form(comando.form).close();
        support::Gui::handleEvents();
    }
    gui.click("Avvio_Morlan", "Command39");
    platform::setAutomation(nullptr);
    EXPECT_EQ(chiamate.size(), 2U);
    gui.click("Avvio_Morlan", "Command13");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
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

TEST_F(MorlanComandi, ClosingGivesTheCompanyConsoleBack) {
    apri();
    gui.click("Avvio_Morlan", "Command13");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("Avvio_Morlan"));
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(MorlanComandi, TheReportIsShownInPrintPreview) {
    std::vector<std::string> chiamate;
    platform::setAutomation(std::make_unique<Stampante>(chiamate));
    PercorsoFileLocale = "C:\\Vabo\\Files\\aurora.mdb";
    apri();
    gui.click("Avvio_Morlan", "Command39");
    platform::setAutomation(nullptr);
    EXPECT_EQ(chiamate, (std::vector<std::string>{"C:\\Vabo\\Files\\aurora.mdb", "AccessoMorlan 2"}));
}

} // namespace
} // namespace vabo
