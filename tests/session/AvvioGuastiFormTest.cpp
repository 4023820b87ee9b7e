// The start where something on its way fails, and what it shows meanwhile.

#include "ado/Error.h"
#include "rights/AbilitazioneUtente.h"
#include "session/Avviamento.h"
#include "session/FormFixture.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace {

using namespace vabo;
using support::kCompany;

using AvvioGuasti = FormTest;

constexpr const char* kMemory = "min memory per query";

/// Refuses the server's configuration, as a server does where the login may not configure it.
class NoRightToConfigure {
public:
    NoRightToConfigure() {
        ado::setStatementRecorder([this](const std::string& text) {
            sent.push_back(text);
            if (text.find(kMemory) != std::string::npos) {
                throw ado::Error(ado::kUnspecified, "You do not have permission to run the RECONFIGURE statement.");
            }
        });
    }
    NoRightToConfigure(const NoRightToConfigure&) = delete;
    NoRightToConfigure& operator=(const NoRightToConfigure&) = delete;
    ~NoRightToConfigure() { ado::setStatementRecorder({}); }

    long count(const std::string& part) const {
        return std::count_if(sent.begin(), sent.end(),
                             [&](const std::string& text) { return text.find(part) != std::string::npos; });
    }
    std::vector<std::string> sent;
};

TEST_F(AvvioGuasti, ACompanyThatCanNotBeOpenedGivesTheConsoleWithoutALoginInSilence) {
    breakDatabase(kCompany, "no database");
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_TRUE(gui.forms().isLoaded("Avvio"));
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
    EXPECT_FALSE(DbAzienda.IsOpen());
    EXPECT_EQ(IdSede, 0);
    EXPECT_EQ(gui.text("Avvio", "Label1"), "DataBase :   " + companyName());
    EXPECT_TRUE(script.shown().empty());
    EXPECT_EQ(end.ended(), 0);
}

TEST_F(AvvioGuasti, AServerThatMayNotBeConfiguredIsPreparedAllTheSame) {
    PrendiAziendaDelTerminale();
    DbTemp.Close();
    ASSERT_TRUE(DbAzienda.IsOpen());
    const NoRightToConfigure server;
    PreparaServer();
    EXPECT_EQ(server.count(kMemory), 1);
    EXPECT_EQ(server.count("Select * from link_programma where dbname like 'VaBoDatiAurora'"), 1);
    EXPECT_EQ(IndirizzoMdf, controlValue("select IndirizzoMdf from link_programma where dbname = 'VaBoDatiAurora'"));
    EXPECT_TRUE(DbTemp.IsOpen());
}

TEST_F(AvvioGuasti, AServerThatMayNotBeConfiguredLeadsToTheLogin) {
    const NoRightToConfigure server;
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(server.count(kMemory), 1);
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_EQ(workstation.value(support::kTemporaryDatabase, "select Version from Version"), "1");
    EXPECT_TRUE(script.shown().empty());
}

/// What the labels of a form showed when they were painted.
class PaintedLabels : public QObject {
public:
    explicit PaintedLabels(std::string form) : form_(std::move(form)) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* label = event->type() == QEvent::Paint ? qobject_cast<const QLabel*>(watched) : nullptr;
        if (label != nullptr && label->window()->objectName().toStdString() == form_) {
            texts.push_back(label->text().toStdString());
        }
        return false;
    }
    std::vector<std::string> texts;

private:
    std::string form_;
};

TEST_F(AvvioGuasti, TheDatabaseIsPaintedBeforeTheFirstSlowStep) {
    const PaintedLabels painted("Avvio");
    std::vector<std::string> before;
    bool first = true;
    ado::setStatementRecorder([&](const std::string& /*text*/) {
        if (gui.isVisible("Avvio") && first) {
            first = false;
            before = painted.texts;
        }
    });
    gui.forms().show("Avvio");
    ado::setStatementRecorder({});
    EXPECT_FALSE(first);
    EXPECT_NE(std::find(before.begin(), before.end(), "DataBase :   " + companyName()), before.end());
}

TEST_F(AvvioGuasti, TheHyphenOfTheMachinesNameIsAnUnderscoreInTheFilesOfACleanWorkstation) {
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "About");
    for (const char* file : {"C:\\vabo\\NomeServerLocal.txt", "C:\\vabo\\Leggi_ServerLocal.txt"}) {
        EXPECT_EQ(workstation.fileText(file), "POSTO_7\\sqlexpress\r\n") << file;
    }
}

TEST_F(AvvioGuasti, TheSharedRecordsetsAreTakenBackBehindTheBranch) {
    PrendiAziendaDelTerminale();
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    ApriSedeDiAvvio();
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
}

} // namespace
