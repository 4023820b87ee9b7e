#include "controls/Picker.h"

#include "DataFixture.h"
#include "controls/DataCombo.h"
#include "support/DialogScript.h"
#include "support/Gui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace {

using support::Gui;

/// Two pickers on a form that share one key.
class Picker : public DataFixture {
protected:
    Picker() {
        gui.forms().add("F", [this] {
            auto form = std::make_unique<controls::Form>("F");
            for (const char* name : {"primo", "secondo"}) {
                auto* combo = new controls::DataCombo(form.get());
                combo->setObjectName(name);
                auto* list = new controls::DataControl(form.get());
                list->setObjectName(std::string("elenco_").append(name).c_str());
                auto* picker = new controls::Picker(*combo, *list, "nome", "id", key);
                QObject::connect(picker, &controls::Picker::Picked,
                                 [this, name] { picked.push_back(name + std::string(" ") + std::to_string(key)); });
                pickers.push_back(picker);
            }
            return form;
        });
        gui.forms().show("F");
        gui.waitForFront("F");
        for (controls::Picker* picker : pickers) {
            picker->load(source.ConnectionString, source.RecordSource);
        }
    }
    controls::DataCombo& combo() { return gui.find<controls::DataCombo>("F", "primo"); }

    double key = 0;
    std::vector<controls::Picker*> pickers;
    std::vector<std::string> picked;
    Gui gui;
    support::DialogScript script;
};

using Told = std::vector<std::string>;

TEST_F(Picker, APickGivesTheKeyOfItsRow) {
    gui.pick("F", "primo", "Albicocca");
    EXPECT_EQ(picked, Told{"primo 3.000000"});
    EXPECT_EQ(combo().Text(), "Albicocca");
    gui.pick("F", "secondo", "Mela");
    EXPECT_EQ(picked, (Told{"primo 3.000000", "secondo 1.000000"})) << "the key is one for both";
    EXPECT_EQ(&pickers.at(0)->key(), &pickers.at(1)->key());
}

TEST_F(Picker, AListThatIsOnlyReadFillsItsComboLater) {
    const int all = combo().count();
    ASSERT_GT(all, 0);
    pickers.at(0)->read(source.ConnectionString, source.RecordSource);
    EXPECT_EQ(combo().count(), 0);
    pickers.at(0)->fill();
    EXPECT_EQ(combo().count(), all);
    EXPECT_THROW(pickers.at(0)->read(source.ConnectionString, "select * from non_esiste"), ado::Error);
    EXPECT_EQ(combo().count(), 0);
    pickers.at(0)->load(source.ConnectionString, source.RecordSource);
    EXPECT_EQ(combo().count(), all);
}

TEST_F(Picker, APickWhileTheFormIsDisabledOrABoxIsOpenIsNone) {
    key = 7;
    const int row = combo().findText("Albicocca");
    gui.form("F").setEnabled(false);
    emit combo().activated(row);
    EXPECT_EQ(key, 7);
    gui.form("F").setEnabled(true);
    QDialog box;
    box.setModal(true);
    box.show();
    emit combo().activated(row);
    EXPECT_EQ(key, 7);
    EXPECT_EQ(picked, Told{});
    box.hide();
    gui.pick("F", "primo", "Albicocca");
    EXPECT_EQ(key, 3);
}

TEST_F(Picker, AClickElsewhereAndATextFromCodePickNothing) {
    key = 7;
    combo().setText("Albicocca");
    QTest::mouseClick(combo().lineEdit(), Qt::LeftButton);
    EXPECT_EQ(picked, Told{});
    EXPECT_EQ(key, 7);
}

TEST_F(Picker, ItsListIsReadAnewAndTheTextStays) {
    combo().setText("Seleziona");
    pickers.at(0)->load(source.ConnectionString, "select id, nome from frutta where id = 2");
    EXPECT_EQ(combo().count(), 1);
    EXPECT_EQ(combo().Text(), "Seleziona");
    EXPECT_THROW(pickers.at(0)->load(source.ConnectionString, "select * from nessuna"), ado::Error);
    EXPECT_EQ(combo().count(), 0);
}

TEST_F(Picker, AKeyThatIsNoNumberIsToldAndPicksNothing) {
    key = 7;
    pickers.at(0)->load(source.ConnectionString, "select nome as id, nome from frutta where id = 3");
    script.expectMessage("Type mismatch");
    gui.pick("F", "primo", "Albicocca");
    EXPECT_EQ(picked, Told{});
    EXPECT_EQ(key, 7);
}

TEST_F(Picker, DeleteEmptiesTextAndKeyOnlyWhereItIsToldTo) {
    key = 3;
    combo().setText("Albicocca");
    combo().setFocus();
    gui.press(Qt::Key_Delete);
    EXPECT_EQ(key, 3) << "it edits the text";
    pickers.at(0)->clearWithDelete();
    combo().setText("Albicocca");
    gui.press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(key, 3);
    combo().setText("Albicocca");
    gui.press(Qt::Key_Delete);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(combo().Text(), "");
    EXPECT_EQ(picked, Told{});
}

TEST_F(Picker, DeleteIsHeardInTheListThatOpensWhileOneTypes) {
    pickers.at(0)->clearWithDelete();
    key = 3;
    combo().setFocus();
    gui.type("a");
    QAbstractItemView* found = combo().completer()->popup();
    Gui::waitFor("the search", [&] { return found->isVisible(); });
    QTest::keyClick(found, Qt::Key_Delete);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(combo().Text(), "");
}

} // namespace
