// What the desktop's menu starts, on a machine where the program has just been installed.

#include "desktop/AtTheDesktop.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

class PrimoAvvio : public AtTheDesktop {
protected:
    void startFromTheMenu(const fs::path& driveC) {
        auto environment = user().display().environment();
        environment["VABO_DRIVE_C"] = driveC.string();
        program = std::make_unique<support::HelperProcess>("vabo-start", std::vector<std::string>{}, environment);
    }
    std::string running() const {
        return fs::read_symlink("/proc/" + std::to_string(program->pid()) + "/exe").filename().string();
    }

    static constexpr const char* kOffer = "VaBo";
    std::unique_ptr<support::HelperProcess> program;
};

TEST_F(PrimoAvvio, YesLeadsToTheLoginOfTheSample) {
    const support::TemporaryFolder driveC;
    startFromTheMenu(driveC.path());
    user().awaitWindow(kOffer);
    user().look("question");
    EXPECT_EQ(running(), "vabo-start");
    user().answerBox("Return");
    user().awaitWindow(kLogin);
    EXPECT_EQ(running(), "vabo");
    user().enter({U"amministratore", U"primavera"});
    user().awaitWindow(kConsole);
}

TEST_F(PrimoAvvio, NoEndsItAndLeavesTheMachineAsItIs) {
    const support::TemporaryFolder driveC;
    startFromTheMenu(driveC.path());
    user().awaitWindow(kOffer);
    user().press("Tab");
    user().answerBox("Return");
    EXPECT_EQ(program->finish(), 1);
    EXPECT_TRUE(fs::is_empty(driveC.path()));
}

TEST_F(PrimoAvvio, AWorkstationThatIsSetUpIsStartedWithoutAQuestion) {
    startFromTheMenu(workstation.driveC().root());
    user().awaitWindow(kLogin);
    EXPECT_EQ(running(), "vabo");
}

} // namespace
