// The company console while its server fails, and how it works again.

#include "controls/DataCombo.h"
#include "session/FailureFormFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

namespace vabo {
namespace {

using support::kCompany;
using support::kOtherCompany;

class ConsoleFailure : public FailureForm {
protected:
    ConsoleFailure() {
        NomeTerminale = support::kTerminalName;
        open();
    }
    void open() {
        gui.forms().show("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
    }
    void pick(const char* database) { gui.pick("Avvio_Azienda", "DataCombo1", companyName(database)); }
    /// Runs the handler of a pick directly, since the exception for the end of the process can't pass through the
    /// toolkit.
    bool endsByPick(const std::string& name) {
        auto& list = gui.find<controls::DataCombo>("Avvio_Azienda", "DataCombo1");
        list.setText(name);
        return end.endedBy([&] { emit list.Click(controls::DataCombo::List); });
    }
    void expectOpen(const char* database) {
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_EQ(gui.text("Avvio_Azienda", "aziendaAperta"), companyName(database));
        EXPECT_EQ(NomeDatabase, database);
        ASSERT_TRUE(DbAzienda.IsOpen());
        EXPECT_NO_THROW(DbAzienda.Execute("update Sede set idsede = idsede"));
    }
    void openTables() {
        gui.click("Avvio_Azienda", "cmdClose");
        gui.waitForFront("Avvio_Morlan");
        EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    }
    void closeTables() {
        gui.click("Avvio_Morlan", "Command13");
        gui.waitForFront("Avvio_Azienda");
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    }
};

class FailureInList : public ConsoleFailure, public testing::WithParamInterface<Failure> {};

TEST_P(FailureInList, ACompanyPickedCanNotBeLoadedAndTheProcessEndsAfterOneWaitAtMost) {
    const std::string name = companyName(kOtherCompany);
    failing.fail(GetParam());
    const auto pointers = failing.pointerFiles();
    script.expectMessage(kNotLoadable);
    bool ended = false;
    support::inOneEvent([&] { ended = endsByPick(name); });
    EXPECT_TRUE(ended);
    EXPECT_EQ(failing.silent.callers(), GetParam() == Failure::Silent ? 1 : 0);
    EXPECT_EQ(failing.pointerFiles(), pointers);
    failing.repair();
    restart();
    gui.forms().show("Avvio");
    gui.waitForFront("About");
    EXPECT_TRUE(DbAzienda.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Of, FailureInList, testing::ValuesIn(kFailures), kNameOfFailure);

class ServerBack : public ConsoleFailure, public testing::WithParamInterface<Failure> {};

TEST_P(ServerBack, IsReachedAgainByAPickInTheList) {
    failing.fail(GetParam());
    failing.repair();
    for (const char* database : {kOtherCompany, kCompany}) {
        pick(database);
        expectOpen(database);
    }
}

TEST_P(ServerBack, OpensTheGeneralTablesWithTheirDataAgain) {
    failing.fail(GetParam());
    script.expectMessage(GetParam() == Failure::Frozen ? kTimedOut : kLinkFailure);
    openTables();
    EXPECT_EQ(gui.find<controls::DataCombo>("Avvio_Morlan", "DCBItem1").count(), 0);
    failing.repair();
    closeTables();
    openTables();
    EXPECT_GT(gui.find<controls::DataCombo>("Avvio_Morlan", "DCBItem1").count(), 0);
}

INSTANTIATE_TEST_SUITE_P(After, ServerBack, testing::Values(Failure::Ended, Failure::Frozen), kNameOfFailure);

TEST_F(ConsoleFailure, AtWhateverStatementOfAPickTheServerEndsTheProcessEndsOrTheNextPickWorks) {
    const std::string name = companyName(kOtherCompany);
    const int all = sentDuring([&] { EXPECT_FALSE(endsByPick(name)); });
    ASSERT_GT(all, 8);
    const support::HeardBoxes boxes;
    for (int fatal = 1; fatal <= all; ++fatal) {
        SCOPED_TRACE(fatal);
        const std::size_t before = boxes.texts.size();
        bool ended = false;
        endAtStatement(fatal, [&] { ended = endsByPick(name); });
        failing.repair();
        const std::vector<std::string> told(boxes.texts.begin() + static_cast<long>(before), boxes.texts.end());
        EXPECT_EQ(told, ended ? std::vector<std::string>{kNotLoadable} : std::vector<std::string>{});
        if (ended) {
            restart();
            NomeTerminale = support::kTerminalName;
            open();
        }
        pick(kCompany);
        expectOpen(kCompany);
    }
}

TEST_F(ConsoleFailure, TheConsoleLoadedWithoutItsServerEndsTheProcess) {
    restart();
    NomeTerminale = support::kTerminalName;
    failing.fail(Failure::Ended);
    script.expectMessage(kOutOfReach);
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio_Azienda"); }));
}

} // namespace
} // namespace vabo
