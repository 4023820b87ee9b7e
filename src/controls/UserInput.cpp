#include "controls/UserInput.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

namespace controls {

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    default:
        return false;
    }
}

struct Release {
    int key = 0;
    quint64 time = 0;
};
Release last;

/// Of Enter anywhere, and of Space on a button: held over a grid it may have moved the focus there.
bool isRepeatedCommand(const QObject* watched, const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool space = key.key() == Qt::Key_Space && qobject_cast<const QAbstractButton*>(watched) != nullptr;
    return (enter || space) && UserInput::isRepeat(key);
}

void goToButton(QPushButton* button) {
    if (button != nullptr && button->isVisible() && (button->focusPolicy() & Qt::TabFocus) != 0) {
        button->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace

bool UserInput::isRepeat(const QKeyEvent& press) {
    const bool atItsRelease = press.timestamp() != 0 && press.timestamp() == last.time && press.key() == last.key;
    return press.isAutoRepeat() || atItsRelease;
}

bool UserInput::isPlain(const QKeyEvent& key) {
    return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

void UserInput::watch() {
    static QPointer<UserInput> filter;
    if (!filter.isNull()) {
        return;
    }
    filter = new UserInput(qApp);
    qApp->installEventFilter(filter);
}

bool UserInput::eventFilter(QObject* watched, QEvent* event) {
    if (!isInput(event->type())) {
        return false;
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        last = {key.key(), key.timestamp()};
    }
    if (event->type() == QEvent::Shortcut) {
        goToButton(qobject_cast<QPushButton*>(watched));
    }
    const auto* control = qobject_cast<const QWidget*>(watched);
    return control != nullptr && (!control->isVisible() || isRepeatedCommand(control, *event));
}

} // namespace controls
