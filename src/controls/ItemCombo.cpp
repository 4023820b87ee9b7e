#include "controls/ItemCombo.h"

#include "controls/PropertyError.h"
#include "controls/UserInput.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>

namespace controls {

ItemCombo::ItemCombo(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::activated, this, &ItemCombo::Click);
    UserInput::watch();
}

// The base class picks the first item that is added to an empty list.
void ItemCombo::addItem(const std::string& text, std::int32_t data) {
    const int picked = currentIndex();
    QComboBox::addItem(QString::fromStdString(text), data);
    setCurrentIndex(picked);
}

std::int32_t ItemCombo::ItemData() const {
    if (currentIndex() < 0) {
        throw invalidPropertyArrayIndex();
    }
    return currentData().toInt();
}

std::string ItemCombo::Text() const {
    return (currentIndex() < 0 ? placeholderText() : currentText()).toStdString();
}

void ItemCombo::setText(const std::string& text) {
    setPlaceholderText(QString::fromStdString(text));
    setCurrentIndex(-1);
}

void ItemCombo::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        showPopup();
        return;
    default:
        break;
    }
    const QString letters = event->text();
    const bool commanded = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (!commanded && !letters.isEmpty() && letters.at(0).isPrint() && !letters.at(0).isSpace()) {
        showPopup();
        view()->keyboardSearch(letters);
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ItemCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace controls
