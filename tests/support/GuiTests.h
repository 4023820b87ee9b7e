#pragma once

#include "controls/Style.h"
#include "support/Environment.h"
#include "support/TestedDriver.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace support {

/// The handler of messages that fails tests, for those that are passed on.
inline QtMessageHandler failing = nullptr;

/// Ignores a warning that the offscreen platform gives for every popup.
inline void passOver(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        failing(type, context, message);
    }
}

/// Runs the tests of an executable with windows.
template<typename Application>
int runGuiTests(int argc, char** argv) {
    chooseTestedDriver(argc, argv);
    prepareProcess();
    testing::InitGoogleTest(&argc, argv);
    Application application(argc, argv);
    Application::setQuitOnLastWindowClosed(false);
    controls::style::install(application, controls::style::Scheme::Light);
    prepareTests();
    failing = qInstallMessageHandler(passOver);
    return RUN_ALL_TESTS();
}

} // namespace support
