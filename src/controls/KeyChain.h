#pragma once

#include <QObject>

#include <functional>
#include <initializer_list>
#include <vector>

class QKeyEvent;
class QWidget;

namespace controls {

/// Which keys end the entry of a field. Enter is Return or the keypad's Enter.
enum class EndOfEntry { Enter, EnterOrTab };

/// Gives a control the focus as Tab does, so that a field selects its text.
void SetFocus(QWidget& control);

/// One field of a form's chain and what happens at the end of its entry.
struct KeyRow {
    KeyRow(QWidget* field, EndOfEntry keys, std::function<void()> handler);
    /// Only moves the focus to the next field of the chain.
    KeyRow(QWidget* field, EndOfEntry keys, QWidget* next);

    QWidget* field;
    EndOfEntry keys;
    std::function<void()> handler;
};

/// The order of entry of a form as one table of fields. The field itself handles all keys that no row names.
class KeyChain : public QObject {
    Q_OBJECT
public:
    /// `run` runs each handler, under the guard of the form's events.
    using Runner = std::function<void(const std::function<void()>&)>;
    KeyChain(QObject* parent, Runner run, std::vector<KeyRow> rows);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Runner run_;
    std::vector<KeyRow> rows_;
};

} // namespace controls
