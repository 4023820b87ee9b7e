#include "support/Processes.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

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
    HelperProcess helper("/bin/sleep", {"60"});
    EXPECT_TRUE(helper.isRunning());
    helper.terminate();
    EXPECT_EQ(helper.finish(), -1);
    EXPECT_FALSE(helper.isRunning());
}

TEST(Processes, AllOutputCanBeReadAtOnce) {
    HelperProcess helper("support_echo", {"one", "two"});
    EXPECT_EQ(helper.readAll(), "one\ntwo\n");
}

TEST(Processes, AHelperDiesWithATestThatCrashes) {
    std::array<int, 2> ends{}; // reading from it ends when no process has it open any more
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t test = ::fork();
    if (test == 0) {
        const HelperProcess helper("/bin/sleep", {"60"});
        ::raise(SIGKILL);
    }
    ::close(ends[1]);
    int status = 0;
    ASSERT_EQ(::waitpid(test, &status, 0), test);
    EXPECT_TRUE(WIFSIGNALED(status));
    pollfd end{ends[0], POLLIN, 0};
    EXPECT_EQ(::poll(&end, 1, 30'000), 1) << "the helper lives on";
    ::close(ends[0]);
}
