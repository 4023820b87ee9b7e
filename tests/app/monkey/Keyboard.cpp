// The keyboard of the monkey's hands.

#include "app/monkey/Hands.h"
#include "app/monkey/Story.h"
#include "app/monkey/Texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QTest>
#include <QWindow>

#include <array>
#include <utility>

namespace monkey {

namespace {

// Those that end an entry come more often than others.
constexpr std::array kKeys = {
    Qt::Key_Return, Qt::Key_Return,  Qt::Key_Return,   Qt::Key_Enter,      Qt::Key_Tab,       Qt::Key_Tab,
    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space,    Qt::Key_Space,      Qt::Key_Down,      Qt::Key_Down,
    Qt::Key_Down,   Qt::Key_Up,      Qt::Key_Up,       Qt::Key_Left,       Qt::Key_Right,     Qt::Key_Escape,
    Qt::Key_Delete, Qt::Key_Delete,  Qt::Key_Home,     Qt::Key_End,        Qt::Key_Backspace, Qt::Key_Insert,
    Qt::Key_PageUp, Qt::Key_Menu,    Qt::Key_PageDown, Qt::Key_F1,         Qt::Key_F2,        Qt::Key_F3,
    Qt::Key_F4,     Qt::Key_F5,      Qt::Key_F6,       Qt::Key_F7,         Qt::Key_F8,        Qt::Key_F9,
    Qt::Key_F10,    Qt::Key_F11,     Qt::Key_F12,      Qt::Key_Clear,      Qt::Key_Help,      Qt::Key_Pause,
    Qt::Key_Select, Qt::Key_Cancel,  Qt::Key_Back,     Qt::Key_VolumeDown, Qt::Key_CapsLock,  Qt::Key_AltGr};
constexpr std::array kModifiers = {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier, Qt::MetaModifier,
                                   Qt::KeypadModifier};

int letterOrDigit(Dice& dice) {
    return dice.oneIn(3) ? dice.between(Qt::Key_0, Qt::Key_9) : dice.between(Qt::Key_A, Qt::Key_Z);
}

/// What a keyboard sends with the key.
QString textOf(int key, Qt::KeyboardModifiers modifiers) {
    if ((modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0) {
        return {};
    }
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    case Qt::Key_Backspace:
        return QStringLiteral("\b");
    case Qt::Key_Escape:
        return QStringLiteral("\x1b");
    case Qt::Key_Delete:
        return QStringLiteral("\x7f");
    default:
        break;
    }
    if (key < Qt::Key_Space || key > Qt::Key_Z) {
        return {};
    }
    constexpr int kControl = 0x40;
    const QChar letter(key);
    if ((modifiers & Qt::ControlModifier) != 0) {
        return key < Qt::Key_A ? QString() : QString(QChar(key - kControl));
    }
    return (modifiers & Qt::ShiftModifier) != 0 ? QString(letter) : QString(letter.toLower());
}

constexpr std::array<std::pair<Qt::KeyboardModifier, Qt::Key>, 4> kHeld = {{{Qt::ShiftModifier, Qt::Key_Shift},
                                                                            {Qt::ControlModifier, Qt::Key_Control},
                                                                            {Qt::AltModifier, Qt::Key_Alt},
                                                                            {Qt::MetaModifier, Qt::Key_Meta}}};

/// Presses and releases a key with the modifiers around it; the window may be gone in between.
void chord(QWindow& window, int key, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWindow> alive = &window;
    const auto send = [&alive](bool press, int code, Qt::KeyboardModifiers held, const QString& text) {
        if (!alive.isNull()) {
            QTest::simulateEvent(alive, press, code, held, text, false);
        }
    };
    Qt::KeyboardModifiers held = Qt::NoModifier;
    for (const auto& [modifier, code] : kHeld) {
        if (modifiers.testFlag(modifier)) {
            send(true, code, held, {});
            held |= modifier;
        }
    }
    const QString text = textOf(key, modifiers);
    send(true, key, modifiers, text);
    send(false, key, modifiers, text);
    for (const auto& [modifier, code] : kHeld) {
        if (modifiers.testFlag(modifier)) {
            send(false, code, held, {});
            held &= ~Qt::KeyboardModifiers(modifier);
        }
    }
}

} // namespace

void Hands::key(int key, Qt::KeyboardModifiers modifiers) {
    QWindow* window = focusWindow();
    const QWidget* focused = QApplication::focusWidget();
    const QWidget* place = focused != nullptr ? focused->window() : QApplication::activeWindow();
    if (window == nullptr || place == nullptr) {
        return;
    }
    begin(*place, QStringLiteral("key %1 %2 to %3")
                      .arg(QKeySequence(key).toString(), QString::number(modifiers.toInt(), 16),
                           focused == nullptr ? QString() : focused->objectName()));
    chord(*window, key, modifiers);
}

void Hands::anyKey() {
    key(dice_.oneIn(3) ? letterOrDigit(dice_) : dice_.oneOf(kKeys), Qt::NoModifier);
}

void Hands::anyChord() {
    Qt::KeyboardModifiers modifiers = dice_.oneOf(kModifiers);
    if (dice_.oneIn(4)) {
        modifiers |= dice_.oneOf(kModifiers);
    }
    key(dice_.oneIn(2) ? letterOrDigit(dice_) : dice_.oneOf(kKeys), modifiers);
}

void Hands::mnemonic() {
    const QWidget* window = QApplication::activeWindow();
    if (window == nullptr) {
        return;
    }
    const QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
    if (buttons.isEmpty()) {
        return;
    }
    const QKeySequence keys = QKeySequence::mnemonic(dice_.oneOf(buttons)->text());
    if (!keys.isEmpty()) {
        key(keys[0].key(), keys[0].keyboardModifiers());
    }
}

void Hands::type(const QString& text) {
    constexpr int kByKeys = 24;
    if (text.size() > kByKeys || dice_.oneIn(4)) {
        commit(text);
        return;
    }
    QPointer<QWindow> window = focusWindow();
    const QWidget* place = QApplication::activeWindow();
    if (window.isNull() || place == nullptr) {
        return;
    }
    begin(*place, QStringLiteral("typed ") + text);
    for (const char32_t letter : text.toUcs4()) {
        if (!window.isNull()) {
            const QString typed = QString::fromUcs4(&letter, 1);
            QTest::simulateEvent(window, true, Qt::Key_unknown, Qt::NoModifier, typed, false);
            if (!window.isNull()) {
                QTest::simulateEvent(window, false, Qt::Key_unknown, Qt::NoModifier, typed, false);
            }
        }
    }
}

/// As an input method enters a text: at once, sometimes with a part that it still changes.
void Hands::commit(const QString& text) {
    QObject* focused = QGuiApplication::focusObject();
    const QWidget* place = QApplication::activeWindow();
    if (focused == nullptr || place == nullptr) {
        return;
    }
    begin(*place, QStringLiteral("entered ") + text);
    QInputMethodEvent event(dice_.oneIn(4) ? text.left(3) : QString(), {});
    event.setCommitString(text);
    QCoreApplication::sendEvent(focused, &event);
}

void Hands::paste() {
    QGuiApplication::clipboard()->setText(anyText(dice_));
    key(dice_.oneIn(2) ? Qt::Key_V : Qt::Key_Insert, dice_.oneIn(2) ? Qt::ControlModifier : Qt::ShiftModifier);
}

} // namespace monkey
