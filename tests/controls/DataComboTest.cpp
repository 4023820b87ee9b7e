#include "controls/DataCombo.h"

#include "DataComboFixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using testing::ElementsAre;

class DataCombo : public DataComboFixture {
protected:
    DataCombo() {
        open([this](RecordedForm& form, controls::DataCombo& list) {
            form.on(&list, &controls::DataCombo::Click, [this](int area) { clicks.push_back(area); });
            form.chain({{&list, controls::EndOfEntry::Enter, [this] { stored.push_back(combo().Text()); }}});
        });
    }

    /// Sets a text as the form does, and selects it as the focus does.
    void choose(const std::string& text) {
        combo().setText(text);
        combo().lineEdit()->selectAll();
    }
    void leave() {
        gui.find("F", "field").setFocus();
        Gui::handleEvents();
    }
    static void hold(QWidget& control, Qt::Key key) {
        QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&control, &again);
    }

    std::vector<int> clicks;
    std::vector<std::string> stored; ///< the text at each Enter that reaches the form
};

TEST_F(DataCombo, ShowsTheListFieldOfEveryRow) {
    ASSERT_EQ(combo().count(), 5);
    EXPECT_EQ(combo().itemText(0), "Mela");
    EXPECT_EQ(combo().itemText(3), "") << "a null";
    EXPECT_EQ(combo().Text(), "") << "nothing is chosen yet";
}

TEST_F(DataCombo, APickGivesTheBoundColumnAndTellsTheListArea) {
    gui.pick("F", "combo", "Albicocca");
    EXPECT_EQ(combo().Text(), "Albicocca");
    EXPECT_EQ(combo().BoundText(), "3");
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::List));
}

TEST_F(DataCombo, APickDoesNotMoveTheSource) {
    source.Recordset().MoveNext();
    gui.pick("F", "combo", "Albicocca");
    EXPECT_EQ(source.Recordset().AbsolutePosition(), 2);
}

TEST_F(DataCombo, OfRowsOfOneTextThePickedOneCounts) {
    combo().setBoundText("5");
    EXPECT_EQ(combo().Text(), "Pera");
    EXPECT_EQ(combo().BoundText(), "5");
    combo().setText("Pera");
    EXPECT_EQ(combo().BoundText(), "2") << "the first that the text stands for";
}

TEST_F(DataCombo, ATextOfNoRowHasNoBoundText) {
    combo().setText("Seleziona");
    EXPECT_EQ(combo().Text(), "Seleziona");
    EXPECT_EQ(combo().BoundText(), "");
    combo().setText("mela");
    EXPECT_EQ(combo().BoundText(), "") << "letter for letter";
    combo().setBoundText("99");
    EXPECT_EQ(combo().Text(), "");
}

TEST_F(DataCombo, ReFillKeepsTheTextAndShowsTheRowsOfNow) {
    combo().setText("Seleziona");
    workstation.run(support::kCompany, "insert into frutta (nome) values ('Uva')");
    source.Refresh();
    combo().ReFill();
    combo().Refresh();
    EXPECT_EQ(combo().count(), 6);
    EXPECT_EQ(combo().Text(), "Seleziona");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, FollowsTheFilterOfItsSource) {
    source.Recordset().setFilter("id > 2");
    EXPECT_EQ(combo().count(), 3);
    combo().setText("Albicocca");
    EXPECT_EQ(combo().BoundText(), "3");
}

TEST_F(DataCombo, AFailedRefreshEmptiesTheList) {
    source.RecordSource = "select * from nessuna";
    EXPECT_THROW(source.Refresh(), ado::Error);
    EXPECT_EQ(combo().count(), 0);
}

TEST_F(DataCombo, AListWhoseRowsAreClosedIsEmpty) {
    combo().setText("Pera");
    source.Recordset().Close();
    EXPECT_EQ(combo().count(), 0);
    EXPECT_EQ(combo().BoundText(), "");
    EXPECT_EQ(combo().Text(), "Pera");
}

TEST_F(DataCombo, AListOutlivesItsSource) {
    auto other = std::make_unique<controls::DataControl>();
    other->ConnectionString = source.ConnectionString;
    other->RecordSource = source.RecordSource;
    combo().setRowSource(other.get());
    other->Refresh();
    ASSERT_EQ(combo().count(), 5);
    other.reset();
    EXPECT_EQ(combo().count(), 0);
    combo().setRowSource(nullptr);
}

TEST_F(DataCombo, AnUnknownListFieldRaises) {
    combo().ListField = "colore";
    EXPECT_THROW(combo().ReFill(), ado::Error);
}

TEST_F(DataCombo, TypingATextOfTheListAndLeavingIsNoPick) {
    choose("Mela");
    gui.type("Pera");
    combo().completer()->popup()->hide();
    leave();
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_EQ(combo().BoundText(), "1");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, WhatWasTypedGoesBackToThePickWhenTheFieldIsLeft) {
    combo().setBoundText("5");
    combo().lineEdit()->selectAll();
    gui.type("xyz");
    leave();
    EXPECT_EQ(combo().Text(), "Pera");
    EXPECT_EQ(combo().BoundText(), "5") << "the second row of that text";
    gui.pick("F", "combo", "Albicocca");
    gui.form("F").activateWindow();
    gui.waitForFront("F");
    combo().lineEdit()->selectAll();
    gui.type("xyz");
    leave();
    EXPECT_EQ(combo().Text(), "Albicocca");
}

TEST_F(DataCombo, WhatWasTypedGoesBackToNothingWhereNothingWasChosen) {
    gui.type("xyz");
    leave();
    EXPECT_EQ(combo().Text(), "");
}

TEST_F(DataCombo, WhatWasTypedStaysWhileABoxStandsInFront) {
    choose("Mela");
    gui.type("xyz");
    QDialog box(&gui.form("F"));
    box.show();
    Gui::waitFor("the box in front", [&] { return QApplication::activeWindow() == &box; });
    EXPECT_EQ(combo().Text(), "xyz");
}

TEST_F(DataCombo, EnterGoesToTheFormWithTheChosenText) {
    choose("Mela");
    gui.type("xyz");
    gui.press(Qt::Key_Return);
    EXPECT_THAT(stored, ElementsAre("Mela"));
    EXPECT_EQ(combo().Text(), "Mela");
}

TEST_F(DataCombo, EscGivesBackTheChosenText) {
    choose("Mela");
    gui.type("xyz");
    gui.press(Qt::Key_Escape);
    EXPECT_EQ(combo().Text(), "Mela");
}

TEST_F(DataCombo, EscInTheSearchClosesItAndGivesBackTheChosenText) {
    choose("Mela");
    QAbstractItemView& found = search("er");
    QTest::keyClick(&found, Qt::Key_Down);
    EXPECT_EQ(combo().Text(), "Pera") << "shown while one looks for it";
    QTest::keyClick(&found, Qt::Key_Escape);
    EXPECT_FALSE(found.isVisible());
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, WhatAloneIsFoundIsHighlightedAndOneEnterTakesIt) {
    QAbstractItemView& found = search("coc");
    EXPECT_EQ(found.currentIndex().data().toString(), "Albicocca");
    EXPECT_EQ(combo().Text(), "coc");
    QTest::keyClick(&found, Qt::Key_Return);
    EXPECT_EQ(combo().BoundText(), "3");
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::List));
    EXPECT_TRUE(stored.empty()) << "the pick is the store";
}

TEST_F(DataCombo, TheHighlightGoesWhenMoreIsFound) {
    QAbstractItemView& found = search("el");
    EXPECT_EQ(found.currentIndex().data().toString(), "Mela");
    QTest::keyClick(&found, Qt::Key_Backspace);
    EXPECT_EQ(combo().completer()->completionCount(), 3);
    EXPECT_FALSE(found.currentIndex().isValid());
    found.hide();
}

TEST_F(DataCombo, EnterWithNothingHighlightedClosesTheSearchAndGoesToTheForm) {
    choose("Mela");
    QAbstractItemView& found = search("er");
    EXPECT_FALSE(found.currentIndex().isValid()) << "two are found";
    QTest::keyClick(&found, Qt::Key_Return);
    EXPECT_FALSE(found.isVisible());
    EXPECT_THAT(stored, ElementsAre("Mela"));
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, TabOnAHighlightedRowOfTheSearchIsAPick) {
    QAbstractItemView& found = search("er");
    QTest::keyClick(&found, Qt::Key_Down);
    QTest::keyClick(&found, Qt::Key_Down);
    QTest::keyClick(&found, Qt::Key_Tab);
    EXPECT_EQ(combo().BoundText(), "5");
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::List));
}

TEST_F(DataCombo, TabWithNothingHighlightedLeavesTheField) {
    choose("Mela");
    QAbstractItemView& found = search("er");
    QTest::keyClick(&found, Qt::Key_Tab);
    Gui::handleEvents();
    EXPECT_FALSE(found.isVisible());
    EXPECT_EQ(gui.focus(), "F.field");
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, OnlyPlainKeysPickInTheSearch) {
    choose("Mela");
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        QAbstractItemView& found = search("coc");
        ASSERT_TRUE(found.currentIndex().isValid());
        QTest::keyClick(&found, key, Qt::ControlModifier);
        EXPECT_FALSE(found.isVisible());
        gui.press(Qt::Key_Escape);
    }
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_TRUE(clicks.empty());
    EXPECT_TRUE(stored.empty());
    QTest::keyClick(&search("coc"), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(combo().Text(), "Albicocca");
}

TEST_F(DataCombo, TakingBackWhatWasTypedClosesTheSearch) {
    choose("Mela");
    const QAbstractItemView& found = search("er");
    combo().restoreChosen();
    EXPECT_FALSE(found.isVisible());
    EXPECT_EQ(combo().Text(), "Mela");
}

TEST_F(DataCombo, TheSearchGoesWithItsField) {
    const QAbstractItemView& found = search("er");
    combo().hide();
    EXPECT_FALSE(found.isVisible());
}

TEST_F(DataCombo, AHeldEnterTakesNothing) {
    choose("Mela");
    hold(combo(), Qt::Key_Return);
    hold(search("coc"), Qt::Key_Return);
    EXPECT_TRUE(stored.empty());
    EXPECT_TRUE(clicks.empty());
    combo().completer()->popup()->hide();
}

TEST_F(DataCombo, EnterInTheTextIsNoPick) {
    combo().setText("Pera");
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, ASettingInCodeIsNoPick) {
    combo().setText("Mela");
    combo().setBoundText("2");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, ArrowsOpenTheListInsteadOfPickingUnseen) {
    combo().setText("Mela");
    gui.press(Qt::Key_Down);
    EXPECT_TRUE(combo().view()->isVisible());
    combo().hidePopup();
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, AListLeftWithoutAPickSelectsTheText) {
    combo().setText("Mela");
    gui.press(Qt::Key_Down);
    combo().lineEdit()->deselect();
    QTest::keyClick(combo().view(), Qt::Key_Escape);
    EXPECT_FALSE(combo().view()->isVisible());
    EXPECT_EQ(combo().lineEdit()->selectedText(), "Mela") << "typing starts anew";
}

TEST_F(DataCombo, APickSelectsItsText) {
    QTest::keyClick(&search("coc"), Qt::Key_Return);
    Gui::handleEvents();
    EXPECT_EQ(combo().lineEdit()->selectedText(), "Albicocca") << "of the search";
    gui.press(Qt::Key_Down);
    QTest::keyClick(combo().view(), Qt::Key_Up);
    QTest::keyClick(combo().view(), Qt::Key_Return);
    Gui::handleEvents();
    EXPECT_EQ(combo().lineEdit()->selectedText(), "Pera") << "of the list";
}

TEST_F(DataCombo, TheWheelPicksNothing) {
    combo().setText("Mela");
    QWheelEvent wheel({5, 5}, combo().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo(), &wheel);
    EXPECT_EQ(combo().Text(), "Mela");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(DataCombo, AClickOnTheTextTellsTheEditArea) {
    QTest::mouseClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::Edit));
}

TEST_F(DataCombo, AClickOnTheArrowTellsTheButtonArea) {
    QTest::mousePress(&combo(), Qt::LeftButton, {}, {combo().width() - 6, combo().height() / 2});
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::Button));
    combo().hidePopup();
}

TEST_F(DataCombo, TypingSearchesAnywhereInTheNames) {
    gui.type("coc");
    Gui::waitFor("the search", [&] { return combo().completer()->popup()->isVisible(); });
    EXPECT_EQ(combo().completer()->completionCount(), 1);
    EXPECT_EQ(combo().completer()->currentCompletion(), "Albicocca");
    EXPECT_EQ(combo().Text(), "coc") << "nothing is put into the text";
    combo().completer()->popup()->hide();
}

TEST_F(DataCombo, ARowOfTheSearchIsAPick) {
    gui.type("coc");
    QAbstractItemView* found = combo().completer()->popup();
    Gui::waitFor("the search", [&] { return found->isVisible(); });
    QTest::keyClick(found, Qt::Key_Down);
    QTest::keyClick(found, Qt::Key_Return);
    EXPECT_EQ(combo().BoundText(), "3");
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::List));
}

TEST_F(DataCombo, TheFocusSelectsTheWholeText) {
    combo().setText("Mela");
    gui.find("F", "field").setFocus();
    combo().setFocus();
    EXPECT_EQ(combo().lineEdit()->selectedText(), "Mela");
}

TEST_F(DataCombo, AListOfThousandsIsWholeAndOpens) {
    std::string values;
    for (int i = 0; i < 1000; ++i) {
        values += (i == 0 ? "('Voce " : ", ('Voce ") + std::to_string(i) + "')";
    }
    for (int i = 0; i < 5; ++i) {
        workstation.run(support::kCompany, "insert into frutta (nome) values " + values);
    }
    source.Refresh();
    EXPECT_EQ(combo().count(), 5005);
    gui.press(Qt::Key_Down);
    Gui::waitFor("the list", [&] { return combo().view()->isVisible(); });
    combo().hidePopup();
}

TEST_F(DataCombo, ADoubleClickOnTheTextIsToldOnce) {
    int told = 0;
    QObject::connect(&combo(), &controls::DataCombo::DblClick, [&] { ++told; });
    QTest::mouseClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(told, 0);
    QTest::mouseDClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(told, 1);
    QTest::mouseDClick(&gui.find("F", "field"), Qt::LeftButton);
    EXPECT_EQ(told, 1);
}

TEST_F(DataCombo, TabPassesAComboThatIsNoTabStop) {
    QWidget& field = gui.find("F", "field");
    EXPECT_TRUE(combo().TabStop());
    combo().setTabStop(false);
    EXPECT_FALSE(combo().TabStop());
    field.setFocus();
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(gui.focus(), "F.field") << "there is no other stop";
    QTest::mouseClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(gui.focus(), "F.combo");
    field.setFocus();
    combo().setTabStop(true);
    EXPECT_TRUE(combo().TabStop());
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(gui.focus(), "F.combo");
}

/// A list that takes any text.
class FreeDataCombo : public DataCombo {
protected:
    FreeDataCombo() {
        combo().takeFreeText();
        choose("Seleziona");
    }
};

TEST_F(FreeDataCombo, ATypedTextStaysWhenTheFieldIsLeft) {
    for (const char* text : {"Kiwi", "mela", "Mel", ""}) {
        combo().setFocus();
        choose("Pera");
        gui.type(text);
        if (*text == '\0') {
            gui.press(Qt::Key_Delete);
        }
        combo().completer()->popup()->hide();
        gui.form("F").activateWindow();
        gui.waitForFront("F");
        leave();
        EXPECT_EQ(combo().Text(), text);
    }
    EXPECT_TRUE(clicks.empty());
}

TEST_F(FreeDataCombo, EnterBringsTheTypedTextToTheFormAndNoneThatWasFound) {
    QAbstractItemView& found = search("albi");
    EXPECT_FALSE(found.currentIndex().isValid());
    QTest::keyClick(&found, Qt::Key_Return);
    EXPECT_FALSE(found.isVisible());
    EXPECT_THAT(stored, ElementsAre("albi"));
    EXPECT_TRUE(clicks.empty());
}

TEST_F(FreeDataCombo, TabLeavesWithTheTypedText) {
    QAbstractItemView& found = search("albi");
    QTest::keyClick(&found, Qt::Key_Tab);
    Gui::handleEvents();
    EXPECT_FALSE(found.isVisible());
    gui.form("F").activateWindow();
    gui.waitForFront("F");
    leave();
    EXPECT_EQ(combo().Text(), "albi");
    EXPECT_TRUE(clicks.empty());
}

TEST_F(FreeDataCombo, ARowOfWhatWasFoundIsPickedOnlyWhereTheUserGoesToIt) {
    QAbstractItemView& found = search("albi");
    QTest::keyClick(&found, Qt::Key_Down);
    QTest::keyClick(&found, Qt::Key_Return);
    Gui::handleEvents();
    EXPECT_EQ(combo().Text(), "Albicocca");
    EXPECT_THAT(clicks, ElementsAre(controls::DataCombo::List));
    EXPECT_TRUE(stored.empty());
}

TEST_F(FreeDataCombo, EscGoesBackToWhatWasTyped) {
    QAbstractItemView& found = search("albi");
    QTest::keyClick(&found, Qt::Key_Down);
    EXPECT_EQ(combo().Text(), "Albicocca");
    QTest::keyClick(&found, Qt::Key_Escape);
    EXPECT_EQ(combo().Text(), "albi");
    EXPECT_FALSE(found.isVisible());
}

TEST_F(FreeDataCombo, ATypedTextOfTheListStandsForItsRow) {
    choose("Albicocca");
    gui.type("Mela");
    EXPECT_EQ(combo().BoundText(), "1");
    gui.type("x");
    EXPECT_EQ(combo().BoundText(), "");
}

TEST_F(FreeDataCombo, ATypedTextBehindAPickStandsForItsFirstRow) {
    combo().setBoundText("5"); // the second of two rows that read Pera
    EXPECT_EQ(combo().BoundText(), "5");
    combo().lineEdit()->selectAll();
    gui.type("Pera");
    EXPECT_EQ(combo().BoundText(), "2");
}

TEST_F(FreeDataCombo, ATypedTextOutlivesAReadingOfTheList) {
    gui.type("Kiwi");
    source.Refresh();
    combo().ReFill();
    EXPECT_EQ(combo().Text(), "Kiwi");
}

} // namespace
