// The form with the server's folder: what it shows, the pick, the two ways out of it.

#include "ado/Conversions.h"
#include "app/Forms.h"
#include "general_tables/AziendaAperta.h"
#include "session/IndirizzoVaboSuServer.h"
#include "session/PuntatoriCartella.h"
#include "session/TreatForms.h"
#include "support/FormPage.h"

#include <QTabWidget>
#include <QTest>

namespace vabo {
namespace {

constexpr const char* kForm = "IndirizzoVaboSuServer";
constexpr const char* kAnnuncio = "Selezionare la cartella VABO sul Server";
constexpr const char* kBrowser = "Seleziona la cartella VABO sul Server";
constexpr const char* kMancante = "Selezionare la directory di lavoro!";

class IndirizzoVaboForm : public AziendaAperta {
protected:
    IndirizzoVaboForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }
    void apri() {
        PilaForm = {"Avvio_Azienda", kForm};
        CimaForm = 1;
        pagina.show();
    }
    void attendiScelta(const std::string& cartella, bool si) {
        script.expectMessage(kAnnuncio, platform::Icon::None);
        script.expectFolder(kBrowser, cartella);
        script.expectConfirm(cartella, si);
    }
    void premi() { gui.click(kForm, "Command1"); }
    std::string rigaDelServer() const { return posto.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt"); }

    support::DialogScript script; ///< no box but those that the test expects
    support::Gui gui;
    support::FormPage pagina{gui, kForm};
};

TEST_F(IndirizzoVaboForm, ShowsItsTitleAndTwoCommands) {
    apri();
    EXPECT_EQ(gui.form(kForm).windowTitle(), "Tlv - Aldane Works Software Solutions");
    EXPECT_EQ(pagina.focus(), "Command1");
    EXPECT_EQ(gui.mnemonics(kForm), "CS");
}

TEST_F(IndirizzoVaboForm, BothOfItsNamesOpenItAndItClosesToTheFormBelow) {
    for (const char* nome : {"IndirizzoVaboSuServer", "IndirizzoVaBoSuServer"}) {
        gui.forms().show("Avvio_Azienda");
        PilaForm = {"Avvio_Azienda"};
        CimaForm = 0;
        EXPECT_TRUE(ApriForm(nome, true));
        EXPECT_TRUE(gui.isVisible(kForm)) << nome;
        gui.forms().hide("Avvio_Azienda");
        gui.click(kForm, "Command7");
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_FALSE(gui.forms().isLoaded(kForm));
        EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"});
    }
}

TEST_F(IndirizzoVaboForm, TheGeneralTablesOpenItAndComeBack) {
    PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
    CimaForm = 1;
    const support::FormPage console(gui, "Avvio_Morlan");
    console.show();
    console.turnTo("SSTab1", 3);
    gui.click("Avvio_Morlan", "Command3");
    EXPECT_EQ(gui.visibleForms(), kForm);
    gui.click(kForm, "Command7");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(IndirizzoVaboForm, WritesTheSevenFilesOfTheFolderAndNothingElse) {
    apri();
    const std::string azienda = valore("select count(*) from DirectoryHQ where Directoryfile like '%Nuova%'");
    const support::StatementRecorder recorder;
    attendiScelta("C:\\Nuova\\Vabo", true);
    premi();
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Nuova\\Vabo"));
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_TRUE(gui.isVisible(kForm));
    attendiScelta("C:\\", true);
    premi();
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\"));
}

TEST_F(IndirizzoVaboForm, CancelWritesNothing) {
    apri();
    const Puntatori prima = puntatori(posto);
    for (const char* cartella : {"C:\\Nuova", ""}) {
        attendiScelta(cartella, false);
        premi();
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(puntatori(posto), prima);
    }
}

TEST_F(IndirizzoVaboForm, OkOnAnEmptyFolderWritesNothingAndStaysOnThePick) {
    apri();
    const Puntatori prima = puntatori(posto);
    pagina.control("Command7").setFocus();
    attendiScelta("", true);
    script.expectMessage(kMancante, platform::Icon::None);
    QTest::keyClick(gui.form(kForm).windowHandle(), Qt::Key_S, Qt::AltModifier);
    support::Gui::waitFor("the boxes", [this] { return script.allShown(); });
    EXPECT_EQ(puntatori(posto), prima);
    EXPECT_EQ(pagina.focus(), "Command1");
}

/// Picks nothing and agrees to it; meanwhile the focus goes elsewhere.
struct Distratto : platform::Dialogs {
    explicit Distratto(QWidget& altrove) : altrove(altrove) {}
    void message(const std::string& /*text*/, platform::Icon /*icon*/) override { altrove.setFocus(); }
    bool question(const std::string& /*text*/) override { return false; }
    bool confirm(const std::string& /*text*/) override { return true; }
    std::string input(const std::string& /*prompt*/, const std::string& /*title*/,
                      const std::string& /*proposed*/) override {
        return {};
    }
    std::string folder(const std::string& /*title*/) override { return {}; }

    QWidget& altrove;
};

TEST_F(IndirizzoVaboForm, AfterAnEmptyFolderTheFocusIsOnThePickWhereverItWent) {
    apri();
    platform::setDialogs(std::make_unique<Distratto>(pagina.control("Command7")));
    premi();
    EXPECT_EQ(pagina.focus(), "Command1");
}

TEST_F(IndirizzoVaboForm, TheCompanysConnectionTextIsAnOddOneFromThePickOn) {
    apri();
    for (const bool si : {false, true}) {
        StringaAzienda = "prima";
        attendiScelta("C:\\Nuova", si);
        premi();
        EXPECT_EQ(StringaAzienda, rigaDelServer() + "database = vabodati");
    }
}

TEST_F(IndirizzoVaboForm, WithoutTheServersPointerFileTheErrorEndsThePickAheadOfTheBrowser) {
    apri();
    const Puntatori prima = puntatori(posto);
    posto.removeFile("C:\\vabo\\IndirizzoServer.txt");
    StringaAzienda = "prima";
    script.expectMessage(kAnnuncio);
    script.expectMessage("File not found");
    premi();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(StringaAzienda, "prima");
    EXPECT_EQ(puntatori(posto), prima);
}

TEST_F(IndirizzoVaboForm, TheServersLineIsTheFirstOneOfItsFile) {
    apri();
    posto.putFile("C:\\vabo\\IndirizzoServer.txt", "prima riga;\r\nseconda\r\n");
    const auto& form = dynamic_cast<const IndirizzoVaboSuServer&>(gui.form(kForm));
    EXPECT_EQ(ado::toText(form.Leggi_Server()), "prima riga;");
    posto.removeFile("C:\\vabo\\IndirizzoServer.txt");
    EXPECT_THROW(form.Leggi_Server(), platform::FileError);
}

TEST_F(IndirizzoVaboForm, AFileThatCanNotBeWrittenIsToldAndThoseAheadOfItStand) {
    apri();
    const Puntatori prima = puntatori(posto);
    impedisci(posto, "IndirizzoVabodati.txt");
    attendiScelta("C:\\Nuova", true);
    script.expectMessage("Path/File access error");
    premi();
    const Puntatori nuovi = puntatoriDi("C:\\Nuova");
    const Puntatori adesso = puntatori(posto);
    for (std::size_t i = 0; i < nuovi.size(); ++i) {
        if (i != 3) {
            EXPECT_EQ(adesso[i], i < 3 ? nuovi[i] : prima[i]);
        }
    }
    EXPECT_TRUE(gui.isVisible(kForm));
}

TEST_F(IndirizzoVaboForm, TheKeyboardAlonePicksAndCloses) {
    apri();
    attendiScelta("C:\\Tasti", true);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Tasti"));
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(pagina.focus(), "Command7");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(IndirizzoVaboForm, ThePickNeedsNoServer) {
    apri();
    DbAzienda.Close();
    posto.putFile("C:\\vabo\\IndirizzoServer.txt", "Driver=SQL Server;Server=127.0.0.1,9;UID=sa;PWD=x;\r\n");
    attendiScelta("C:\\Nuova", true);
    premi();
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Nuova"));
}

} // namespace
} // namespace vabo
