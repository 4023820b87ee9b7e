#include "support/Processes.h"

#include <gtest/gtest.h>

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

TEST(Processes, AllOutputCanBeReadAtOnce) {
    HelperProcess helper("support_echo", {"one", "two"});
    EXPECT_EQ(helper.readAll(), "one\ntwo\n");
}
