#include "controls/ItemCombo.h"

#include "RecordedForm.h"
#include "ado/Error.h"
#include "controls/TextBox.h"
#include "support/Gui.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

using support::Gui;

class ItemCombo : public testing::Test {
protected:
    ItemCombo() {
        combo.setText("Seleziona");
        combo.addItem("Pozzi   -   40", 40);
        combo.addItem("Scuola   -   10000001", 10000001);
        combo.addItem("Semi   -   -3", -3);
        QObject::connect(&combo, &controls::ItemCombo::Click, [this] { clicks.push_back(combo.ItemData()); });
        combo.show();
        combo.activateWindow();
        combo.setFocus();
        Gui::waitFor("the focus", [this] { return combo.hasFocus(); });
    }
    void waitForList() {
        Gui::waitFor("the list", [this] { return combo.view()->isVisible(); });
    }

    Gui gui;
    controls::ItemCombo combo;
    std::vector<std::int32_t> clicks;
};

TEST_F(ItemCombo, NothingIsPickedAtFirst) {
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "Seleziona");
    try {
        combo.ItemData();
        ADD_FAILURE() << "of what item?";
    } catch (const ado::Error& error) {
        EXPECT_EQ(error.number(), 381);
    }
}

TEST_F(ItemCombo, APickTellsItsNumber) {
    QTest::keyClick(&combo, Qt::Key_Down);
    waitForList();
    EXPECT_EQ(clicks, std::vector<std::int32_t>{}) << "the arrow opens the list";
    QTest::keyClick(combo.view(), Qt::Key_Home);
    QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(clicks, std::vector<std::int32_t>{10000001});
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.ItemData(), 10000001);
    EXPECT_EQ(combo.Text(), "Scuola   -   10000001");
}

TEST_F(ItemCombo, LettersAreSoughtInTheOpenList) {
    QTest::keyClick(&combo, 'S');
    waitForList();
    QTest::keyClick(combo.view(), 'e');
    EXPECT_EQ(combo.ListIndex(), -1) << "not before Enter";
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(clicks, std::vector<std::int32_t>{-3});
}

TEST_F(ItemCombo, ThePickedItemPickedAgainIsToldAgain) {
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&combo, Qt::Key_Down);
        waitForList();
        QTest::keyClick(combo.view(), Qt::Key_Home);
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }
    EXPECT_EQ(clicks, (std::vector<std::int32_t>{40, 40}));
}

TEST_F(ItemCombo, ATextForNoneTakesThePickBackWithoutAClick) {
    combo.setCurrentIndex(2);
    combo.setText("Seleziona");
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "Seleziona");
    combo.addItem("Uffici   -   7", 7);
    EXPECT_EQ(combo.ListIndex(), -1) << "another item picks none";
    EXPECT_EQ(clicks, std::vector<std::int32_t>{});
}

TEST_F(ItemCombo, TheWheelPicksNothing) {
    QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(clicks, std::vector<std::int32_t>{});
}

TEST_F(ItemCombo, EnterIsLeftToTheForm) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&combo, &press);
        EXPECT_FALSE(press.isAccepted());
    }
    EXPECT_EQ(clicks, std::vector<std::int32_t>{});
}

/// A pick leads to the field behind the list, where Enter counts.
class ItemComboWithField : public testing::Test {
protected:
    ItemComboWithField() {
        gui.forms().add("F", [this] {
            auto form = std::make_unique<RecordedForm>("F", log);
            auto* layout = new QVBoxLayout(form.get());
            auto* combo = new controls::ItemCombo;
            auto* field = new controls::TextBox;
            combo->setObjectName("combo");
            field->setObjectName("field");
            layout->addWidget(combo);
            layout->addWidget(field);
            combo->addItem("Pozzi", 1);
            combo->addItem("Scuola", 2);
            form->on(combo, &controls::ItemCombo::Click, [field] { controls::SetFocus(*field); });
            form->chain({{field, controls::EndOfEntry::Enter, [this] { ++ends; }}});
            return form;
        });
        gui.forms().show("F");
        gui.waitForFront("F");
        gui.find("F", "combo").setFocus();
    }
    /// As the window system sends it before it knows of the list.
    void press(Qt::Key key) const { QTest::keyClick(gui.form("F").windowHandle(), key); }

    int ends = 0;
    std::vector<std::string> log;
    Gui gui;
};

TEST_F(ItemComboWithField, TheEnterThatPicksIsNoneOfTheFieldThatGetsTheFocus) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        ends = 0;
        auto& combo = gui.find<controls::ItemCombo>("F", "combo");
        combo.setFocus();
        press(Qt::Key_Down);
        Gui::waitFor("the list", [&] { return combo.view()->isVisible(); });
        press(Qt::Key_S);
        press(enter);
        EXPECT_EQ(combo.Text(), "Scuola");
        EXPECT_EQ(gui.focus(), "F.field");
        EXPECT_EQ(ends, 0);
        gui.press(enter);
        EXPECT_EQ(ends, 1) << "the next one is";
    }
}

} // namespace
