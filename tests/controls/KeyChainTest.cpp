#include "controls/KeyChain.h"

#include "RecordedForm.h"
#include "controls/TextBox.h"
#include "support/DialogScript.h"
#include "support/Gui.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

using controls::EndOfEntry;
using support::Gui;

/// Three fields: Enter goes from a to c, Enter or Tab from c to b, and b runs a handler.
class KeyChain : public testing::Test {
protected:
    KeyChain() {
        gui.forms().add("F", [this] {
            auto form = std::make_unique<RecordedForm>("F", log);
            auto* layout = new QVBoxLayout(form.get());
            std::vector<controls::TextBox*> fields;
            for (const char* name : {"a", "b", "c"}) {
                fields.push_back(new controls::TextBox);
                fields.back()->setObjectName(name);
                layout->addWidget(fields.back());
            }
            form->chain({{fields[0], EndOfEntry::Enter, fields[2]},
                         {fields[2], EndOfEntry::EnterOrTab, fields[1]},
                         {fields[1], EndOfEntry::EnterOrTab, [this] { ended(); }}});
            return form;
        });
        gui.forms().show("F");
        gui.waitForFront("F");
        go("a");
    }
    void go(const char* field) { gui.find("F", field).setFocus(); }

    int ends = 0;
    std::function<void()> ended = [this] { ++ends; };
    std::vector<std::string> log;
    Gui gui;
};

TEST_F(KeyChain, EnterFollowsTheChainAndNotTheScreen) {
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.focus(), "F.c");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.focus(), "F.b");
}

TEST_F(KeyChain, AHeldKeyEndsOneEntry) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        go("b");
        QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&gui.find("F", "b"), &again);
        EXPECT_EQ(ends, 0);
        EXPECT_EQ(gui.focus(), "F.b");
    }
}

TEST_F(KeyChain, TheKeypadsEnterIsEnter) {
    gui.press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(gui.focus(), "F.c");
}

TEST_F(KeyChain, TabIsTakenOnlyWhereTheRowSaysSo) {
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(gui.focus(), "F.b") << "the next on the screen";
    go("c");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(gui.focus(), "F.b") << "the next of the chain";
}

TEST_F(KeyChain, AHandlerKeepsTheFocusWhereItIs) {
    go("b");
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(ends, 2);
    EXPECT_EQ(gui.focus(), "F.b");
}

TEST_F(KeyChain, KeysWithModifiersAreLeftAlone) {
    go("b");
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    gui.press(Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(ends, 0);
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(gui.focus(), "F.a");
}

TEST_F(KeyChain, OtherKeysReachTheField) {
    gui.type("testo");
    EXPECT_EQ(gui.text("F", "a"), "testo");
    EXPECT_EQ(gui.focus(), "F.a");
}

TEST_F(KeyChain, AnErrorOfAHandlerIsTold) {
    ended = [] { throw std::runtime_error("no"); };
    go("b");
    support::DialogScript script;
    script.expectMessage("no");
    gui.press(Qt::Key_Return);
}

TEST_F(KeyChain, AHandlerMayUnloadTheForm) {
    ended = [this] { gui.forms().unload("F"); };
    go("b");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "");
}

} // namespace
