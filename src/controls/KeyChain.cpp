#include "controls/KeyChain.h"

#include "controls/DataCombo.h"
#include "controls/UserInput.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace controls {

namespace {

bool endsEntry(const QKeyEvent& key, EndOfEntry keys) {
    if (!UserInput::isPlain(key)) {
        return false;
    }
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        return true;
    }
    return key.key() == Qt::Key_Tab && keys == EndOfEntry::EnterOrTab;
}

} // namespace

void SetFocus(QWidget& control) {
    control.setFocus(Qt::TabFocusReason);
}

KeyRow::KeyRow(QWidget* field, EndOfEntry keys, std::function<void()> handler)
    : field(field), keys(keys), handler(std::move(handler)) {}

KeyRow::KeyRow(QWidget* field, EndOfEntry keys, QWidget* next) : KeyRow(field, keys, [next] { SetFocus(*next); }) {}

KeyChain::KeyChain(QObject* parent, Runner run, std::vector<KeyRow> rows)
    : QObject(parent), run_(std::move(run)), rows_(std::move(rows)) {
    for (const KeyRow& row : rows_) {
        row.field->installEventFilter(this);
    }
}

bool KeyChain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const KeyRow& each) {
        return each.field == watched && endsEntry(key, each.keys);
    });
    if (row == rows_.end()) {
        return false;
    }
    if (UserInput::isRepeat(key)) {
        return true; // a key that is held down ends only one entry
    }
    if (auto* combo = qobject_cast<DataCombo*>(row->field)) {
        combo->endEntry();
    }
    run_(row->handler);
    return true;
}

} // namespace controls
