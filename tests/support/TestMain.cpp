// The main of every test executable without windows.

#include "support/Environment.h"
#include "support/TestedDriver.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    support::chooseTestedDriver(argc, argv);
    support::prepareProcess();
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    support::prepareTests();
    return RUN_ALL_TESTS();
}
