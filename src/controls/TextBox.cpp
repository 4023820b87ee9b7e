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
        // The press that brought the focus puts the caret somewhere; the whole text is selected again at its release.
        selectAtRelease_ = QApplication::mouseButtons() != Qt::NoButton;
        emit GotFocus();
    } else if (from == this) {
        emit LostFocus();
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (selectAtRelease_ && !hasSelectedText())
        selectAll();
    selectAtRelease_ = false;
}

} // namespace controls
