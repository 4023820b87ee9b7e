#include "controls/QtDialogs.h"

#include "SeenBox.h"
#include "controls/RoomyStyle.h"
#include "support/TestWorkstation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QTest>

#include <gmock/gmock.h>

namespace {

using support::pressKey;
using support::Seen;
using support::withBox;
using testing::ElementsAre;

class QtDialogs : public testing::Test {
protected:
    controls::QtDialogs dialogs;
    Seen seen;
};

TEST_F(QtDialogs, AMessageHasTheApplicationsTitleAndOneButton) {
    withBox(
        seen, [](QDialog& box) { pressKey(box, Qt::Key_Return); },
        [&] {
            dialogs.message("User not allowed! ", platform::Icon::None);
            return 0;
        });
    EXPECT_EQ(seen.title, "VaBo");
    EXPECT_EQ(seen.text, "User not allowed! ");
    EXPECT_THAT(seen.buttons, ElementsAre("OK"));
}

TEST_F(QtDialogs, AMessageIsNeverReadAsMarkup) {
    bool plain = false;
    withBox(
        seen,
        [&](QDialog& box) {
            plain = dynamic_cast<QMessageBox&>(box).textFormat() == Qt::PlainText;
            pressKey(box, Qt::Key_Escape);
        },
        [&] {
            dialogs.message("<b>Incorrect syntax</b>\r\nnear 'x'.", platform::Icon::Stop);
            return 0;
        });
    EXPECT_TRUE(plain);
    EXPECT_EQ(seen.text, "<b>Incorrect syntax</b>\r\nnear 'x'.");
}

struct Answer {
    const char* what;
    bool (controls::QtDialogs::*ask)(const std::string&);
    Qt::Key key;
    bool expected;
};

class QtDialogsAnswer : public testing::TestWithParam<Answer> {};

TEST_P(QtDialogsAnswer, IsTheOneOfTheKeyboard) {
    controls::QtDialogs dialogs;
    Seen seen;
    const Answer& answer = GetParam();
    const bool got = withBox(
        seen, [&](QDialog& box) { pressKey(box, answer.key); }, [&] { return (dialogs.*answer.ask)("Testo"); });
    EXPECT_EQ(got, answer.expected);
}

INSTANTIATE_TEST_SUITE_P(Keys, QtDialogsAnswer,
                         testing::Values(Answer{"QuestionEnter", &controls::QtDialogs::question, Qt::Key_Return, true},
                                         Answer{"ConfirmEnter", &controls::QtDialogs::confirm, Qt::Key_Return, true},
                                         Answer{"ConfirmEsc", &controls::QtDialogs::confirm, Qt::Key_Escape, false}),
                         [](const auto& info) { return info.param.what; });

/// Tries to close the box without its buttons; true where it stays open each time.
bool staysThere(QDialog& box) {
    pressKey(box, Qt::Key_Escape);
    const bool afterEsc = box.isVisible();
    box.close();
    return afterEsc && box.isVisible();
}

void pressButton(QDialog& box, const char* name) {
    auto* button = box.findChild<QAbstractButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

TEST_F(QtDialogs, AQuestionIsAnsweredByItsButtonsAlone) {
    for (const bool yes : {true, false}) {
        bool stayed = false;
        const bool got = withBox(
            seen,
            [&](QDialog& box) {
                stayed = staysThere(box);
                pressButton(box, yes ? "Sì" : "No");
            },
            [&] { return dialogs.question("Continuare?"); });
        EXPECT_TRUE(stayed);
        EXPECT_EQ(got, yes);
    }
}

TEST_F(QtDialogs, AQuestionHasNoCloseButton) {
    Qt::WindowFlags flags;
    withBox(
        seen,
        [&](QDialog& box) {
            flags = box.windowFlags();
            pressKey(box, Qt::Key_Return);
        },
        [&] { return dialogs.question("Continuare?"); });
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowCloseButtonHint));
}

TEST_F(QtDialogs, TheCloseButtonIsCancelWhereThereIsCancel) {
    EXPECT_FALSE(withBox(
        seen, [](QDialog& box) { box.close(); }, [&] { return dialogs.confirm("Continuare?"); }));
}

TEST_F(QtDialogs, AMessageGoesByEscAndByItsCloseButton) {
    bool gone = false;
    for (const bool esc : {true, false}) {
        withBox(
            seen,
            [&](QDialog& box) {
                esc ? pressKey(box, Qt::Key_Escape) : static_cast<void>(box.close());
                gone = !box.isVisible();
            },
            [&] {
                dialogs.message("Fatto.", platform::Icon::None);
                EXPECT_TRUE(gone);
                return 0;
            });
    }
}

TEST_F(QtDialogs, AQuestionHasYesAndNoInItalian) {
    withBox(
        seen, [](QDialog& box) { pressButton(box, "No"); }, [&] { return dialogs.question("Continuare?"); });
    EXPECT_THAT(seen.buttons, testing::UnorderedElementsAre("Sì", "No"));
}

TEST_F(QtDialogs, AConfirmationHasOkAndCancelInItalian) {
    withBox(
        seen, [](QDialog& box) { box.reject(); }, [&] { return dialogs.confirm("Continuare?"); });
    EXPECT_THAT(seen.buttons, testing::UnorderedElementsAre("OK", "Annulla"));
}

TEST_F(QtDialogs, AnInputProposesATextAndGivesBackWhatStandsThere) {
    std::string prompt;
    const std::string got = withBox(
        seen,
        [&](QDialog& box) {
            prompt = box.findChild<QLabel*>()->text().toStdString();
            EXPECT_EQ(box.findChild<QLineEdit*>()->text(), "1");
            box.findChild<QLineEdit*>()->setText("22");
            pressKey(box, Qt::Key_Return);
        },
        [&] { return dialogs.input("Numero:", "Sezionale", "1"); });
    EXPECT_EQ(got, "22");
    EXPECT_EQ(prompt, "Numero:");
    EXPECT_EQ(seen.title, "Sezionale");
    EXPECT_THAT(seen.buttons, testing::UnorderedElementsAre("OK", "Annulla"));
}

/// A desktop style that puts icons on the buttons of boxes.
class DesktopWithPictures : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

TEST_F(QtDialogs, ButtonsHaveNoPicturesWhateverTheDesktop) {
    controls::RoomyStyle style;
    style.setBaseStyle(new DesktopWithPictures);
    EXPECT_EQ(style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
}

TEST_F(QtDialogs, TheButtonOfAMessageStandsInItsMiddle) {
    withBox(
        seen,
        [](QDialog& box) {
            const auto* button = box.findChild<QAbstractButton*>("OK");
            ASSERT_NE(button, nullptr);
            const int middle = button->mapTo(&box, button->rect().center()).x();
            EXPECT_NEAR(middle, box.rect().center().x(), 1);
            pressKey(box, Qt::Key_Escape);
        },
        [&] {
            dialogs.message("Type mismatch", platform::Icon::None);
            return 0;
        });
}

TEST_F(QtDialogs, ABoxIsNotOwnedByAWindowThatIsHidden) {
    QWidget window;
    window.show();
    window.activateWindow();
    window.hide();
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::activeWindow(), &window) << "made active after it was hidden";
    const QWidget* owner = &window;
    withBox(
        seen,
        [&](QDialog& box) {
            owner = box.parentWidget();
            pressKey(box, Qt::Key_Escape);
        },
        [&] {
            dialogs.message("Solo", platform::Icon::None);
            return 0;
        });
    EXPECT_EQ(seen.text, "Solo");
    EXPECT_EQ(owner, nullptr);
}

struct Left {
    const char* what;
    /// What is made of the answer that never came.
    std::string (*ask)(controls::QtDialogs&);
};

class AQtDialogOfADestroyedWindow : public testing::TestWithParam<Left> {};

TEST_P(AQtDialogOfADestroyedWindow, GoesWithItAndCountsAsCancelled) {
    const support::TestWorkstation workstation{support::TestWorkstation::DriveC::Empty};
    controls::QtDialogs dialogs;
    auto* window = new QWidget;
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    Seen seen;
    bool below = false;
    const std::string answer = withBox(
        seen,
        [&](QDialog& box) {
            below = box.parentWidget() == window;
            delete window;
        },
        [&] { return GetParam().ask(dialogs); });
    EXPECT_TRUE(below);
    EXPECT_EQ(answer, "");
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, AQtDialogOfADestroyedWindow,
    testing::Values(Left{"Confirmation",
                         [](controls::QtDialogs& dialogs) {
                             return std::string(dialogs.confirm("Vado?") ? "OK" : "");
                         }},
                    Left{"Input", [](controls::QtDialogs& dialogs) { return dialogs.input("Numero:", "", "1"); }},
                    Left{"Folder", [](controls::QtDialogs& dialogs) { return dialogs.folder("Cartella"); }}),
    [](const auto& one) { return std::string(one.param.what); });

TEST_F(QtDialogs, ACancelledInputIsTheEmptyText) {
    const std::string got = withBox(
        seen, [](QDialog& box) { pressKey(box, Qt::Key_Escape); }, [&] { return dialogs.input("Numero:", "", "1"); });
    EXPECT_EQ(got, "");
    EXPECT_EQ(seen.title, "VaBo") << "the application's own title";
}

} // namespace
