#include "ado/LinkFile.h"
#include "controls/ProgressBar.h"
#include "dblife/CollegaTabelleLinked.h"
#include "session/FormFixture.h"
#include "support/FormPage.h"

#include <QEvent>

#include <gmock/gmock.h>

namespace {

using namespace vabo;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAurora = "ODBC;DATABASE=VaBoDatiAurora;UID=UID=sa;PWD=;DSN=Tlv_server";
const std::string kPonte = "ODBC;DATABASE=VaBoDatiPonte;UID=UID=sa;PWD=;DSN=Tlv_server";
const std::string kExample = "ODBC;DATABASE=VaBoDati;UID=UID=sa;PWD=;DSN=Tlv_server";
const std::string kTemp = "ODBC;DATABASE=VaBoDatiTemp;UID=;PWD=;DSN=Tlv_Temp";

constexpr const char* kLocale = "C:\\vabo\\Files\\tlv_locale_sql.mdb";
constexpr const char* kLocalePonte = "C:\\vabo\\Files\\tlv_locale_ponte.mdb";
constexpr const char* kReports = "C:\\vabo\\Files\\Tlv_personalizzate.mdb";

/// The refresh of the links on the screen, with the local files of the sample.
class CollegamentiForm : public FormTest {
protected:
    /// The names of the tables whose type or text is this one, in their order.
    std::vector<std::string> tables(const std::string& path, const ado::Value& text) const {
        ado::LinkFile file(workstation.driveC().real(path));
        std::vector<std::string> names;
        for (const ado::LinkFile::Entry& entry : file.entries()) {
            if (entry.type == text || file.provider(entry.id) == text) {
                names.push_back(std::get<std::string>(entry.name.variant()));
            }
        }
        return names;
    }
    void makeFile(const std::string& path, const std::vector<std::string>& links) const {
        ado::LinkFile file = ado::LinkFile::create(workstation.driveC().real(path));
        for (const std::string& name : links) {
            file.add("LINK", name, kExample);
        }
    }
    /// What `look` gives at each table, from the moment at which the form is on the screen.
    std::vector<std::string> atEachTable(const std::function<std::string()>& look) {
        std::vector<std::string> seen;
        gui.forms().show("FormRefreshLinks");
        auto& bar = page.control<controls::ProgressBar>("ProgressBar1");
        QObject::connect(&bar, &QProgressBar::valueChanged, [&] { seen.push_back(look()); });
        CollegaTabelle();
        return seen;
    }

    support::FormPage page{gui, "FormRefreshLinks"};
};

TEST_F(CollegamentiForm, TheStartPointsTheLinksOfTheSampleAtTheCompany) {
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    const auto pointed = tables(kLocale, kAurora);
    EXPECT_EQ(pointed.size(), 28U);
    EXPECT_THAT(pointed, testing::IsSupersetOf({"dbo_conti", "dbo_partitadoppia", "saldi_per_conto"}));
    EXPECT_THAT(tables(kLocale, kExample),
                ElementsAre("dbo_Fattura", "dbo_PiedeFattura", "dbo_ScadenzeFattura", "dbo_TotaliIva", "dbo_Ordine",
                            "dbo_PiedeOrdine", "dbo_Bolla", "dbo_PiedeBolla", "dbo_StampaBolla", "dbo_Offerta",
                            "dbo_PiedeOfferta", "dbo_Chiusura", "dbo_Utile"));
    EXPECT_THAT(tables(kLocale, kTemp), ElementsAre("dbo_LinguaClient", "dbo_Version", "stampa_corrente"));
    EXPECT_THAT(tables(kLocale, ado::Null{}),
                ElementsAre("MSysObjects", "MSysQueries", "opzioni_stampa", "dbo_lavoro_bilancio", "elenco_conti"));
    EXPECT_THAT(tables(kReports, kAurora),
                ElementsAre("dbo_conti", "dbo_partitadoppia", "dbo_Fattura", "donatori_per_anno"));
    EXPECT_THAT(tables(kLocalePonte, kAurora), IsEmpty()) << "the file of the other company";
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_FALSE(gui.forms().isLoaded("FormRefreshLinks"));
}

TEST_F(CollegamentiForm, TheStartOfTheOtherCompanyPointsItsOwnFile) {
    setTerminal(support::kTerminalName, idOf(support::kOtherCompany));
    gui.forms().show("Avvio");
    EXPECT_EQ(tables(kLocalePonte, kPonte).size(), 28U);
    EXPECT_THAT(tables(kLocale, kPonte), IsEmpty());
    EXPECT_EQ(tables(kReports, kPonte).size(), 4U);
}

TEST_F(CollegamentiForm, TheStartPointsTheLinksBetweenTheLanguageAndTheRights) {
    std::vector<std::string> seen;
    ado::setStatementRecorder([&](const std::string& text) {
        if (text == "select * from LinguaClient where id = 1" || text == "select * from [AbilitazioneAccessi]") {
            seen.push_back(tables(kLocale, kAurora).empty() ? text + ", before" : text + ", after");
        }
    });
    gui.forms().show("Avvio");
    ado::setStatementRecorder({});
    ASSERT_GE(seen.size(), 4U);
    const std::string language = "select * from LinguaClient where id = 1, before";
    seen.resize(4);
    EXPECT_THAT(seen, ElementsAre(language, language, language, "select * from [AbilitazioneAccessi], after"));
}

TEST_F(CollegamentiForm, TheStartGoesOnWithoutLocalFiles) {
    for (const char* file : {kLocale, kLocalePonte, kReports}) {
        removeFile(file);
    }
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_FALSE(workstation.driveC().exists(kLocale));
}

TEST_F(CollegamentiForm, TheStartGoesOnWithLocalFilesThatAreNoCatalogs) {
    for (const char* file : {kLocale, kReports}) {
        workstation.putFile(file, "non un catalogo");
    }
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_EQ(workstation.fileText(kLocale), "non un catalogo");
}

TEST_F(CollegamentiForm, ShowsEachTableWhileItStandsOnTheScreen) {
    PercorsoFileLocale = "C:\\vabo\\Files\\prova.mdb";
    makeFile(PercorsoFileLocale, {"dbo_conti", "dbo_fattura", "dbo_stati", "dbo_progetti"});
    const auto seen = atEachTable([&] {
        return page.text("Nome") + " " + std::to_string(page.control<QProgressBar>("ProgressBar1").value()) +
               (gui.isVisible("FormRefreshLinks") ? "" : ", unseen");
    });
    EXPECT_THAT(seen, ElementsAre("CONTI 25", "FATTURA 50", "STATI 75", "PROGETTI 100"));
    EXPECT_EQ(gui.visibleForms(), "");
}

TEST_F(CollegamentiForm, PaintsEachTable) {
    PercorsoFileLocale = "C:\\vabo\\Files\\prova.mdb";
    makeFile(PercorsoFileLocale, {"dbo_conti", "dbo_stati", "dbo_progetti"});
    struct Paints : public QObject {
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                const std::string text = dynamic_cast<QLabel&>(*watched).text().toStdString();
                if (painted.empty() || painted.back() != text) {
                    painted.push_back(text);
                }
            }
            return false;
        }
        std::vector<std::string> painted;
    } paints;
    gui.forms().show("FormRefreshLinks");
    page.control("Nome").installEventFilter(&paints);
    CollegaTabelle();
    EXPECT_THAT(paints.painted, testing::IsSupersetOf({"CONTI", "STATI", "PROGETTI"}));
}

TEST_F(CollegamentiForm, ANameOfManyCharactersOrLinesDoesNotMoveTheWindow) {
    PercorsoFileLocale = "C:\\vabo\\Files\\prova.mdb";
    const std::string longest = "dbo_" + std::string(40, 'x');
    makeFile(PercorsoFileLocale, {"dbo_a", std::string(4000, 'x'), "a\nb\r\nc\td", "<b>conti</b>", longest});
    std::vector<QSize> sizes;
    const auto seen = atEachTable([&] {
        support::Gui::handleEvents();
        sizes.push_back(gui.form("FormRefreshLinks").size());
        return page.text("Nome");
    });
    ASSERT_EQ(seen.size(), 5U);
    EXPECT_THAT(sizes, Each(sizes.front()));
    EXPECT_TRUE(seen[1].starts_with("XXXX") && seen[1].ends_with("…")) << seen[1];
    EXPECT_EQ(seen[2], "A B  C D");
    EXPECT_EQ(seen[3], "<B>CONTI</B>");
    EXPECT_EQ(seen[4], std::string(40, 'X')) << "a name of usual length is shown whole";
}

TEST_F(CollegamentiForm, TheFormOfAnEarlierRunIsNotToldAnything) {
    PercorsoFileLocale = "C:\\vabo\\Files\\prova.mdb";
    makeFile(PercorsoFileLocale, {"dbo_conti"});
    CollegaTabelle();
    support::Gui::handleEvents();
    EXPECT_FALSE(gui.forms().isLoaded("FormRefreshLinks"));
    EXPECT_NO_THROW(CollegaTabellePersonalizzate());
    CollegaTabelle();
    EXPECT_THAT(tables(PercorsoFileLocale, ado::Value("LINK")), ElementsAre("dbo_conti"));
}

} // namespace
