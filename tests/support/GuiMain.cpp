// The main of every test executable with windows.

#include "controls/Style.h"
#include "support/Environment.h"
#include "support/TestedDriver.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

QtMessageHandler failing = nullptr;

/// Ignores a warning that the offscreen platform gives for every popup.
void passOver(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        failing(type, context, message);
    }
}

} // namespace

int main(int argc, char** argv) {
    support::chooseTestedDriver(argc, argv);
    support::prepareProcess();
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    controls::style::install(application, controls::style::Scheme::Light);
    support::prepareTests();
    failing = qInstallMessageHandler(passOver);
    return RUN_ALL_TESTS();
}
