#include "controls/TextBox.h"

#include "controls/FocusTracker.h"

#include <QFocusEvent>
#include <QMouseEvent>

namespace controls {

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    connect(&FocusTracker::instance(), &FocusTracker::entered, this, &TextBox::takeFocus);
    connect(&FocusTracker::instance(), &FocusTracker::left, this, [this](const QWidget* control) {
        if (control == this) {
            emit LostFocus();
        }
    });
}

void TextBox::SetFocus() {
    setFocus(Qt::TabFocusReason);
    Select();
}

void TextBox::Select() {
    if (selectAtMost_ < 0) {
        selectAll();
    } else {
        setSelection(0, selectAtMost_);
    }
}

void TextBox::takeFocus(const QWidget* control) {
    if (control != this) {
        return;
    }
    Select();
    // A mouse press that sets the focus also sets the caret and ends the selection, so the text is selected again
    // when the button is released.
    selectAtRelease_ = byMouse_;
    emit GotFocus();
}

void TextBox::focusInEvent(QFocusEvent* event) {
    byMouse_ = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (selectAtRelease_ && !hasSelectedText()) {
        Select();
    }
    selectAtRelease_ = false;
}

} // namespace controls
