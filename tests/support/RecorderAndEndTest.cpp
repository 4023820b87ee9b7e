#include "ado/Connection.h"
#include "support/EndOfProcess.h"
#include "support/StatementRecorder.h"

#include <gtest/gtest.h>

using support::EndOfProcess;
using support::StatementRecorder;

TEST(StatementRecorder, KeepsTheTextsInTheirOrder) {
    StatementRecorder recorder;
    ado::recordStatement("select 1");
    ado::recordStatement("update t set a = 1");
    ado::recordStatement("select 1");

    const std::vector<std::string> texts{"select 1", "update t set a = 1", "select 1"};
    EXPECT_EQ(recorder.texts(), texts);
    EXPECT_EQ(recorder.count("select 1"), 2);
    EXPECT_EQ(recorder.holding("update"), std::vector<std::string>{"update t set a = 1"});
    EXPECT_TRUE(recorder.sentInOrder({"select 1", "select 1"}));
    EXPECT_TRUE(recorder.sentInOrder({"update t set a = 1", "select 1"}));
    EXPECT_FALSE(recorder.sentInOrder({"update t set a = 1", "update t set a = 1"}));
    recorder.clear();
    EXPECT_TRUE(recorder.texts().empty());
}

TEST(StatementRecorder, HearsNothingAfterItsEnd) {
    { const StatementRecorder recorder; }
    ado::recordStatement("select 2");
    const StatementRecorder later;
    EXPECT_TRUE(later.texts().empty());
}

TEST(EndOfProcess, IsCountedAndUnwindsTheCaller) {
    EndOfProcess end;
    bool goneOn = false;
    EXPECT_TRUE(end.endedBy([&] {
        platform::TerminaProcesso();
        goneOn = true;
    }));
    EXPECT_FALSE(goneOn);
    EXPECT_FALSE(end.endedBy([] {}));
    EXPECT_EQ(end.ended(), 1);
}

TEST(EndOfProcessDeathTest, TheRealEndIsAnOrderlyExitCode) {
    EXPECT_EXIT(platform::TerminaProcesso(), testing::ExitedWithCode(0), "");
}
