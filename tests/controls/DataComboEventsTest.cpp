// The combo's change and double click, and a text that the form sets in the Click of a pick.

#include "DataComboFixture.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using testing::ElementsAre;
using testing::IsEmpty;

class DataComboEvents : public DataComboFixture {
protected:
    DataComboEvents() {
        open([this](RecordedForm& form, controls::DataCombo& list) {
            form.on(&list, &controls::DataCombo::Change,
                    [this] { events.push_back("change to " + combo().Text() + "=" + combo().BoundText()); });
            form.on(&list, &controls::DataCombo::DblClick, [this] { events.emplace_back("double click"); });
            form.on(&list, &controls::DataCombo::Click, [this](int area) {
                if (area == controls::DataCombo::List) {
                    events.emplace_back("pick");
                    if (!afterwards.empty()) {
                        combo().setText(afterwards);
                    }
                }
            });
            form.chain({{&list, controls::EndOfEntry::Enter, [this] { events.emplace_back("enter"); }}});
        });
    }

    std::vector<std::string> events;
    std::string afterwards; ///< set by the form in the Click of a pick
};

TEST_F(DataComboEvents, ATextOfTheFormIsAChangeWhereItIsAnother) {
    combo().setText("Mela");
    combo().setText("Mela");
    combo().setBoundText("2");
    combo().setText("Seleziona");
    combo().setBoundText("99");
    EXPECT_THAT(events, ElementsAre("change to Mela=1", "change to Pera=2", "change to Seleziona=", "change to =4"))
        << "an empty text is that of the row without one";
}

TEST_F(DataComboEvents, ReadingTheListAgainIsNoChange) {
    combo().setText("Mela");
    events.clear();
    source.Refresh();
    combo().ReFill();
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(combo().Text(), "Mela");
}

TEST_F(DataComboEvents, APickIsAChangeAheadOfItsClick) {
    gui.pick("F", "combo", "Albicocca");
    EXPECT_THAT(events, ElementsAre("change to Albicocca=3", "pick"));
}

TEST_F(DataComboEvents, AnotherRowOfTheSameTextIsAPickWithoutAChange) {
    combo().setText("Pera");
    events.clear();
    gui.pick("F", "combo", "Pera");
    EXPECT_THAT(events, ElementsAre("pick"));
}

TEST_F(DataComboEvents, TypingIsAChangeOnlyWhereTypedTextCounts) {
    search("me");
    combo().hide();
    combo().show();
    EXPECT_THAT(events, IsEmpty());
    combo().takeFreeText();
    combo().setFocus();
    combo().lineEdit()->selectAll();
    gui.type("Uv");
    EXPECT_THAT(events, ElementsAre("change to U=", "change to Uv="));
}

TEST_F(DataComboEvents, ATextTypedInFullIsARowWhereTheFormSaysSo) {
    combo().takeTypedRow();
    combo().setText("Mela");
    const auto type = [this](const char* text) {
        combo().setFocus();
        combo().lineEdit()->selectAll();
        events.clear();
        gui.type(text);
    };
    const auto leave = [this] {
        combo().completer()->popup()->hide();
        gui.form("F").activateWindow();
        gui.waitForFront("F");
        gui.find("F", "field").setFocus();
    };
    type("pERA");
    QTest::keyClick(combo().completer()->popup(), Qt::Key_Return);
    EXPECT_THAT(events, ElementsAre("change to Pera=2", "enter")) << "no pick, so that the form moves on once";
    type("Albicocca");
    leave();
    EXPECT_THAT(events, ElementsAre("change to Albicocca=3"));
    for (const char* other : {"Alb", "xyz"}) {
        type(other);
        leave();
        EXPECT_THAT(events, IsEmpty()) << other;
        EXPECT_EQ(combo().Text(), "Albicocca");
    }
    combo().setFocus();
    combo().lineEdit()->clear();
    leave();
    EXPECT_EQ(combo().Text(), "Albicocca") << "no text isn't that of the row without one";
    type("Mela");
    combo().restoreChosen();
    EXPECT_THAT(events, IsEmpty()) << "taken back, as by Esc";
    EXPECT_EQ(combo().Text(), "Albicocca");
}

TEST_F(DataComboEvents, ATextTypedInFullIsTakenBackWhereTheFormSaysNothing) {
    combo().setText("Mela");
    combo().lineEdit()->selectAll();
    events.clear();
    search("Pera");
    QTest::keyClick(combo().completer()->popup(), Qt::Key_Return);
    EXPECT_THAT(events, ElementsAre("enter"));
    EXPECT_EQ(combo().Text(), "Mela");
}

TEST_F(DataComboEvents, ADoubleClickOnTheTextIsTold) {
    QTest::mouseDClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_THAT(events, ElementsAre("double click"));
}

TEST_F(DataComboEvents, CtrlEnterIsTheDoubleClickOfAKeyboardAndNoEnter) {
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    gui.press(Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_THAT(events, ElementsAre("double click", "double click"));
    gui.press(Qt::Key_Return);
    EXPECT_EQ(events.back(), "enter");
}

TEST_F(DataComboEvents, WhatTheFormSetsInTheClickOfAPickStays) {
    afterwards = "Seleziona";
    gui.pick("F", "combo", "Mela");
    Gui::handleEvents();
    EXPECT_EQ(combo().Text(), "Seleziona");
    EXPECT_EQ(combo().BoundText(), "");
}

TEST_F(DataComboEvents, WhatTheFormSetsInTheClickOfAPickInTheSearchStays) {
    afterwards = "Seleziona";
    QTest::keyClick(&search("alb"), Qt::Key_Return);
    Gui::handleEvents();
    EXPECT_THAT(events, ElementsAre("change to Albicocca=3", "pick", "change to Seleziona="));
    EXPECT_EQ(combo().Text(), "Seleziona");
    EXPECT_EQ(combo().BoundText(), "");
}

/// A pick leads to the field behind the list.
class DataComboWithField : public DataComboFixture {
protected:
    DataComboWithField() {
        open([](RecordedForm& form, controls::DataCombo& list) {
            form.on(&list, &controls::DataCombo::Click,
                    [&form] { form.findChild<QLineEdit*>(QStringLiteral("field"))->setFocus(); });
            form.on(&list, &controls::DataCombo::GotFocus, [&form] { form.setProperty("gotFocus", true); });
        });
    }
};

TEST_F(DataComboWithField, ASearchListThatIsTakenAsActiveOnlyWhenItHasClosedLeavesTheFocusWhereThePickHasLed) {
    QAbstractItemView& found = search("alb");
    QTest::keyClick(&found, Qt::Key_Return);
    ASSERT_EQ(gui.focus(), "F.field");
    gui.form("F").setProperty("gotFocus", false);
    QApplication::setActiveWindow(&found);
    EXPECT_EQ(gui.focus(), "F.field");
    EXPECT_FALSE(gui.form("F").property("gotFocus").toBool());
    QApplication::setActiveWindow(&gui.form("F"));
    gui.find("F", "field").setFocus(Qt::TabFocusReason);
    combo().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(gui.focus(), "F.combo") << "a user's focus stays";
}

TEST_F(DataComboWithField, ASearchListThatIsActiveWhileItIsOpenLeavesTheFocusToTheCombo) {
    QAbstractItemView& found = search("alb");
    QApplication::setActiveWindow(&found);
    QTest::keyClick(&found, Qt::Key_Escape);
    Gui::handleEvents();
    QApplication::setActiveWindow(&gui.form("F"));
    EXPECT_EQ(gui.focus(), "F.combo");
}

} // namespace
