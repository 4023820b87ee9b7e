// What the desktop's menu starts, on a machine where the program has just been installed.

#include "desktop/AtTheDesktop.h"
#include "os/Machine.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

class PrimoAvvio : public AtTheDesktop {
protected:
    void startFromTheMenu(const fs::path& driveC, const std::vector<std::string>& arguments = {}) {
        auto environment = user().display().environment();
        environment["VABO_DRIVE_C"] = driveC.string();
        program = std::make_unique<support::HelperProcess>("vabo-start", arguments, environment);
    }
    std::string running() const {
        return fs::read_symlink("/proc/" + std::to_string(program->pid()) + "/exe").filename().string();
    }

    /// The arguments of the running program, each with a NUL behind it.
    std::string arguments() const {
        std::ifstream stream("/proc/" + std::to_string(program->pid()) + "/cmdline");
        std::string all{std::istreambuf_iterator<char>(stream), {}};
        return all.substr(all.find('\0') + 1);
    }

    static constexpr const char* kBox = "VaBo";
    std::unique_ptr<support::HelperProcess> program;
};

TEST_F(PrimoAvvio, YesLeadsToTheLoginOfTheSample) {
    const support::TemporaryFolder driveC;
    startFromTheMenu(driveC.path(), {"-style", "fusion"});
    user().awaitWindow(kBox);
    user().look("question");
    EXPECT_EQ(running(), "vabo-start");
    user().answerBox("Return");
    user().awaitWindow(kLogin);
    EXPECT_EQ(running(), "vabo");
    EXPECT_EQ(arguments(), std::string("-style\0fusion\0", 14)) << "the toolkit's options are handed on";
    user().enter({U"amministratore", U"primavera"});
    user().awaitWindow(kConsole);
}

TEST_F(PrimoAvvio, NoEndsItAndLeavesTheMachineAsItIs) {
    const support::TemporaryFolder driveC;
    startFromTheMenu(driveC.path());
    user().awaitWindow(kBox);
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

TEST_F(PrimoAvvio, WithoutTheConsoleBesideItItSaysSo) {
    const support::TemporaryFolder alone;
    const fs::path copy = alone.path() / "vabo-start";
    fs::copy_file(os::programFile().parent_path() / "vabo-start", copy);
    auto environment = user().display().environment();
    environment["VABO_DRIVE_C"] = workstation.driveC().root().string();
    support::HelperProcess process(copy.string(), {}, environment);
    user().awaitWindow(kBox);
    user().look("not_started");
    user().answerBox("Return");
    EXPECT_EQ(process.finish(), 1);
}

} // namespace
