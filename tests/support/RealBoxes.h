#pragma once

#include "controls/QtDialogs.h"
#include "platform/Dialogs.h"
#include "support/Gui.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// While this object lives the program shows its own boxes, and a user reads each and presses its first button. Unlike
/// those of a script, such a box takes the keyboard, and the mouse button that is down when it comes is released over
/// it. When the box returns, the form behind doesn't have the keyboard yet.
class RealBoxes : public QObject {
public:
    enum class Answer { ByKey, ByMouse };

    RealBoxes() {
        platform::setDialogs(std::make_unique<controls::QtDialogs>());
        qApp->installEventFilter(this);
    }
    RealBoxes(const RealBoxes&) = delete;
    RealBoxes& operator=(const RealBoxes&) = delete;
    ~RealBoxes() override {
        Gui::handleEvents();
        platform::setDialogs(nullptr);
    }

    /// A click as the mouse sends it, through the form's window. Returns when no box is open and the form is in front.
    void click(QWidget& control) {
        const QPointer<QWidget> form = control.window();
        pressed_ = form->windowHandle();
        place_ = control.mapTo(form, control.rect().center());
        QTest::mousePress(pressed_, Qt::LeftButton, Qt::NoModifier, place_);
        release();
        settle(form);
    }
    /// Gives the form the keyboard, unless it is gone, as a window manager does behind a box.
    static void settle(const QPointer<QWidget>& form) {
        if (!form.isNull() && form->isVisible()) {
            form->activateWindow();
        }
        Gui::handleEvents();
        Gui::waitFor("the form in front",
                     [&] { return form.isNull() || !form->isVisible() || QApplication::activeWindow() == form; });
        Gui::handleEvents();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box != nullptr && event->type() == QEvent::Show) {
            QMetaObject::invokeMethod(
                box, [this, box] { answer(*box); }, Qt::QueuedConnection);
        }
        return false;
    }

    Answer answered = Answer::ByKey;
    std::vector<std::string> texts;

private:
    void answer(QMessageBox& box) {
        Gui::waitFor("the box in front", [&box] { return QApplication::activeWindow() == &box; });
        texts.push_back(box.text().toStdString());
        release();
        QWindow* window = box.windowHandle();
        if (answered == Answer::ByKey) {
            QTest::keyClick(window, Qt::Key_Return);
        } else {
            const auto* button = qobject_cast<QWidget*>(box.buttons().first());
            QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, button->mapTo(&box, button->rect().center()));
        }
        // The answer has ended the box's loop and then waited, which on Windows takes along what lets the loop see it.
        QAbstractEventDispatcher::instance()->interrupt();
    }
    void release() {
        if (QWindow* window = std::exchange(pressed_, nullptr).data()) {
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place_);
        }
    }

    QPointer<QWindow> pressed_; ///< where the mouse button is down
    QPoint place_;
};

} // namespace support
