#include "kit/Regole.h"

#include "ado/Error.h"
#include "platform/DriveC.h"
#include "support/DialogScript.h"
#include "support/EndOfProcess.h"
#include "support/LogLines.h"

#include <QLoggingCategory>
#include <QString>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using support::LogLines;
using vabo::oFine;
using vabo::riesce;
using vabo::salta;
using vabo::vera;

void fails() {
    throw ado::Error(ado::kObjectClosed);
}

TEST(Regole, AFailingStatementIsSkippedAndTheNextOneRuns) {
    int ran = 0;
    salta([&] { ++ran; });
    salta([&] {
        fails();
        ran += 100;
    });
    salta([&] { ++ran; });
    EXPECT_EQ(ran, 2);
}

TEST(Regole, AFailingTestCountsAsTrue) {
    EXPECT_TRUE(vera([] { return true; }));
    EXPECT_FALSE(vera([] { return false; }));
    EXPECT_TRUE(vera([]() -> bool { throw ado::Error(ado::kObjectClosed); }));
    EXPECT_TRUE(vera([]() -> bool { throw std::runtime_error("x"); }));
}

TEST(Regole, AFailureSendsToTheStepOfRecovery) {
    EXPECT_TRUE(riesce([] {}));
    EXPECT_FALSE(riesce([] { fails(); }));
}

TEST(Regole, TheDescriptionIsTheErrorsOwn) {
    EXPECT_EQ(vabo::Descrizione(ado::Error(ado::kObjectClosed)), "Operation is not allowed when the object is closed.");
    EXPECT_EQ(vabo::Descrizione(platform::FileError(53)), "File not found");
    EXPECT_EQ(vabo::Descrizione(std::runtime_error("altro")), "altro");
}

TEST(Regole, AnErrorIsShownAndEndsTheProcess) {
    support::DialogScript script;
    support::EndOfProcess end;
    script.expectMessage("Operation is not allowed when the object is closed.");
    EXPECT_TRUE(end.endedBy([] { oFine([] { fails(); }); }));
    EXPECT_EQ(end.ended(), 1);
}

TEST(Regole, WithoutAnErrorNothingIsShownAndNothingEnds) {
    support::DialogScript script;
    support::EndOfProcess end;
    EXPECT_FALSE(end.endedBy([] { oFine([] {}); }));
    EXPECT_EQ(end.ended(), 0);
}

TEST(Regole, TheEndOfTheProcessPassesThroughEveryRule) {
    support::EndOfProcess end;
    EXPECT_TRUE(end.endedBy([] { salta([] { platform::TerminaProcesso(); }); }));
    EXPECT_TRUE(end.endedBy([] { vera([]() -> bool { platform::TerminaProcesso(); }); }));
    EXPECT_TRUE(end.endedBy([] { riesce([] { platform::TerminaProcesso(); }); }));
    EXPECT_TRUE(end.endedBy([] { oFine([] { platform::TerminaProcesso(); }); }));
    EXPECT_EQ(end.ended(), 4);
}

TEST(Regole, WhatIsSkippedIsSilentByDefault) {
    const LogLines log;
    salta([] { fails(); });
    EXPECT_TRUE(LogLines::lines().empty());
}

TEST(Regole, WhatIsSkippedIsToldWhereTheLogIsTurnedOn) {
    const LogLines log;
    QLoggingCategory::setFilterRules("vabo.skipped=true");
    salta([] { throw ado::Error(ado::kObjectClosed).in("Close"); });
    vera([]() -> bool { throw platform::FileError(53); });
    ASSERT_EQ(LogLines::lines().size(), 2U);
    EXPECT_EQ(LogLines::lines()[0],
              "vabo.skipped: Operation is not allowed when the object is closed. (3704) in Close");
    EXPECT_EQ(LogLines::lines()[1], "vabo.skipped: File not found");
}

TEST(Regole, TheLogKeepsStatementsToItselfSinceTheyMayHoldAPassword) {
    const LogLines log;
    QLoggingCategory::setFilterRules("vabo.skipped=true");
    salta([] { throw ado::Error(-1, "Refused.", "42000", 102, "set PaswUtente = 'primavera'"); });
    ASSERT_EQ(LogLines::lines().size(), 1U);
    EXPECT_EQ(LogLines::lines()[0].find("primavera"), std::string::npos);
}

} // namespace
