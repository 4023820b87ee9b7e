#include "app/Forms.h"
#include "os/Paths.h"
#include "support/Capabilities.h"
#include "support/Gui.h"
#include "support/Processes.h"
#include "support/TestWorkstation.h"

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
    VABO_NEEDS(support::systemCapabilities().askingToEnd);
    const support::TestWorkstation workstation;
    support::HelperProcess program("vabo", {},
                                   {{"VABO_DRIVE_C", os::utf8Of(workstation.driveC().root())},
                                    {"QT_QPA_PLATFORM", "offscreen"},
                                    {"QT_LOGGING_RULES", "vabo.sql.debug=true"}});
    ASSERT_GT(program.pid(), 0);
    ASSERT_TRUE(program.isRunning());
    program.terminate();
    EXPECT_EQ(program.finish(), -1) << "ended by the signal alone";
}

TEST(Program, StandsWithItsHiddenStartFormWhenTheLastFormIsClosed) {
    VABO_NEEDS(support::systemCapabilities().sourcesOfStartedPrograms);
    const support::TestWorkstation workstation;
    support::HelperProcess program(
        "program_probe", {},
        {{"VABO_DRIVE_C", os::utf8Of(workstation.driveC().root())}, {"QT_QPA_PLATFORM", "offscreen"}});
    EXPECT_EQ(program.readLine(), "closed");
    EXPECT_EQ(program.readLine(), "running with the start form");
    EXPECT_EQ(program.finish(), 0);
}

} // namespace
