#include "app/Forms.h"
#include "support/Gui.h"
#include "support/Processes.h"
#include "support/TestWorkstation.h"

#include <csignal>

namespace {

TEST(Program, KnowsItsFormsByTheirExactNames) {
    support::TestWorkstation workstation;
    support::Gui gui;
    app::registerForms(gui.forms());
    EXPECT_TRUE(gui.forms().show("FormRefreshLinks"));
    EXPECT_FALSE(gui.forms().show("formrefreshlinks"));
    EXPECT_FALSE(gui.forms().show(""));
}

TEST(Program, RunsUntilItIsTerminated) {
    const support::TestWorkstation workstation;
    support::HelperProcess program("vabo", {},
                                   {{"VABO_DRIVE_C", workstation.driveC().root().string()},
                                    {"QT_QPA_PLATFORM", "offscreen"},
                                    {"QT_LOGGING_RULES", "vabo.sql.debug=true"}});
    ASSERT_GT(program.pid(), 0);
    ASSERT_EQ(::kill(static_cast<pid_t>(program.pid()), SIGTERM), 0);
    EXPECT_EQ(program.finish(), -1) << "ended by the signal alone";
}

TEST(Program, StandsWithItsHiddenStartFormWhenTheLastFormIsClosed) {
    const support::TestWorkstation workstation;
    support::HelperProcess program(
        "program_probe", {},
        {{"VABO_DRIVE_C", workstation.driveC().root().string()}, {"QT_QPA_PLATFORM", "offscreen"}});
    EXPECT_EQ(program.readLine(), "closed");
    EXPECT_EQ(program.readLine(), "running with the start form");
    EXPECT_EQ(program.finish(), 0);
}

} // namespace
