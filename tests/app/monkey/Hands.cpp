#include "app/monkey/Hands.h"

#include "app/monkey/Story.h"
#include "app/monkey/Texts.h"
#include "controls/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QWindow>

namespace monkey {

namespace {

QString nameOf(const QWidget& widget) {
    const QString name = widget.objectName();
    return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
}

} // namespace

void Hands::act() {
    const int choice = dice_.below(100);
    if (choice < 24) {
        anyClick();
    } else if (choice < 32) {
        itemClick();
    } else if (choice < 70) {
        anyKey();
    } else if (choice < 81) {
        anyChord();
    } else if (choice < 86) {
        mnemonic();
    } else if (choice < 91) {
        type(anyText(dice_));
    } else if (choice < 92) {
        paste();
    } else if (choice < 96) {
        wheel();
    } else if (choice < 99) {
        drag();
    } else if (QWidget* window = front()) {
        manage(*window);
    }
}

/// The window that a user could use: a popup, a box, or any visible form.
QWidget* Hands::front() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        return popup;
    }
    if (QWidget* box = QApplication::activeModalWidget()) {
        return box;
    }
    const QWidgetList visible = forms();
    return visible.isEmpty() ? nullptr : dice_.oneOf(visible);
}

/// Where keys go. The offscreen platform leaves none in front when a popup closes; a window manager wouldn't.
QWindow* Hands::focusWindow() {
    if (QWindow* focused = QGuiApplication::focusWindow()) {
        return focused;
    }
    if (QWidget* window = front()) {
        window->activateWindow();
        QCoreApplication::processEvents();
    }
    return QGuiApplication::focusWindow();
}

QWidget* Hands::anyControl(const QWidget& window) {
    constexpr int kTries = 12;
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    for (int tries = kTries; tries > 0 && !all.isEmpty(); --tries) {
        QWidget* control = dice_.oneOf(all);
        if (control->isVisible() && control->window() == &window) {
            return control;
        }
    }
    return nullptr;
}

void Hands::begin(const QWidget& window, const QString& what) {
    ++events_;
    const QString name = nameOf(window);
    if (qobject_cast<const controls::Form*>(&window) != nullptr) {
        ++eventsOf_[name.toStdString()];
    }
    story::tell(name + QLatin1String(": ") + what);
}

void Hands::anyClick() {
    QWidget* window = front();
    if (window == nullptr) {
        return;
    }
    // Half of the places are those of buttons and fields, which are small.
    QWidget* control = dice_.oneIn(2) ? anyControl(*window) : window;
    if (control == nullptr || control->width() < 1 || control->height() < 1) {
        return;
    }
    const QPoint inside(dice_.below(control->width()), dice_.below(control->height()));
    clickAt(*control, dice_.oneIn(4) ? inside : control->rect().center(), nameOf(*control));
}

void Hands::manage(QWidget& window) {
    const bool isForm = qobject_cast<controls::Form*>(&window) != nullptr;
    switch (dice_.below(isForm ? 12 : 30)) {
    case 0:
        closeWindow(window);
        break;
    case 1:
        begin(window, QStringLiteral("minimised"));
        window.showMinimized();
        break;
    case 2:
    case 3:
        begin(window, QStringLiteral("restored"));
        window.showNormal();
        break;
    case 4:
        begin(window, QStringLiteral("maximised"));
        window.showMaximized();
        break;
    case 5:
    case 6: {
        // Another program comes to the front.
        begin(window, QStringLiteral("left"));
        QWindow other;
        other.resize(10, 10);
        other.show();
        other.requestActivate();
        QCoreApplication::processEvents();
        break;
    }
    case 7:
    case 8:
        begin(window, QStringLiteral("moved"));
        window.move(dice_.between(-200, 900), dice_.between(-200, 700));
        break;
    case 9:
        begin(window, QStringLiteral("activated"));
        window.activateWindow();
        break;
    default:
        begin(window, QStringLiteral("resized"));
        window.resize(dice_.between(1, 1200), dice_.between(1, 900));
    }
    QCoreApplication::processEvents();
}

void Hands::closeWindow(QWidget& window) {
    begin(window, QStringLiteral("closed"));
    if (QWindow* handle = window.windowHandle()) {
        handle->close();
    }
}

} // namespace monkey
