// The list of companies on the console: what stands in it, and what is typed into it.

#include "controls/DataCombo.h"
#include "session/FormFixture.h"
#include "session/TreatForms.h"
#include "support/Attacks.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class ElencoAziende : public FormTest {
protected:
    ElencoAziende() { NomeTerminale = support::kTerminalName; }
    void show() {
        gui.forms().show("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
    }
    controls::DataCombo& list() { return gui.find<controls::DataCombo>("Avvio_Azienda", "DataCombo1"); }
    /// A workstation whose terminal gives no number, so that the list looks for the company's name.
    void withoutANumber(const std::string& name) {
        NomeTerminale = "0"; // counts as an empty name
        setTerminal("0", 0);
        noCompanyDatabases();
        DbControllo.Open(server + "DATABase=vabodatiazienda");
        DbControllo.Close();
        NomeAzienda = name;
        script.expectMessage("Caricare il nome del PC!");
    }
};

// The name goes into the filter as it stands; the rule of skipping begins behind it.
TEST_F(ElencoAziende, ANameWithAnApostropheMakesNoFilterAndTheErrorIsTold) {
    withoutANumber("L'Aurora");
    PilaForm = {"Avvio_Azienda", "Login"};
    CimaForm = 1;
    script.expectMessage("Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
                         "another.");
    show();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(list().Text(), "");
    EXPECT_EQ(list().count(), 2) << "the list stands";
    EXPECT_EQ(PilaForm.size(), 2U) << "the rest of the load doesn't run";
}

TEST_F(ElencoAziende, ACompanyWithoutANameIsAnEmptyRowThatCanBePicked) {
    control("update link_programma set NomeAzienda = null where dbname = 'VaBoDatiPonte'");
    show();
    ASSERT_EQ(list().count(), 2);
    EXPECT_EQ(list().itemText(1), "");
    EXPECT_EQ(list().Text(), companyName(kCompany));
}

TEST_F(ElencoAziende, TheOpenCompanyWithoutANameIsShownAsNothing) {
    control("update link_programma set NomeAzienda = null where dbname = 'VaBoDatiPonte'");
    setTerminal(support::kTerminalName, idOf(kOtherCompany));
    show();
    EXPECT_EQ(NomeDatabase, kOtherCompany);
    EXPECT_EQ(list().Text(), "");
    EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"}) << "the rest of the load runs";
}

TEST_F(ElencoAziende, AClickOnTheArrowShowsTheListAndOpensNothing) {
    show();
    list().setText(companyName(kOtherCompany)); // the row that a pick would open
    const support::StatementRecorder recorder;
    QTest::mouseClick(&list(), Qt::LeftButton, {}, {list().width() - 6, list().height() / 2});
    support::Gui::waitFor("the list", [this] { return list().view()->isVisible(); });
    list().hidePopup();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(NomeDatabase, kCompany);
}

TEST_F(ElencoAziende, TheNextLoadShowsTheCompanyThatTookOverFromOneThatHasGone) {
    show();
    const std::string name = companyName(kOtherCompany);
    control(std::string("delete from link_programma where dbname = '") + kOtherCompany + "'");
    gui.pick("Avvio_Azienda", "DataCombo1", name);
    ASSERT_EQ(list().Text(), name);
    gui.forms().unload("Avvio_Azienda");
    show();
    EXPECT_EQ(list().count(), 1);
    EXPECT_EQ(list().Text(), companyName(kCompany));
}

TEST_F(ElencoAziende, NoHostileTextOpensACompanyOrSendsAStatement) {
    show();
    const auto companies = workstation.rows(support::kControlDatabase, "select * from link_programma");
    const auto own = terminals();
    const support::StatementRecorder recorder;
    for (const std::string& attack : support::attacks()) {
        SCOPED_TRACE(attack.substr(0, 60));
        constexpr int kTyped = 10;
        const QString text = QString::fromStdString(attack);
        list().setFocus();
        list().lineEdit()->selectAll();
        gui.type(text.left(kTyped).toStdString());
        list().completer()->popup()->hide();
        list().lineEdit()->insert(text.mid(kTyped));
        gui.form("Avvio_Azienda").activateWindow();
        gui.waitForFront("Avvio_Azienda");
        gui.press(Qt::Key_Return);
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(list().Text(), companyName(kCompany)) << "the text gives way to the open company";
    }
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(workstation.rows(support::kControlDatabase, "select * from link_programma"), companies);
    EXPECT_EQ(terminals(), own);
    gui.pick("Avvio_Azienda", "DataCombo1", companyName(kOtherCompany));
    EXPECT_EQ(NomeDatabase, kOtherCompany);
}

TEST_F(ElencoAziende, TheMousePointerIsTheUsualOneBehindTheWayToTheGeneralTables) {
    gui.forms().add("Avvio_Morlan", [] { return std::make_unique<controls::Form>("Avvio_Morlan"); });
    show();
    gui.click("Avvio_Azienda", "cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
