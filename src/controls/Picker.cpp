#include "controls/Picker.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/Guard.h"
#include "controls/UserInput.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>

namespace controls {

Picker::Picker(DataCombo& combo, DataControl& list, const char* textField, const char* keyField, double& key)
    : QObject(&combo), combo_(&combo), list_(&list), key_(&key) {
    combo.ListField = textField;
    combo.BoundColumn = keyField;
    combo.setRowSource(&list);
    connect(&combo, &DataCombo::Click, this, &Picker::take);
}

void Picker::load(const std::string& connection, const std::string& source) {
    list_->load(connection, source);
    fill();
}

void Picker::read(const std::string& connection, const std::string& source) {
    combo_->setRowSource(nullptr);
    combo_->ReFill();
    list_->load(connection, source);
}

void Picker::fill() {
    combo_->setRowSource(list_);
    combo_->ReFill();
    combo_->Refresh();
}

// Like any other event of a form, a pick doesn't count while the form is disabled or a box is open.
void Picker::take(int area) {
    if (!combo_->isEnabled() || QApplication::activeModalWidget() != nullptr) {
        return;
    }
    if (area == DataCombo::List && guarded([this] { *key_ = ado::toDouble(combo_->BoundText()); })) {
        emit Picked();
    }
}

void Picker::clearWithDelete() {
    combo_->installEventFilter(this);
    combo_->completer()->popup()->installEventFilter(this);
}

bool Picker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyRelease) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Delete && UserInput::isPlain(key)) {
            *key_ = 0;
            combo_->setText({});
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace controls
