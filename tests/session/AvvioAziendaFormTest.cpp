#include "controls/DataCombo.h"
#include "controls/RecordedForm.h"
#include "dblife/RegistraFixture.h"
#include "session/Avvio_Azienda.h"
#include "session/FormFixture.h"
#include "session/TreatForms.h"
#include "support/RecordedDataSources.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class AvvioAziendaForm : public FormTest {
protected:
    AvvioAziendaForm() { NomeTerminale = support::kTerminalName; }
    void show() {
        gui.forms().show("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
    }
    controls::DataCombo& list() { return gui.find<controls::DataCombo>("Avvio_Azienda", "DataCombo1"); }
    /// Adds a form of that name whose Unload takes it off the stack, as that of every form on the stack does.
    void build(const char* name) {
        gui.forms().add(name, [this, name] {
            return std::make_unique<RecordedForm>(name, log,
                                                  RecordedForm::Events{.unload = [](RecordedForm&) { ChiudiForm(); }});
        });
    }
    void pick(const std::string& database) { gui.pick("Avvio_Azienda", "DataCombo1", companyName(database)); }
    /// The registry's call that configures that company's main data source.
    std::vector<std::string> configurationOf(const std::string& database) const {
        const auto both = registrazione("Tlv_Server", database, "Dati " + companyName(database), NomeServer);
        return {both[2], both[3]};
    }
    std::string lastCompany() const {
        return controlValue(std::string("select ultimo from link_programmaTerminale where Nometerminale = '") +
                            support::kTerminalName + "'");
    }
};

TEST_F(AvvioAziendaForm, HasItsTitleAndItsThreeWays) {
    show();
    EXPECT_EQ(gui.form("Avvio_Azienda").windowTitle(), "Gestione azienda");
    EXPECT_EQ(gui.text("Avvio_Azienda", "Command1"), "Dati Generali Azienda");
    EXPECT_EQ(gui.text("Avvio_Azienda", "Command2"), "Amministrazione Utenti");
    EXPECT_EQ(gui.text("Avvio_Azienda", "cmdClose"), "Morlan");
}

TEST_F(AvvioAziendaForm, ListsTheCompaniesByNumberAndShowsTheOpenOne) {
    show();
    ASSERT_EQ(list().count(), 2);
    EXPECT_EQ(list().itemText(0).toStdString(), companyName(kCompany));
    EXPECT_EQ(list().itemText(1).toStdString(), companyName(kOtherCompany));
    EXPECT_EQ(list().Text(), companyName(kCompany));
    EXPECT_EQ(list().BoundText(), textOf(idOf(kCompany)));
    EXPECT_EQ(IdAziendaScelta, idOf(kCompany));
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(AvvioAziendaForm, ReadsTheListWithItsStatement) {
    const support::StatementRecorder recorder;
    show();
    EXPECT_EQ(recorder.count("select id,NomeAzienda,Stringa_connessione_sql,tlv_access,tlv_sql,wzzip,wzunzip,Nserver,"
                             "dbname,nRoot,Npassw from link_programma Order by id"),
              2)
        << "once to find the row to show, once for the whole list";
}

TEST_F(AvvioAziendaForm, ShowsTheTerminalsCompany) {
    setTerminal(support::kTerminalName, idOf(kOtherCompany));
    show();
    EXPECT_EQ(list().Text(), companyName(kOtherCompany));
    EXPECT_EQ(NomeDatabase, kOtherCompany);
}

TEST_F(AvvioAziendaForm, AChoiceThatGaveWayBecomesTheTerminals) {
    IdAziendaScelta = 42;
    show();
    EXPECT_EQ(IdAziendaScelta, idOf(kCompany));
    EXPECT_EQ(list().Text(), companyName(kCompany));
}

TEST_F(AvvioAziendaForm, WithoutANumberOfTheTerminalItShowsTheCompanyByItsName) {
    // "0" counts as an empty name, so no company is taken up.
    NomeTerminale = "0";
    setTerminal("0", 0);
    noCompanyDatabases();
    DbControllo.Open(server + "DATABase=vabodatiazienda");
    DbControllo.Close();
    NomeAzienda = companyName(kOtherCompany);
    IdAziendaScelta = 7;
    script.expectMessage("Caricare il nome del PC!");
    show();
    EXPECT_EQ(list().Text(), companyName(kOtherCompany));
    EXPECT_EQ(IdAziendaScelta, 7) << "nothing took its place";
}

TEST_F(AvvioAziendaForm, IsTheBottomOfTheStack) {
    PilaForm = {"Avvio_Azienda", "Login"};
    CimaForm = 1;
    show();
    EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"});
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(AvvioAziendaForm, ACompanyPickedByTheKeyboardIsOpened) {
    show();
    pick(kOtherCompany);
    EXPECT_EQ(list().Text(), companyName(kOtherCompany));
    EXPECT_EQ(NomeDatabase, kOtherCompany);
    EXPECT_EQ(NomeAzienda, companyName(kOtherCompany));
    EXPECT_EQ(IdAziendaScelta, idOf(kOtherCompany));
    EXPECT_EQ(StringaAziendaCopia, StringaAzienda);
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_NE(IdSede, 0) << "the branch of the new company is read";
}

TEST_F(AvvioAziendaForm, APickedCompanyIsTheTerminalsAtTheNextStart) {
    show();
    pick(kOtherCompany);
    EXPECT_EQ(lastCompany(), textOf(idOf(kOtherCompany)));
    gui.forms().unload("Avvio_Azienda");
    AzzeraVariabili();
    gui.forms().show("Avvio");
    EXPECT_EQ(NomeDatabase, kOtherCompany);
}

TEST_F(AvvioAziendaForm, APickedCompanyIsConfiguredOnceMoreAsTheMainDataSource) {
    show();
    const support::RecordedDataSources registry;
    pick(kOtherCompany);
    ASSERT_EQ(registry.calls().size(), 14U) << "after the three of the taking up";
    EXPECT_EQ(std::vector(registry.calls().end() - 2, registry.calls().end()), configurationOf(kOtherCompany));
}

TEST_F(AvvioAziendaForm, TheMainDataSourceIsConfiguredAheadOfTheGeneralTables) {
    const support::RecordedDataSources registry;
    std::size_t callsAtLoad = 0;
    gui.forms().add("Avvio_Morlan", [&] {
        return std::make_unique<RecordedForm>("Avvio_Morlan", log, RecordedForm::Events{.load = [&](RecordedForm&) {
                                                  callsAtLoad = registry.calls().size();
                                              }});
    });
    show();
    ASSERT_EQ(registry.calls().size(), 12U);
    gui.click("Avvio_Azienda", "cmdClose");
    ASSERT_EQ(registry.calls().size(), 14U);
    EXPECT_EQ(callsAtLoad, 14U);
    EXPECT_EQ(std::vector(registry.calls().end() - 2, registry.calls().end()), configurationOf(kCompany));
}

TEST_F(AvvioAziendaForm, ARegistryThatRefusesKeepsNobodyFromTheGeneralTables) {
    build("Avvio_Morlan");
    support::RecordedDataSources registry;
    registry.refusesRegistration = true;
    show();
    gui.click("Avvio_Azienda", "cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(AvvioAziendaForm, TheOtherWaysRegisterNothing) {
    build("frmDatiAzienda");
    show();
    const support::RecordedDataSources registry;
    gui.click("Avvio_Azienda", "Command1");
    EXPECT_EQ(gui.visibleForms(), "frmDatiAzienda");
    EXPECT_TRUE(registry.calls().empty());
}

TEST_F(AvvioAziendaForm, AClickOnTheTextOpensNothing) {
    show();
    list().setText(companyName(kOtherCompany));
    QTest::mouseClick(list().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(lastCompany(), textOf(idOf(kCompany)));
}

TEST_F(AvvioAziendaForm, WhatWasTypedIntoTheListGivesWayToTheOpenCompany) {
    show();
    const auto typed = [this] {
        gui.typeInto("Avvio_Azienda", "DataCombo1", companyName(kOtherCompany));
        list().completer()->popup()->hide();
        gui.form("Avvio_Azienda").activateWindow();
        gui.waitForFront("Avvio_Azienda");
        ASSERT_EQ(list().Text(), companyName(kOtherCompany));
    };
    typed();
    gui.press(Qt::Key_Escape);
    EXPECT_EQ(list().Text(), companyName(kCompany));
    list().lineEdit()->selectAll();
    typed();
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(list().Text(), companyName(kCompany));
    EXPECT_EQ(NomeDatabase, kCompany);
}

TEST_F(AvvioAziendaForm, ItsCommandsHaveMnemonics) {
    build("Avvio_Morlan");
    show();
    EXPECT_EQ(gui.mnemonics("Avvio_Azienda"), "ADM");
    QTest::keyClick(gui.form("Avvio_Azienda").windowHandle(), Qt::Key_M, Qt::AltModifier);
    support::Gui::waitFor("the general tables", [this] { return gui.visibleForms() == "Avvio_Morlan"; });
}

TEST_F(AvvioAziendaForm, TheSecondOfTwoQuickClicksOpensNothingMore) {
    build("Avvio_Morlan");
    show();
    QWidget& button = gui.find("Avvio_Azienda", "cmdClose");
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan"}));
    gui.form("Avvio_Morlan").close();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(AvvioAziendaForm, ACompanyWithoutALocalFileIsOpenedInSilence) {
    control("update link_programma set tlv_sql = ''");
    show();
    pick(kOtherCompany);
    EXPECT_EQ(NomeDatabase, kOtherCompany);
}

TEST_F(AvvioAziendaForm, ThePickedCompanysLocalFileIsOpened) {
    show();
    EXPECT_EQ(DbLocale, nullptr);
    pick(kOtherCompany);
    ASSERT_NE(DbLocale, nullptr);
    EXPECT_EQ(DbLocale->ConnectionString(),
              "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\tlv_locale_ponte.mdb;");
}

TEST_F(AvvioAziendaForm, ACompanyWithoutADatabaseIsPickedWithTheTextThatStandsForNone) {
    show();
    control("insert into link_programma (NomeAzienda, tlv_sql) values ('Senza archivio', 'senza.mdb')");
    gui.forms().unload("Avvio_Azienda");
    show();
    gui.pick("Avvio_Azienda", "DataCombo1", "Senza archivio");
    EXPECT_EQ(StringaAzienda, "Provider=SQLOLEDB;Data Source=" + workstation.serverName() +
                                  ";Integrated Security=SSPIDATABase=vabodati");
    EXPECT_EQ(StringaAziendaCopia, StringaAzienda) << "the taking up leaves it with the company before";
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(gui.text("Avvio_Azienda", "aziendaAperta"), "Senza archivio");
}

class BrokenControlDatabase : public AvvioAziendaForm, public testing::WithParamInterface<const char*> {};

TEST_P(BrokenControlDatabase, LetsAPickLeaveTheOpenCompanyOpenWithoutAWord) {
    show();
    const std::string name = companyName(kOtherCompany);
    const std::string open = companyName(kCompany);
    breakDatabase(support::kControlDatabase, GetParam());
    gui.pick("Avvio_Azienda", "DataCombo1", name);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(gui.text("Avvio_Azienda", "aziendaAperta"), open);
    ASSERT_TRUE(DbAzienda.IsOpen());
    EXPECT_NO_THROW(DbAzienda.Execute("update Sede set idsede = idsede"));
    EXPECT_EQ(end.ended(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, BrokenControlDatabase, testing::Values("no database", ""),
                         [](const auto& test) { return std::string(*test.param == '\0' ? "Nothing" : "Garbage"); });

TEST_F(AvvioAziendaForm, ACompanyWhoseRowHasGoneGivesWayToTheFirst) {
    show();
    const std::string name = companyName(kOtherCompany);
    control(std::string("delete from link_programma where dbname = '") + kOtherCompany + "'");
    gui.pick("Avvio_Azienda", "DataCombo1", name);
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(list().Text(), name) << "the list still shows the row that was clicked";
}

TEST_F(AvvioAziendaForm, OnlyAnAdministratorOpensTheUsers) {
    build("Login");
    show();
    script.expectMessage("Utente non abilitato! Contattare l'amministratore di sistema");
    gui.click("Avvio_Azienda", "Command2");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(AvvioAziendaForm, AnAdministratorsWayToTheUsersUnloadsTheConsoleAndComesBackByALoad) {
    build("Login");
    DirittiUtente.Administrator = kVero;
    show();
    gui.click("Avvio_Azienda", "Command2");
    EXPECT_EQ(gui.visibleForms(), "Login");
    EXPECT_FALSE(gui.forms().isLoaded("Avvio_Azienda"));
    EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Login"}));
    const support::StatementRecorder recorder;
    gui.form("Login").close();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(recorder.holding("from link_programma Order by id").empty());
    EXPECT_EQ(CimaForm, 0);
}

TEST_F(AvvioAziendaForm, TheOtherWaysHideTheConsoleAndBringItBackAsItWas) {
    for (const auto& [button, form] :
         {std::pair{"Command1", "frmDatiAzienda"}, std::pair{"cmdClose", "Avvio_Morlan"}}) {
        build(form);
        show();
        gui.click("Avvio_Azienda", button);
        EXPECT_EQ(gui.visibleForms(), form);
        EXPECT_TRUE(gui.forms().isLoaded("Avvio_Azienda"));
        EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", form}));
        const support::StatementRecorder recorder;
        gui.form(form).close();
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_TRUE(recorder.texts().empty()) << "no other Load";
    }
}

TEST_F(AvvioAziendaForm, AWayThatIsNotBuiltLeavesTheConsoleInPlace) {
    support::Gui bare;
    bare.forms().add("Avvio_Azienda", [] { return std::make_unique<Avvio_Azienda>(); });
    DirittiUtente.Administrator = kVero;
    bare.forms().show("Avvio_Azienda");
    for (const char* button : {"Command1", "Command2", "cmdClose"}) {
        bare.click("Avvio_Azienda", button);
        EXPECT_EQ(bare.visibleForms(), "Avvio_Azienda") << button;
        EXPECT_EQ(CimaForm, 0) << button;
    }
}

TEST_F(AvvioAziendaForm, TheKeyboardReachesEveryCommand) {
    build("Avvio_Morlan");
    show();
    EXPECT_EQ(gui.focus(), "Avvio_Azienda.DataCombo1");
    for (const char* next : {"Command1", "Command2", "cmdClose"}) {
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(gui.focus(), std::string("Avvio_Azienda.") + next);
    }
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(AvvioAziendaForm, AnErrorOfTheListIsTold) {
    show();
    auto& source = gui.find<controls::DataControl>("Avvio_Azienda", "datPrimaryRS");
    script.expectMessage("Data error event hit err:" + ado::Error(ado::kNoCurrentRecord).description());
    source.byUser([] { throw ado::Error(ado::kNoCurrentRecord); });
}

TEST_F(AvvioAziendaForm, NonsenseInTheListOpensNothing) {
    show();
    for (const char* text : {"' or 1=1 --", "99", "%", "\x01\x7f", "🗝"}) {
        list().setText("");
        gui.typeInto("Avvio_Azienda", "DataCombo1", text);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(NomeDatabase, kCompany) << text;
    }
}

TEST_F(AvvioAziendaForm, ClosingItLeavesNothingOnTheScreen) {
    show();
    gui.form("Avvio_Azienda").close();
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(end.ended(), 0) << "the process goes on";
}

} // namespace
