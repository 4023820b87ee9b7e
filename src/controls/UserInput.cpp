#include "controls/UserInput.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <memory>
#include <utility>

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

struct Stroke {
    int key = 0;
    quint64 time = 0;
    bool operator==(const Stroke&) const = default;
};
Stroke last; ///< released
Stroke inList;

Stroke strokeOf(const QEvent& event) {
    const auto& key = static_cast<const QKeyEvent&>(event);
    return {key.key(), key.timestamp()};
}

bool isEnter(const Stroke& stroke) {
    return stroke.key == Qt::Key_Return || stroke.key == Qt::Key_Enter;
}

/// An open list picks its row before the press is sent, which then goes to where the pick has led.
bool hasPicked(const QEvent& event) {
    return event.type() == QEvent::KeyPress && isEnter(inList) && strokeOf(event) == inList;
}

/// Of Enter anywhere, and of Space on a button: held over a grid it may have moved the focus there.
bool isRepeatedCommand(const QObject* watched, const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool enter = isEnter(strokeOf(event));
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
    const bool atItsRelease = press.timestamp() != 0 && strokeOf(press) == last;
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
    const bool inOpenList = QApplication::activePopupWidget() != nullptr;
    if (inOpenList && event->type() == QEvent::ShortcutOverride) {
        inList = strokeOf(*event); // comes ahead of the press
    } else if (inOpenList && event->type() == QEvent::KeyPress) {
        inList = {}; // handled by the list itself
    }
    if (!isInput(event->type())) {
        return false;
    }
    if (event->type() == QEvent::KeyRelease) {
        last = strokeOf(*event);
        inList = {};
    }
    if (event->type() == QEvent::Shortcut) {
        goToButton(qobject_cast<QPushButton*>(watched));
    }
    auto* control = qobject_cast<QWidget*>(watched);
    const bool dropped =
        control != nullptr && (!control->isVisible() || isRepeatedCommand(control, *event) || hasPicked(*event));
    if (control != nullptr && !dropped && event->type() == QEvent::MouseButtonPress) {
        releaseBehind(*control, static_cast<const QMouseEvent&>(*event));
    }
    return dropped;
}

void UserInput::releaseBehind(QWidget& control, const QMouseEvent& press) {
    const bool isHeld = QApplication::mouseButtons().testFlag(press.button());
    // A press that a control ignores goes on to the widgets around it.
    if (!press.spontaneous() || isHeld || !pressed_.isNull()) {
        return;
    }
    pressed_ = &control;
    const std::shared_ptr<QMouseEvent> release(new QMouseEvent(QEvent::MouseButtonRelease, press.position(),
                                                               press.scenePosition(), press.globalPosition(),
                                                               press.button(), Qt::NoButton, press.modifiers()));
    const auto send = [this, release] {
        if (!pressed_.isNull()) {
            QApplication::sendEvent(std::exchange(pressed_, nullptr), release.get());
        }
    };
    QMetaObject::invokeMethod(this, send, Qt::QueuedConnection);
}

} // namespace controls
