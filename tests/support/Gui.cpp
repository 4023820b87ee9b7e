#include "support/Gui.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace support {

namespace {

std::string namesIn(const QWidget& form) {
    std::string names;
    for (const auto* each : form.findChildren<QWidget*>()) {
        if (!each->objectName().isEmpty() && !each->objectName().startsWith(QLatin1String("qt_"))) {
            names += " " + each->objectName().toStdString();
        }
    }
    return names;
}

} // namespace

Gui::Gui() {
    platform::setFormHost(&forms_);
}

Gui::~Gui() {
    handleEvents();
    platform::setFormHost(nullptr);
}

controls::Form& Gui::form(const std::string& name) const {
    if (controls::Form* loaded = forms_.loaded(name)) {
        return *loaded;
    }
    throw std::runtime_error("The form " + name + " isn't loaded; visible: " + visibleForms());
}

bool Gui::isVisible(const std::string& form) const {
    const controls::Form* loaded = forms_.loaded(form);
    return loaded != nullptr && loaded->isVisible();
}

std::string Gui::visibleForms() const {
    std::vector<std::string> names;
    for (const auto* window : QApplication::topLevelWidgets()) {
        if (const auto* form = qobject_cast<const controls::Form*>(window); form != nullptr && form->isVisible()) {
            names.push_back(form->Name());
        }
    }
    std::sort(names.begin(), names.end());
    std::string line;
    for (const std::string& name : names) {
        line += (line.empty() ? "" : " ") + name;
    }
    return line;
}

QWidget& Gui::widget(const std::string& form, const std::string& control) const {
    const controls::Form& window = this->form(form);
    auto* found = window.findChild<QWidget*>(QString::fromStdString(control));
    if (found == nullptr) {
        throw std::runtime_error("No " + control + " on " + form + ", which has" + namesIn(window));
    }
    return *found;
}

QWidget& Gui::reachable(const std::string& form, const std::string& control) const {
    QWidget& found = widget(form, control);
    if (!found.isVisible() || !found.isEnabled()) {
        throw std::runtime_error(form + "." + control + " is hidden or disabled");
    }
    return found;
}

std::string Gui::text(const std::string& form, const std::string& label) const {
    const QWidget& found = widget(form, label);
    QString text = found.property("text").toString();
    if (qobject_cast<const QAbstractButton*>(&found) != nullptr) {
        text.remove(QLatin1Char('&')); // marks a mnemonic, which is shown as an underline
    }
    return text.toStdString();
}

std::string Gui::mnemonics(const std::string& form) const {
    std::string letters;
    for (const auto* button : this->form(form).findChildren<QPushButton*>()) {
        const qsizetype mark = button->text().indexOf(QLatin1Char('&'));
        if (button->isVisible()) {
            letters += mark < 0 ? '-' : button->text().at(mark + 1).toUpper().toLatin1();
        }
    }
    std::sort(letters.begin(), letters.end());
    return letters;
}

std::string Gui::focus() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? std::string()
                              : (focused->window()->objectName() + "." + focused->objectName()).toStdString();
}

void Gui::type(const std::string& text) {
    for (const char32_t letter : QString::fromStdString(text).toStdU32String()) {
        QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr) {
            throw std::runtime_error("Nothing has the focus to type: " + text);
        }
        // A character without a key of its own, such as a letter of another keyboard or a pasted control character.
        const QString typed = QString::fromUcs4(&letter, 1);
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, typed);
        QApplication::sendEvent(focused, &down);
        QKeyEvent up(QEvent::KeyRelease, 0, Qt::NoModifier, typed);
        QApplication::sendEvent(focused, &up);
    }
    handleEvents();
}

void Gui::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focused = QApplication::focusWidget();
    if (focused == nullptr) {
        throw std::runtime_error("Nothing has the focus to press a key");
    }
    QTest::keyClick(focused, key, modifiers);
    handleEvents();
}

void Gui::typeInto(const std::string& form, const std::string& control, const std::string& text) {
    reachable(form, control).setFocus();
    type(text);
}

void Gui::click(const std::string& form, const std::string& control) {
    QTest::mouseClick(&reachable(form, control), Qt::LeftButton);
    handleEvents();
}

void Gui::pick(const std::string& form, const std::string& combo, const std::string& row) {
    auto& list = find<controls::DataCombo>(form, combo);
    const int wanted = list.findText(QString::fromStdString(row), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (wanted < 0) {
        throw std::runtime_error(form + "." + combo + " has no row " + row);
    }
    reachable(form, combo).setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    waitFor("the list of " + combo, [&] { return list.view()->isVisible(); });
    QTest::keyClick(list.view(), Qt::Key_Home);
    for (int at = 0; at < wanted; ++at) {
        QTest::keyClick(list.view(), Qt::Key_Down);
    }
    QTest::keyClick(list.view(), Qt::Key_Return);
    handleEvents();
}

void Gui::waitForFront(const std::string& form) const {
    const controls::Form& window = this->form(form);
    waitFor(form + " in front", [&] { return QApplication::activeWindow() == &window; });
}

void Gui::waitFor(const std::string& what, const std::function<bool()>& condition) {
    constexpr int kLongestMilliseconds = 10000;
    const QDeadlineTimer deadline(kLongestMilliseconds);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    if (!condition()) {
        throw std::runtime_error("Waited in vain for: " + what);
    }
}

void Gui::handleEvents() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace support
