// A box about a text that is too long for it.

#include "SeenBox.h"
#include "controls/QtDialogs.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <ostream>

namespace {

using support::pressKey;
using support::Seen;
using support::withBox;

struct LongText {
    const char* what;
    std::string text;
};

void PrintTo(const LongText& text, std::ostream* out) {
    *out << text.what;
}

std::string repeated(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

std::string nameOf(const testing::TestParamInfo<LongText>& test) {
    return test.param.what;
}

/// Waits until the box has the keyboard and its text; closes it at the end, whatever a test makes of it.
class Answering {
public:
    explicit Answering(QDialog& box) : box_(&box) {
        support::Gui::waitFor("the box in front", [&] { return QApplication::activeWindow() == &box; });
        support::Gui::handleEvents();
    }
    Answering(const Answering&) = delete;
    Answering& operator=(const Answering&) = delete;
    ~Answering() {
        if (!box_.isNull() && box_->isVisible()) {
            ADD_FAILURE() << "the key didn't close the box";
            box_->done(0);
        }
    }

private:
    QPointer<QDialog> box_;
};

/// The part of a box that holds its text instead of the label; null in an ordinary box.
QPlainTextEdit* scrolled(const QDialog& box) {
    return box.findChild<QPlainTextEdit*>();
}

bool isWhollyOnItsScreen(const QWidget& widget) {
    const QRect place(widget.mapToGlobal(QPoint()), widget.size());
    return widget.isVisible() && widget.window()->frameGeometry().contains(place) &&
           widget.screen()->availableSize().height() >= widget.window()->frameGeometry().height() &&
           widget.screen()->availableSize().width() >= widget.window()->frameGeometry().width();
}

class BoxOfALongText : public testing::TestWithParam<LongText> {
protected:
    controls::QtDialogs dialogs;
    Seen seen;
};

TEST_P(BoxOfALongText, StaysOnTheScreenWithTheWholeTextInIt) {
    QElapsedTimer time;
    time.start();
    const bool yes = withBox(
        seen,
        [](QDialog& box) {
            const Answering answering(box);
            const auto* text = scrolled(box);
            ASSERT_NE(text, nullptr);
            EXPECT_EQ(text->toPlainText().toStdString(), GetParam().text);
            EXPECT_TRUE(isWhollyOnItsScreen(*text));
            EXPECT_LE(text->document()->size().width(), text->viewport()->width()) << "every line is wrapped";
            EXPECT_GT(text->height(), 2 * text->fontMetrics().lineSpacing());
            const bool wholeInSight = text->verticalScrollBar()->maximum() == 0;
            EXPECT_EQ(text->verticalScrollBar()->isVisible(), !wholeInSight);
            EXPECT_TRUE(wholeInSight || text->height() >= box.screen()->availableSize().height() / 3)
                << "as much of it as there is room for";
            EXPECT_TRUE(text->isReadOnly());
            EXPECT_EQ(text->accessibleName(), box.windowTitle());
            EXPECT_FALSE(box.findChild<QLabel*>("qt_msgbox_label")->isVisible()) << "the text is there once";
            for (const auto* button : dynamic_cast<QMessageBox&>(box).buttons()) {
                EXPECT_TRUE(isWhollyOnItsScreen(*button)) << button->text().toStdString();
            }
            EXPECT_TRUE(QApplication::focusWidget() != text) << "Enter is the button's";
            pressKey(box, Qt::Key_Return);
        },
        [&] { return dialogs.question(GetParam().text); });
    EXPECT_TRUE(yes);
    EXPECT_EQ(seen.text, GetParam().text) << "the box's text is the one that it was given";
    EXPECT_LT(time.elapsed(), 5000);
}

TEST_P(BoxOfALongText, CanBeReadToItsEndByTheKeyboardAndAnsweredFromThere) {
    bool atTheEnd = false;
    withBox(
        seen,
        [&](QDialog& box) {
            const Answering answering(box);
            auto* text = scrolled(box);
            ASSERT_NE(text, nullptr);
            for (int tabs = 0; QApplication::focusWidget() != text; ++tabs) {
                ASSERT_LT(tabs, 3) << "Tab doesn't reach the text";
                pressKey(box, Qt::Key_Tab);
            }
            QTest::keyClick(text, Qt::Key_End, Qt::ControlModifier);
            atTheEnd = text->textCursor().atEnd() && text->viewport()->rect().contains(text->cursorRect());
            pressKey(box, Qt::Key_Tab);
            EXPECT_TRUE(QApplication::focusWidget() != text) << "Tab leaves it";
            pressKey(box, Qt::Key_Escape);
        },
        [&] {
            dialogs.message(GetParam().text, platform::Icon::None);
            return 0;
        });
    EXPECT_TRUE(atTheEnd);
}

INSTANTIATE_TEST_SUITE_P(Of, BoxOfALongText,
                         testing::Values(LongText{"OneWord", std::string(4000, 'x')},
                                         LongText{"ALongerWord", std::string(32767, 'W')},
                                         LongText{"Words", repeated("parola ", 700)},
                                         LongText{"Lines", repeated("una riga\n", 200) + "fine"},
                                         LongText{"Markup", repeated("<b>grassetto</b> & ", 300)},
                                         LongText{"AHundredAndFiftyLetters", std::string(150, 'M')}),
                         nameOf);

TEST(BoxOfAShortText, IsItsLabel) {
    controls::QtDialogs dialogs;
    for (const std::string& text :
         {std::string("Occorre inserire almeno un amministratore di sistema! Operazione annullata"),
          repeated("Una frase di lunghezza comune. ", 10), std::string("Prima riga\nseconda riga\n\nultima")}) {
        Seen seen;
        withBox(
            seen,
            [](QDialog& box) {
                const Answering answering(box);
                EXPECT_EQ(scrolled(box), nullptr);
                EXPECT_TRUE(box.findChild<QLabel*>("qt_msgbox_label")->isVisible());
                pressKey(box, Qt::Key_Return);
            },
            [&] {
                dialogs.message(text, platform::Icon::None);
                return 0;
            });
        EXPECT_EQ(seen.text, text);
    }
}

TEST(BoxOfAShortText, WithOneLongWordIsNoHigherThanItsLines) {
    controls::QtDialogs dialogs;
    Seen seen;
    withBox(
        seen,
        [](QDialog& box) {
            const Answering answering(box);
            const auto* text = scrolled(box);
            ASSERT_NE(text, nullptr);
            EXPECT_EQ(text->verticalScrollBar()->maximum(), 0) << "all of it is in sight";
            EXPECT_LT(text->height(), 8 * text->fontMetrics().lineSpacing());
            pressKey(box, Qt::Key_Return);
        },
        [&] {
            dialogs.message("Blocco la contabilità sino alla data " + std::string(150, 'x') + " ?",
                            platform::Icon::None);
            return 0;
        });
}

} // namespace
