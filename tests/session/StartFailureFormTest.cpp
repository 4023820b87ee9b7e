// The start of the program while its server fails.

#include "session/ApriDbSede.h"
#include "session/FailureFormFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace vabo {
namespace {

class StartFailure : public FailureForm {
protected:
    void expectLogin() {
        gui.forms().show("Avvio");
        gui.waitForFront("About");
        EXPECT_EQ(gui.visibleForms(), "About");
        EXPECT_TRUE(DbAzienda.IsOpen());
        EXPECT_TRUE(DbTemp.IsOpen());
    }
};

class FailureAtStart : public StartFailure, public testing::WithParamInterface<Failure> {};

TEST_P(FailureAtStart, IsToldInItsOwnWordsThenTheProcessEndsAndTheNextStartGoesWell) {
    failing.fail(GetParam());
    const auto pointers = failing.pointerFiles();
    script.expectMessage(descriptionOf(GetParam()));
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(failing.pointerFiles(), pointers);
    EXPECT_EQ(workstation.dataSources(), "");
    failing.repair();
    restart();
    expectLogin();
}

class LocalFailure : public StartFailure, public testing::WithParamInterface<Failure> {};

TEST_P(LocalFailure, OfTheLocalInstanceAloneIsNotToldAndTheLoginComesAfterOneWaitAtMost) {
    const std::string server = *workstation.fileText("C:\\vabo\\IndirizzoServer.txt");
    failing.fail(GetParam());
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", server);
    const auto pointers = failing.pointerFiles();
    support::inOneEvent([&] { gui.forms().show("Avvio"); });
    gui.waitForFront("About");
    EXPECT_EQ(failing.silent.callers(), GetParam() == Failure::Silent ? 1 : 0);
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_FALSE(DbTemp.IsOpen());
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(failing.pointerFiles(), pointers);
    failing.repair();
    EXPECT_TRUE(ApriDbTemp());
}

TEST_P(FailureAtStart, KeepsTheTemporaryDatabaseShutWithoutAWord) {
    ASSERT_TRUE(ApriDbTemp());
    failing.fail(GetParam());
    EXPECT_FALSE(ApriDbTemp());
    EXPECT_FALSE(DbTemp.IsOpen());
    failing.repair();
    EXPECT_TRUE(ApriDbTemp());
}

INSTANTIATE_TEST_SUITE_P(Of, FailureAtStart, testing::ValuesIn(kFailures), kNameOfFailure);

// Both servers are one process: a failure of the process affects both.
INSTANTIATE_TEST_SUITE_P(Of, LocalFailure, testing::Values(Failure::Silent, Failure::WrongPort, Failure::WrongPassword),
                         kNameOfFailure);

TEST_F(StartFailure, WithoutTheControlDatabaseTheServersWordsAreToldAndTheProcessEnds) {
    drop(support::kControlDatabase);
    script.expectMessage("Cannot open database \"vabodatiazienda\" requested by the login. The login failed.");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
}

TEST_F(StartFailure, AtWhateverStatementTheServerEndsOneBoxTellsItTheProcessEndsAndTheNextStartGoesWell) {
    expectLogin(); // makes the temporary database
    restart();
    const support::HeardBoxes boxes;
    const int all = sentDuring([this] { expectLogin(); });
    ASSERT_GT(all, 20);
    const auto pointers = failing.pointerFiles();
    for (int fatal = 1; fatal <= all; ++fatal) {
        SCOPED_TRACE(fatal);
        restart();
        const std::size_t before = boxes.texts.size();
        bool ended = false;
        endAtStatement(fatal, [&] { ended = end.endedBy([&] { gui.forms().show("Avvio"); }); });
        EXPECT_TRUE(ended);
        ASSERT_EQ(boxes.texts.size(), before + 1);
        EXPECT_THAT(boxes.texts.back(), testing::AnyOf(kLinkFailure, kNotLoadable));
        failing.repair();
        EXPECT_EQ(failing.pointerFiles(), pointers);
    }
    restart();
    expectLogin();
}

TEST_F(StartFailure, InTheMiddleOfWhateverAnswerTheWireIsCutOneBoxTellsItTheProcessEndsAndTheNextStartGoesWell) {
    constexpr long kTries = 60;
    const auto wire = failing.wire();
    expectLogin(); // makes the temporary database
    restart();
    wire->mend();
    expectLogin();
    const long all = wire->passed();
    const auto pointers = failing.pointerFiles();
    const support::HeardBoxes boxes;
    for (long turn = 0; turn < kTries; ++turn) {
        SCOPED_TRACE(turn);
        restart();
        const std::size_t before = boxes.texts.size();
        wire->cutAfter(all * turn / kTries);
        EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
        ASSERT_EQ(boxes.texts.size(), before + 1);
        EXPECT_THAT(boxes.texts.back(), testing::AnyOf(kOutOfReach, kLinkFailure, kNotLoadable));
        EXPECT_EQ(failing.pointerFiles(), pointers);
        wire->mend();
    }
    restart();
    expectLogin();
}

} // namespace
} // namespace vabo
