#include "support/Processes.h"

#include "os/FileLock.h"
#include "os/Paths.h"
#include "support/Capabilities.h"
#include "support/SystemProcesses.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

using support::HelperProcess;

TEST(Processes, AHelperAnswersLineByLine) {
    HelperProcess helper("support_echo", {"first"}, {{"SUPPORT_ECHO", "from the environment"}});
    EXPECT_EQ(helper.readLine(), "first");
    EXPECT_EQ(helper.readLine(), "from the environment");
    helper.writeLine("ciao");
    EXPECT_EQ(helper.readLine(), "ciao");
    EXPECT_GT(helper.pid(), 0);
}

TEST(Processes, TheExitCodeIsGivenBack) {
    HelperProcess asked("support_echo");
    asked.writeLine("exit");
    EXPECT_EQ(asked.finish(), 3);

    HelperProcess atTheEndOfItsInput("support_echo");
    EXPECT_EQ(atTheEndOfItsInput.finish(), 0);
}

TEST(Processes, AKilledHelperIsGoneAndSaysNothingMore) {
    HelperProcess helper("support_echo");
    helper.kill();
    EXPECT_EQ(helper.pid(), 0);
    EXPECT_EQ(helper.finish(), -1);
    EXPECT_EQ(helper.readLine(), std::nullopt);
}

TEST(Processes, AHelperRunsUntilItIsAskedToEnd) {
    VABO_NEEDS(support::systemCapabilities().askingToEnd);
    HelperProcess helper("support_echo");
    EXPECT_TRUE(helper.isRunning());
    helper.terminate();
    EXPECT_EQ(helper.finish(), -1);
    EXPECT_FALSE(helper.isRunning());
}

TEST(Processes, AllOutputCanBeReadAtOnce) {
    HelperProcess helper("support_echo", {"one", "two"});
    EXPECT_EQ(helper.readAll(), "one\ntwo\n");
}

TEST(Processes, AFrozenHelperIsSilentUntilItIsThawed) {
    HelperProcess helper("support_echo", {"first"});
    ASSERT_EQ(helper.readLine(), "first");
    helper.freeze();
    helper.writeLine("ciao");
    const auto start = std::chrono::steady_clock::now();
    constexpr std::chrono::milliseconds kAWhile{300};
    const auto thaw = std::async(std::launch::async, [process = helper.pid(), kAWhile] {
        std::this_thread::sleep_for(kAWhile);
        support::thaw(process);
    });
    EXPECT_EQ(helper.readLine(), "ciao");
    EXPECT_GE(std::chrono::steady_clock::now() - start, kAWhile);
}

TEST(Processes, AHelperDiesWithATestThatCrashes) {
    const support::TemporaryFolder folder;
    const auto file = folder.path() / "held";
    HelperProcess test("support_orphan", {os::utf8Of(file)});
    ASSERT_EQ(test.readLine(), "held") << "by its helper";
    os::FileLock lock(file);
    ASSERT_FALSE(lock.tryExclusive(0));
    test.kill();
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    bool free = false;
    while (!free && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        free = lock.tryExclusive(0);
    }
    EXPECT_TRUE(free) << "the helper lives on";
}
