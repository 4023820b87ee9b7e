#include "support/Warnings.h"

#include <QtGlobal>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using support::ExpectedWarning;

TEST(Warnings, OneThatNobodyExpectsFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(qWarning("the pen is dry"), "Unexpected warning: the pen is dry");
    EXPECT_NONFATAL_FAILURE(qCritical("the ink is out"), "Unexpected warning: the ink is out");
}

TEST(Warnings, AnExpectedOnePasses) {
    const ExpectedWarning pen("pen");
    const ExpectedWarning ink("ink");
    qWarning("the ink is out");
    qWarning("the pen is dry");
    EXPECT_NONFATAL_FAILURE(qWarning("the paper is wet"), "the paper is wet");
}

TEST(Warnings, AnExpectedOneThatDoesNotComeFailsTheTest) {
    EXPECT_NONFATAL_FAILURE({ const ExpectedWarning pen("pen"); }, "A warning didn't come: pen");
}

TEST(Warnings, AnExpectationEndsWithItsObject) {
    {
        const ExpectedWarning pen("pen");
        qWarning("the pen is dry");
    }
    EXPECT_NONFATAL_FAILURE(qWarning("the pen is dry"), "Unexpected warning");
}
