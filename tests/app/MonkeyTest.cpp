#include "app/Forms.h"
#include "controls/QtDialogs.h"
#include "session/FormFixture.h"
#include "session/TreatForms.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <array>
#include <random>

namespace {

using support::Gui;

using Random = std::mt19937;

template<typename Items>
auto& oneOf(Random& random, Items& items) {
    return items[std::uniform_int_distribution<std::size_t>(0, std::size(items) - 1)(random)];
}

bool oneIn(Random& random, int times) {
    return std::uniform_int_distribution<int>(1, times)(random) == 1;
}

/// Sends keys and close events to every box that opens, and to the forms behind it, until one of its buttons closes it.
class BoxMonkey : public QObject {
public:
    explicit BoxMonkey(Random& random) : random_(random) {
        platform::setDialogs(std::make_unique<controls::QtDialogs>());
        qApp->installEventFilter(this);
    }
    BoxMonkey(const BoxMonkey&) = delete;
    BoxMonkey& operator=(const BoxMonkey&) = delete;
    ~BoxMonkey() override { platform::setDialogs(nullptr); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched) != nullptr) {
            QMetaObject::invokeMethod(
                this, [this] { answer(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void answer() {
        const QPointer<QWidget> box = QApplication::activeModalWidget();
        if (box.isNull()) {
            return;
        }
        clickBehind(*box);
        if (oneIn(random_, 2) && box) {
            box->close();
        }
        if (oneIn(random_, 2) && box && box->isVisible()) {
            QTest::keyClick(box->windowHandle(), Qt::Key_Escape);
        }
        if (!box || !box->isVisible()) {
            return;
        }
        QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
        QTest::mouseClick(oneOf(random_, buttons), Qt::LeftButton);
    }

    /// Clicks on every button of the forms, which the modal box must keep from them.
    static void clickBehind(const QWidget& box) {
        for (const QWidget* form : QApplication::topLevelWidgets()) {
            if (form == &box || !form->isVisible()) {
                continue;
            }
            QWindow* window = form->windowHandle();
            for (const auto* button : form->findChildren<QPushButton*>()) {
                const QPoint place = button->mapTo(form, button->rect().center());
                if (button->isVisible() && QRect({}, window->size()).contains(place)) {
                    QTest::mouseClick(window, Qt::LeftButton, {}, place);
                }
            }
        }
    }

    Random& random_;
};

constexpr std::array kKeys = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,    Qt::Key_Backtab,
                              Qt::Key_Space,  Qt::Key_Escape, Qt::Key_Down,  Qt::Key_Up,     Qt::Key_Left,
                              Qt::Key_Right,  Qt::Key_Delete, Qt::Key_A,     Qt::Key_E,      Qt::Key_F1,
                              Qt::Key_F2,     Qt::Key_F4,     Qt::Key_F5,    Qt::Key_F10,    Qt::Key_F12,
                              Qt::Key_Home,   Qt::Key_End,    Qt::Key_Menu,  Qt::Key_PageUp, Qt::Key_PageDown};
constexpr std::array kMnemonics = {Qt::Key_A, Qt::Key_B, Qt::Key_C, Qt::Key_D, Qt::Key_E,
                                   Qt::Key_M, Qt::Key_P, Qt::Key_R, Qt::Key_S, Qt::Key_T};

/// Presses any key or button at random, also in windows that were just closed.
class Monkey : public FormTest {
protected:
    Monkey() { vabo::DirittiUtente.Administrator = vabo::kVero; }

    /// Starts with the console, the login or the form of the data sources.
    void start() {
        for (const char* form : {"Login", "Avvio_Morlan", "FormRegistraAziendeNeiDns", "About", "Avvio_Azienda"}) {
            gui.forms().unload(form);
        }
        Gui::handleEvents();
        for (const char* form : {"Avvio_Azienda", "About", "FormRegistraAziendeNeiDns"}) {
            gui.forms().unload(form);
        }
        Gui::handleEvents();
        vabo::NomeTerminale = support::kTerminalName;
        constexpr std::array kFirst = {"Avvio_Azienda", "Avvio_Azienda", "Avvio_Azienda", "About"};
        const char* first = oneOf(random, kFirst);
        gui.forms().show(first);
        if (oneIn(random, 4)) {
            vabo::ApriForm("FormRegistraAziendeNeiDns", true);
            gui.forms().hide(first);
        }
        Gui::handleEvents();
    }

    /// Does one step and returns its description.
    std::string step() {
        QWidget* form = oneOfTheForms();
        switch (std::uniform_int_distribution<int>(0, 9)(random)) {
        case 0:
        case 1:
            return press(oneOf(random, kKeys), Qt::NoModifier);
        case 2:
            return press(oneOf(random, kMnemonics), Qt::AltModifier);
        case 3:
            if (!oneIn(random, 3)) {
                return "nothing";
            }
            return close(*form);
        case 4:
            return keyTo(*form);
        default:
            return clickOn(*form);
        }
    }

    const Random::result_type seed = std::random_device{}();
    Random random{seed};
    BoxMonkey boxes{random};

private:
    QWidget* oneOfTheForms() {
        std::vector<QWidget*> forms;
        for (const char* name : {"Avvio_Azienda", "About", "FormRegistraAziendeNeiDns", "Avvio_Morlan", "Login"}) {
            if (controls::Form* loaded = gui.forms().loaded(name)) {
                forms.push_back(loaded);
            }
        }
        return oneOf(random, forms);
    }
    std::string press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        if (QWindow* window = QGuiApplication::focusWindow()) {
            QTest::keyClick(window, key, modifiers);
        }
        return "key " + std::to_string(key);
    }
    QPushButton* button(const QWidget& form) {
        QList<QPushButton*> all = form.findChildren<QPushButton*>();
        return all.isEmpty() ? nullptr : oneOf(random, all);
    }
    static std::string close(const QWidget& form) {
        const std::string name = form.objectName().toStdString();
        if (form.windowHandle() != nullptr) {
            form.windowHandle()->close();
        }
        return "close " + name;
    }
    std::string keyTo(const QWidget& form) {
        const std::string name = form.objectName().toStdString();
        if (QPushButton* target = button(form)) {
            QTest::keyClick(target, oneIn(random, 2) ? Qt::Key_Return : Qt::Key_Space);
        }
        return "key to a button of " + name;
    }
    std::string clickOn(const QWidget& form) {
        QList<QWidget*> controls = form.findChildren<QWidget*>();
        const QPointer<QWidget> target = oneIn(random, 3) ? oneOf(random, controls) : button(form);
        const std::string what =
            form.objectName().toStdString() + "." + (target ? target->objectName().toStdString() : "");
        for (int clicks = oneIn(random, 2) ? 2 : 1; clicks > 0 && target; --clicks) {
            QTest::mouseClick(target, Qt::LeftButton);
        }
        return "click on " + what;
    }
};

// Only closing the console or the login may leave no window.
TEST_F(Monkey, NoOrderOfKeysAndClicksLeavesTheProgramWithoutAWindow) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    constexpr int kSteps = 300;
    start();
    std::vector<std::string> steps;
    for (int i = 0; i < kSteps && !HasFailure(); ++i) {
        const std::string before = gui.visibleForms();
        steps.push_back(before + ": " + step());
        Gui::handleEvents();
        if (!gui.visibleForms().empty()) {
            continue;
        }
        const bool lastOneClosed = (before == "Avvio_Azienda" || before == "About") && !gui.forms().isLoaded(before);
        std::string story;
        for (const std::string& each : steps) {
            story += each + "\n";
        }
        EXPECT_TRUE(lastOneClosed) << story << testing::PrintToString(vabo::PilaForm);
        steps.clear();
        start();
    }
}

} // namespace
