#include "controls/TextBox.h"

#include "controls/FocusTracker.h"

#include <QApplication>
#include <QMouseEvent>

namespace controls {

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    connect(&FocusTracker::instance(), &FocusTracker::moved, this, &TextBox::followFocus);
}

void TextBox::followFocus(QWidget* from, QWidget* to) {
    if (to == this) {
        selectAll();
        // A mouse press that sets the focus also sets the caret and ends the selection, so the text is selected again
        // when the button is released.
        selectAtRelease_ = QApplication::mouseButtons() != Qt::NoButton;
        emit GotFocus();
    } else if (from == this) {
        emit LostFocus();
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (selectAtRelease_ && !hasSelectedText()) {
        selectAll();
    }
    selectAtRelease_ = false;
}

} // namespace controls
