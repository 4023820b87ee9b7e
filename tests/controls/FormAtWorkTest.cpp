#include "RecordedForm.h"
#include "support/Gui.h"

#include <QCoreApplication>
#include <QPushButton>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using testing::Contains;
using testing::Not;

/// A form whose button does what each test sets, with what happens while that runs.
class FormAtWork : public testing::Test {
protected:
    void load(const RecordedForm::Events& events = {}) {
        gui.forms().add("A", [this, events] {
            auto form = std::make_unique<RecordedForm>("A", log, events);
            auto* button = new QPushButton(form.get());
            button->setObjectName("button");
            form->on(button, &QPushButton::clicked, [this, shown = form.get()] { clicked(*shown); });
            return form;
        });
        gui.forms().show("A");
    }
    /// What the toolkit does in the middle of an event that waits or paints.
    static void meanwhile(RecordedForm& form, const std::function<void()>& happens) {
        QMetaObject::invokeMethod(&form, happens, Qt::QueuedConnection);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    std::function<void(RecordedForm&)> clicked = [](RecordedForm&) {};
    std::vector<std::string> log;
    Gui gui;
};

TEST_F(FormAtWork, ItsWindowIsNotClosedInTheMiddleOfItsActivate) {
    RecordedForm::Events events;
    events.activate = [](RecordedForm& form) { meanwhile(form, [&form] { form.close(); }); };
    load(events);
    Gui::handleEvents();
    EXPECT_TRUE(gui.isVisible("A"));
    EXPECT_THAT(log, Not(Contains("A.Unload")));
    gui.form("A").close();
    EXPECT_FALSE(gui.forms().isLoaded("A")) << "it is when that is over";
}

TEST_F(FormAtWork, ItsWindowIsNotClosedWhileItPaintsForAModule) {
    load();
    auto& form = dynamic_cast<RecordedForm&>(gui.form("A"));
    QMetaObject::invokeMethod(
        &form, [&form] { form.close(); }, Qt::QueuedConnection);
    form.Refresh();
    EXPECT_TRUE(gui.isVisible("A"));
    form.close();
    EXPECT_FALSE(gui.forms().isLoaded("A"));
}

TEST_F(FormAtWork, UnloadedMeanwhileItIsDeletedWhenItsEventIsOver) {
    clicked = [this](RecordedForm& form) {
        meanwhile(form, [&form] { form.UnloadMe(); });
        EXPECT_THAT(log, Contains("A.Unload"));
        EXPECT_THAT(log, Not(Contains("deleted"))) << "the event goes on";
    };
    load();
    gui.click("A", "button");
    EXPECT_EQ(log.back(), "deleted");
}

} // namespace
