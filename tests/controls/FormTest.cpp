#include "controls/Form.h"

#include "RecordedForm.h"
#include "controls/Disabled.h"
#include "support/DialogScript.h"
#include "support/Gui.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using support::Gui;

/// A form with a button whose action each test sets.
class Form : public testing::Test {
protected:
    Form() {
        gui.forms().add("A", [this] {
            auto form = std::make_unique<RecordedForm>("A", log);
            auto* layout = new QVBoxLayout;
            form->setLayout(layout);
            auto* label = new QLabel("&Nome utente :");
            auto* field = new QLineEdit;
            auto* button = new QPushButton("&Salva");
            field->setObjectName("field");
            button->setObjectName("button");
            label->setBuddy(field);
            for (QWidget* each : std::initializer_list<QWidget*>{label, field, button}) {
                layout->addWidget(each);
            }
            form->on(button, &QPushButton::clicked, [this, shown = form.get()] { clicked(*shown); });
            return form;
        });
        gui.forms().show("A");
        gui.waitForFront("A");
    }

    std::function<void(RecordedForm&)> clicked = [](RecordedForm&) {};
    std::vector<std::string> log;
    Gui gui;
};

TEST_F(Form, AnErrorOfAHandlerIsABoxWithItsDescription) {
    clicked = [](RecordedForm&) { throw ado::Error(ado::kNoCurrentRecord); };
    support::DialogScript script;
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. "
                         "Requested operation requires a current record.");
    gui.click("A", "button");
    EXPECT_TRUE(gui.isVisible("A"));
}

TEST_F(Form, DisabledItTakesNothingAndGetsItsFocusBack) {
    QWidget& field = gui.find("A", "field");
    field.setFocus();
    {
        const controls::Disabled disabled(gui.form("A"));
        gui.form("A").close();
        EXPECT_TRUE(gui.isVisible("A")) << "its window isn't closed either";
        EXPECT_FALSE(field.isEnabled());
        EXPECT_FALSE(field.hasFocus());
    }
    EXPECT_TRUE(field.isEnabled());
    EXPECT_EQ(gui.focus(), "A.field");
}

TEST_F(Form, AnErrorEndsItsBeingDisabled) {
    clicked = [](RecordedForm& form) {
        const controls::Disabled disabled(form);
        throw ado::Error(ado::kObjectClosed);
    };
    support::DialogScript script;
    script.expectMessage("Operation is not allowed when the object is closed.");
    gui.click("A", "button");
    EXPECT_TRUE(gui.form("A").isEnabled());
}

TEST_F(Form, ItsHelpTopicAndThatOfItsControlsMayDiffer) {
    clicked = [](RecordedForm& form) { form.setHelpContext(90, 60); };
    gui.click("A", "button");
    EXPECT_EQ(gui.form("A").property("HelpContextID").toInt(), 90);
    EXPECT_EQ(gui.find("A", "field").property("HelpContextID").toInt(), 60);
    EXPECT_EQ(gui.find("A", "button").property("HelpContextID").toInt(), 60);
}

TEST_F(Form, AHeldEnterPressesAButtonOnce) {
    int presses = 0;
    clicked = [&](RecordedForm&) { ++presses; };
    QWidget& button = gui.find("A", "button");
    button.setFocus();
    QTest::keyPress(&button, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&button, &again);
    }
    EXPECT_EQ(presses, 1);
    QTest::keyRelease(&button, Qt::Key_Return);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(presses, 2);
}

TEST_F(Form, APressAtTheMomentOfItsReleaseIsAHeldKeysToo) {
    int presses = 0;
    clicked = [&](RecordedForm&) { ++presses; };
    const auto send = [this](QEvent::Type type, quint64 time) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(&gui.find("A", "button"), &event);
    };
    send(QEvent::KeyPress, 1000);
    for (const quint64 time : {1660, 1700, 1740}) {
        send(QEvent::KeyRelease, time);
        send(QEvent::KeyPress, time);
    }
    EXPECT_EQ(presses, 1);
    send(QEvent::KeyRelease, 1800);
    send(QEvent::KeyPress, 1860);
    EXPECT_EQ(presses, 2) << "down anew";
}

// Its first press went to another control, which gave the focus to the button.
TEST_F(Form, ASpaceHeldBeforeTheButtonGotTheFocusPressesNothing) {
    int presses = 0;
    clicked = [&](RecordedForm&) { ++presses; };
    const auto send = [this](QEvent::Type type, quint64 time) {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(&gui.find("A", "button"), &event);
    };
    for (const quint64 time : {1660, 1700, 1740}) {
        send(QEvent::KeyRelease, time);
        send(QEvent::KeyPress, time);
    }
    send(QEvent::KeyRelease, 1800);
    EXPECT_EQ(presses, 0);
    send(QEvent::KeyPress, 1860);
    send(QEvent::KeyRelease, 1900);
    EXPECT_EQ(presses, 1) << "down anew";
}

TEST_F(Form, KeysAndClicksThatReachAHiddenFormAreNone) {
    int presses = 0;
    clicked = [&](RecordedForm&) { ++presses; };
    QWidget& button = gui.find("A", "button");
    gui.forms().hide("A");
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(presses, 0);
    EXPECT_FALSE(gui.form("A").close());
    EXPECT_TRUE(gui.forms().isLoaded("A")) << "its window's close button isn't there to be pressed";
}

TEST_F(Form, AHandlerMayUnloadItsForm) {
    clicked = [](RecordedForm& form) { form.UnloadMe(); };
    gui.click("A", "button");
    EXPECT_FALSE(gui.forms().isLoaded("A"));
    EXPECT_EQ(log.back(), "deleted");
}

TEST_F(Form, AnUnloadedFormGetsNoMoreEvents) {
    int clicks = 0;
    clicked = [&](RecordedForm& form) {
        ++clicks;
        form.UnloadMe();
        form.findChild<QPushButton*>("button")->click();
    };
    gui.click("A", "button");
    EXPECT_EQ(clicks, 1);
}

TEST_F(Form, AFormThatUnloadsGetsNoMoreEvents) {
    gui.forms().add("B", [this] {
        RecordedForm::Events events;
        events.unload = [this](RecordedForm& form) { form.findChild<QLineEdit*>()->setText("x"); };
        auto form = std::make_unique<RecordedForm>("B", log, events);
        auto* field = new QLineEdit(form.get());
        form->on(field, &QLineEdit::textChanged, [this] { log.push_back("changed"); });
        return form;
    });
    gui.forms().show("B");
    log.clear();
    gui.forms().unload("B");
    EXPECT_EQ(log.front(), "B.Unload");
    EXPECT_EQ(std::count(log.begin(), log.end(), "changed"), 0);
}

TEST_F(Form, AMnemonicSetsTheFocusToItsButtonAsAClickDoes) {
    std::string focus;
    clicked = [&](RecordedForm&) { focus = gui.focus(); };
    gui.find("A", "field").setFocus();
    gui.press(Qt::Key_S, Qt::AltModifier);
    Gui::waitFor("the click", [&] { return !focus.empty(); });
    EXPECT_EQ(focus, "A.button");
}

TEST_F(Form, AMnemonicLeavesTheFocusWhereItsButtonTakesNone) {
    std::string focus;
    clicked = [&](RecordedForm&) { focus = gui.focus(); };
    gui.find("A", "button").setFocusPolicy(Qt::NoFocus);
    gui.find("A", "field").setFocus();
    gui.press(Qt::Key_S, Qt::AltModifier);
    Gui::waitFor("the click", [&] { return !focus.empty(); });
    EXPECT_EQ(focus, "A.field");
}

TEST_F(Form, EnterPressesTheButtonThatHasTheFocus) {
    int clicks = 0;
    clicked = [&](RecordedForm&) { ++clicks; };
    gui.find("A", "button").setFocus();
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Enter, Qt::KeypadModifier);
    gui.press(Qt::Key_Space);
    EXPECT_EQ(clicks, 3);
}

TEST_F(Form, AFieldIsCalledAfterItsLabelAndAButtonAfterItsCaption) {
    EXPECT_EQ(gui.find("A", "field").accessibleName(), "Nome utente");
    EXPECT_EQ(gui.find("A", "button").accessibleName(), "Salva");
}

TEST_F(Form, RefreshPaintsAtOnce) {
    struct Painted : QWidget {
        using QWidget::QWidget;
        int paints = 0;
        void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
    };
    Painted* painted = nullptr;
    clicked = [&](RecordedForm& form) {
        painted = new Painted(&form);
        painted->resize(form.size());
        painted->show();
        form.Refresh();
        EXPECT_GT(painted->paints, 0);
    };
    gui.click("A", "button");
    ASSERT_NE(painted, nullptr);
}

TEST_F(Form, HideKeepsItLoaded) {
    clicked = [](RecordedForm& form) { form.Hide(); };
    gui.click("A", "button");
    EXPECT_FALSE(gui.isVisible("A"));
    EXPECT_TRUE(gui.forms().isLoaded("A"));
}

} // namespace
