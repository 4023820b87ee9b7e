// A press of the mouse that moves the focus, where the field before opens a box when it loses it.

#include "RecordedForm.h"
#include "controls/TextBox.h"
#include "support/RealBoxes.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using support::RealBoxes;
using testing::ElementsAre;

class BoxOfALostFocus : public testing::Test {
protected:
    BoxOfALostFocus() {
        gui.forms().add("F", [this] { return make(); });
        gui.forms().show("F");
        gui.waitForFront("F");
        gui.find("F", "field").setFocus();
    }
    std::unique_ptr<controls::Form> make() {
        auto form = std::make_unique<RecordedForm>("F", log);
        auto* layout = new QVBoxLayout(form.get());
        const auto add = [&](QWidget* control, const char* name) {
            control->setObjectName(name);
            layout->addWidget(control, 0, Qt::AlignLeft); // a tick is changed on its text, not beside it
        };
        auto* field = new controls::TextBox;
        auto* button = new QPushButton;
        add(field, "field");
        add(button, "button");
        add(new QCheckBox("spunta"), "box");
        auto* other = new controls::TextBox;
        other->setText("testo");
        add(other, "other");
        form->on(field, &controls::TextBox::LostFocus, [] { platform::dialogs().message("Errato"); });
        form->on(button, &QPushButton::clicked, [this] { ++clicks; });
        return form;
    }
    QPushButton& button() { return gui.find<QPushButton>("F", "button"); }

    std::vector<std::string> log;
    int clicks = 0;
    Gui gui;
    RealBoxes boxes;
};

TEST_F(BoxOfALostFocus, TheButtonIsClickedOnceAndDoesNotStayDown) {
    for (const RealBoxes::Answer answer : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        boxes.answered = answer;
        boxes.texts.clear();
        clicks = 0;
        gui.find("F", "field").setFocus();
        boxes.click(button());
        EXPECT_THAT(boxes.texts, ElementsAre("Errato"));
        EXPECT_EQ(clicks, 1);
        EXPECT_FALSE(button().isDown());
        boxes.click(button());
        EXPECT_EQ(clicks, 2) << "the next click is one as ever";
    }
}

TEST_F(BoxOfALostFocus, WithoutABoxAButtonIsClickedWhenTheMouseIsReleased) {
    gui.find("F", "other").setFocus();
    RealBoxes::settle(&gui.form("F"));
    boxes.texts.clear();
    QTest::mousePress(&button(), Qt::LeftButton);
    Gui::handleEvents();
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(button().isDown());
    QTest::mouseRelease(&button(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(boxes.texts.empty());
}

TEST_F(BoxOfALostFocus, ATickChangesOnce) {
    auto& box = gui.find<QCheckBox>("F", "box");
    boxes.click(box);
    EXPECT_TRUE(box.isChecked());
    EXPECT_FALSE(box.isDown());
}

TEST_F(BoxOfALostFocus, AFieldHasItsTextSelected) {
    boxes.click(gui.find("F", "other"));
    EXPECT_EQ(gui.focus(), "F.other");
    EXPECT_EQ(gui.find<controls::TextBox>("F", "other").selectedText(), "testo");
    boxes.click(gui.find("F", "other"));
    EXPECT_EQ(gui.find<controls::TextBox>("F", "other").selectedText(), "") << "a second click places the caret";
}

TEST_F(BoxOfALostFocus, AButtonThatIsHiddenMeanwhileIsNotClicked) {
    QObject::connect(&gui.find<controls::TextBox>("F", "field"), &controls::TextBox::LostFocus, &button(),
                     &QWidget::hide);
    boxes.click(button());
    EXPECT_EQ(clicks, 0);
}

} // namespace
