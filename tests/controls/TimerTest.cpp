#include "controls/Timer.h"

#include "RecordedForm.h"
#include "support/Gui.h"

#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using support::Gui;

constexpr int kSomeTicks = 30;

/// A form with a timer of one millisecond, which counts the ticks that reach the form.
class Timer : public testing::Test {
protected:
    Timer() {
        gui.forms().add("F", [this] {
            auto form = std::make_unique<RecordedForm>("F", log);
            timer = new controls::Timer(form.get());
            form->on(timer, &controls::Timer::Tick, [this] {
                ++ticks;
                if (once) {
                    timer->stop();
                }
            });
            timer->start(1);
            return form;
        });
    }

    std::vector<std::string> log;
    Gui gui;
    controls::Timer* timer = nullptr;
    bool once = false;
    int ticks = 0;
};

TEST_F(Timer, TicksUntilItIsStopped) {
    gui.forms().show("F");
    EXPECT_TRUE(timer->isOn());
    Gui::waitFor("three ticks", [this] { return ticks >= 3; });
    timer->stop();
    EXPECT_FALSE(timer->isOn());
    const int before = ticks;
    QTest::qWait(kSomeTicks);
    EXPECT_EQ(ticks, before);
}

TEST_F(Timer, AHandlerThatStopsItRunsOnce) {
    once = true;
    gui.forms().show("F");
    QTest::qWait(kSomeTicks);
    EXPECT_EQ(ticks, 1);
}

TEST_F(Timer, IsNeverVisible) {
    gui.forms().show("F");
    EXPECT_FALSE(timer->isVisible());
}

TEST_F(Timer, ATickThatTheFormDropsIsFollowedByAnother) {
    once = true;
    gui.forms().show("F");
    gui.form("F").setEnabled(false);
    QTest::qWait(kSomeTicks);
    EXPECT_EQ(ticks, 0) << "while the form is disabled";
    {
        QDialog box;
        box.setModal(true);
        box.show();
        gui.form("F").setEnabled(true);
        QTest::qWait(kSomeTicks);
        EXPECT_EQ(ticks, 0) << "while a box is open";
    }
    Gui::waitFor("the tick", [this] { return ticks == 1; });
}

} // namespace
