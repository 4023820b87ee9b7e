#include "controls/TextBox.h"

#include "RecordedForm.h"
#include "controls/RoomyStyle.h"
#include "support/Gui.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using testing::ElementsAre;

/// A form with two fields that record when they get and lose the focus.
class TextBox : public testing::Test {
protected:
    TextBox() {
        for (const char* form : {"A", "B"}) {
            gui.forms().add(form, [this, form] { return make(form); });
        }
        gui.forms().show("A");
        gui.waitForFront("A");
        field("first").setFocus();
        log.clear();
    }
    std::unique_ptr<controls::Form> make(const char* name) {
        auto form = std::make_unique<RecordedForm>(name, events);
        auto* layout = new QVBoxLayout(form.get());
        for (const char* each : {"first", "second"}) {
            auto* box = new controls::TextBox;
            box->setObjectName(each);
            box->setText(std::string("testo"));
            layout->addWidget(box);
            const std::string full = std::string(name) + "." + each;
            QObject::connect(box, &controls::TextBox::GotFocus, [this, full] { log.push_back("+" + full); });
            QObject::connect(box, &controls::TextBox::LostFocus, [this, full] { log.push_back("-" + full); });
        }
        return form;
    }
    controls::TextBox& field(const char* name) { return gui.find<controls::TextBox>("A", name); }
    /// What a window manager does behind a box.
    void comeToFront() {
        gui.form("A").activateWindow();
        gui.waitForFront("A");
    }

    std::vector<std::string> events, log;
    Gui gui;
};

TEST_F(TextBox, TheWholeTextIsSelectedWithTheFocus) {
    field("second").setFocus();
    EXPECT_EQ(field("second").selectedText(), "testo");
    gui.type("x");
    EXPECT_EQ(field("second").Text(), "x");
}

TEST_F(TextBox, AClickSelectsTheWholeTextToo) {
    gui.click("A", "second");
    EXPECT_EQ(field("second").selectedText(), "testo");
}

TEST_F(TextBox, ASecondClickPlacesTheCaret) {
    gui.click("A", "second");
    gui.click("A", "second");
    EXPECT_EQ(field("second").selectedText(), "");
}

TEST_F(TextBox, TheFocusIsLostToAnotherFieldOnly) {
    field("second").setFocus();
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.second"));
}

TEST_F(TextBox, AnotherProgramInFrontTakesNoFocus) {
    field("first").clearFocus();
    field("first").setFocus();
    EXPECT_TRUE(log.empty());
}

TEST_F(TextBox, ABoxTakesNoFocus) {
    QDialog box(&gui.form("A"));
    controls::TextBox inside(&box);
    box.show();
    Gui::waitFor("the box in front", [&] { return QApplication::activeWindow() == &box; });
    inside.setFocus();
    box.close();
    comeToFront();
    EXPECT_TRUE(log.empty());
}

TEST_F(TextBox, AnotherFormOfTheProgramTakesTheFocus) {
    gui.forms().show("B");
    gui.find("B", "first").setFocus();
    gui.waitForFront("B");
    EXPECT_THAT(log, ElementsAre("-A.first", "+B.first"));
}

TEST_F(TextBox, AFieldThatTakesTheFocusBackDoesNotMakeTheNextOneLoseIt) {
    QObject::connect(&field("first"), &controls::TextBox::LostFocus, [this] { field("first").setFocus(); });
    field("second").setFocus();
    EXPECT_EQ(gui.focus(), "A.first");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.first"));
    EXPECT_EQ(field("first").selectedText(), "testo");
}

TEST_F(TextBox, TwoFieldsThatTakeTheFocusBackDoNotFightForIt) {
    QObject::connect(&field("first"), &controls::TextBox::LostFocus, [this] { field("first").setFocus(); });
    QObject::connect(&field("second"), &controls::TextBox::LostFocus, [this] { field("second").setFocus(); });
    field("second").setFocus();
    EXPECT_EQ(gui.focus(), "A.first");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.first"));
}

TEST_F(TextBox, AFieldThatSendsTheFocusBackGetsAndLosesIt) {
    QObject::connect(&field("second"), &controls::TextBox::GotFocus, [this] { field("first").setFocus(); });
    field("second").setFocus();
    EXPECT_EQ(gui.focus(), "A.first");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.second", "-A.second", "+A.first"));
}

TEST_F(TextBox, ABoxOfALostFocusLeavesTheFocusWhereItWasGoing) {
    QObject::connect(&field("first"), &controls::TextBox::LostFocus, [this] {
        QDialog box(&gui.form("A"));
        box.show();
        Gui::waitFor("the box in front", [&] { return QApplication::activeWindow() == &box; });
        box.close();
        comeToFront();
    });
    field("second").setFocus();
    EXPECT_EQ(gui.focus(), "A.second");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.second"));
}

/// Shows a box as the program does; the form isn't active again yet when this returns.
void showBox(QWidget& form) {
    QDialog box(&form);
    const auto close = [&box] {
        Gui::waitFor("the box in front", [&box] { return QApplication::activeWindow() == &box; });
        box.accept();
    };
    QMetaObject::invokeMethod(&box, close, Qt::QueuedConnection);
    box.exec();
}

TEST_F(TextBox, AFieldThatTakesTheFocusBackBehindABoxDoesNotMakeTheNextOneLoseIt) {
    int boxes = 0;
    QObject::connect(&field("first"), &controls::TextBox::LostFocus, [&] {
        ++boxes;
        showBox(gui.form("A"));
        field("first").SetFocus();
    });
    field("second").setFocus();
    comeToFront();
    EXPECT_EQ(gui.focus(), "A.first");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.first"));
    EXPECT_EQ(boxes, 1);
}

TEST_F(TextBox, ABoxOfALostFocusThatIsNotActiveAgainLeavesTheFocusWhereItWasGoing) {
    QObject::connect(&field("first"), &controls::TextBox::LostFocus, [this] { showBox(gui.form("A")); });
    field("second").setFocus();
    comeToFront();
    EXPECT_EQ(gui.focus(), "A.second");
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.second"));
}

TEST_F(TextBox, AFieldThatSendsTheFocusBackBehindABoxGetsAndLosesItAtOnce) {
    QObject::connect(&field("second"), &controls::TextBox::GotFocus, [this] {
        showBox(gui.form("A"));
        field("first").SetFocus();
    });
    field("second").setFocus();
    EXPECT_THAT(log, ElementsAre("-A.first", "+A.second", "-A.second", "+A.first"));
    comeToFront();
    EXPECT_EQ(gui.focus(), "A.first");
    EXPECT_EQ(log.size(), 4U) << "the form that is active again tells nothing new";
}

TEST_F(TextBox, AFieldThatIsGoneLosesNoFocus) {
    auto* third = new controls::TextBox(&gui.form("A"));
    third->show();
    third->setFocus();
    delete third;
    log.clear();
    field("second").setFocus();
    field("first").setFocus();
    EXPECT_THAT(std::vector<std::string>(log.end() - 2, log.end()), ElementsAre("-A.second", "+A.first"));
}

TEST_F(TextBox, SetFocusSelectsTheTextAlsoWhereTheFocusIsAlready) {
    field("first").setText("altro");
    EXPECT_EQ(field("first").selectedText(), "");
    field("first").SetFocus();
    EXPECT_EQ(field("first").selectedText(), "altro");
    field("second").SetFocus();
    EXPECT_EQ(gui.focus(), "A.second");
    EXPECT_EQ(field("second").selectedText(), "testo");
}

TEST_F(TextBox, TextsBeyondTheGreatestLengthAreCut) {
    field("second").setMaxLength(3);
    field("second").setText(std::string("abcdef"));
    EXPECT_EQ(field("second").Text(), "abc");
    gui.typeInto("A", "second", "12345");
    EXPECT_EQ(field("second").Text(), "123") << "typing replaces the selection";
}

TEST_F(TextBox, NoMoreIsSelectedThanTheFormAllows) {
    field("second").selectAtMost(3);
    field("second").setFocus();
    EXPECT_EQ(field("second").selectedText(), "tes");
    field("second").deselect();
    field("second").SetFocus();
    EXPECT_EQ(field("second").selectedText(), "tes") << "where the focus is already";
    field("first").setFocus();
    gui.click("A", "second");
    EXPECT_EQ(field("second").selectedText(), "tes") << "by a click";
    field("second").setText(std::string("ab"));
    field("second").Select();
    EXPECT_EQ(field("second").selectedText(), "ab") << "a shorter text whole";
}

TEST(PasswordBox, ShowsStars) {
    controls::RoomyStyle style;
    controls::TextBox box;
    box.setStyle(&style);
    box.setEchoMode(QLineEdit::Password);
    box.setText("abc");
    EXPECT_EQ(box.displayText(), "***");
}

} // namespace
