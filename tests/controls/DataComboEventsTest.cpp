// What a combo tells besides a pick: another text, a double click.

#include "DataFixture.h"
#include "RecordedForm.h"
#include "controls/DataCombo.h"
#include "support/Gui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A form with the combo and a field after it. Each event is recorded with the text that the combo shows then.
class DataComboEvents : public DataFixture {
protected:
    DataComboEvents() {
        gui.forms().add("F", [this] {
            auto form = std::make_unique<RecordedForm>("F", log);
            auto* layout = new QVBoxLayout(form.get());
            auto* list = new controls::DataCombo;
            auto* field = new QLineEdit;
            list->setObjectName("combo");
            field->setObjectName("field");
            list->ListField = "NOME";
            list->BoundColumn = "id";
            list->setRowSource(&source);
            form->on(list, &controls::DataCombo::Change, [this] { record("change"); });
            form->on(list, &controls::DataCombo::Click, [this] { record("click"); });
            form->on(list, &controls::DataCombo::DblClick, [this] { record("double"); });
            form->chain({{list, controls::EndOfEntry::Enter, [this] { record("enter"); }}});
            layout->addWidget(list);
            layout->addWidget(field);
            return form;
        });
        source.Refresh();
        gui.forms().show("F");
        gui.waitForFront("F");
        combo().ReFill();
        combo().setFocus();
        happened.clear();
    }
    controls::DataCombo& combo() { return gui.find<controls::DataCombo>("F", "combo"); }
    void record(const std::string& event) { happened.push_back(event + " " + combo().Text()); }

    std::vector<std::string> happened;
    std::vector<std::string> log;
    support::Gui gui;
};

TEST_F(DataComboEvents, AnotherTextSetByTheFormIsAChange) {
    combo().setText("Mela");
    combo().setText("Mela");
    combo().setText("Seleziona");
    combo().setBoundText("2");
    combo().setBoundText("5"); // another row of the same text
    combo().setBoundText("99");
    EXPECT_THAT(happened, ElementsAre("change Mela", "change Seleziona", "change Pera", "change "));
}

TEST_F(DataComboEvents, APickIsAChangeAheadOfItsClick) {
    gui.pick("F", "combo", "Albicocca");
    gui.pick("F", "combo", "Albicocca");
    EXPECT_THAT(happened, ElementsAre("change Albicocca", "click Albicocca", "click Albicocca"));
}

TEST_F(DataComboEvents, ASearchIsNoChange) {
    combo().setText("Mela");
    happened.clear();
    combo().lineEdit()->selectAll();
    gui.type("er");
    combo().completer()->popup()->hide();
    gui.find("F", "field").setFocus();
    support::Gui::handleEvents();
    EXPECT_EQ(combo().Text(), "Mela");
    combo().ReFill();
    EXPECT_THAT(happened, IsEmpty());
}

TEST_F(DataComboEvents, WhereTypedTextCountsEachLetterIsAChange) {
    combo().takeFreeText();
    gui.type("Ki");
    combo().completer()->popup()->hide();
    EXPECT_THAT(happened, ElementsAre("change K", "change Ki"));
}

TEST_F(DataComboEvents, ADoubleClickOnTheTextIsOne) {
    combo().setText("Mela");
    happened.clear();
    QTest::mouseDClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(happened.back(), "double Mela");
    EXPECT_EQ(std::ranges::count(happened, "double Mela"), 1);
}

TEST_F(DataComboEvents, CtrlEnterIsADoubleClickByKeyboard) {
    combo().setText("Mela");
    happened.clear();
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    gui.press(Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_THAT(happened, ElementsAre("double Mela", "double Mela"));
    gui.press(Qt::Key_Return);
    EXPECT_EQ(happened.back(), "enter Mela");
    EXPECT_EQ(happened.size(), 3U);
}

} // namespace
