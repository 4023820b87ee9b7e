#include "controls/Form.h"

#include "RecordedForm.h"
#include "support/DialogScript.h"
#include "support/Gui.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

using support::Gui;

/// A form with a button that does what the test says.
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
            for (QWidget* each : std::initializer_list<QWidget*>{label, field, button})
                layout->addWidget(each);
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
