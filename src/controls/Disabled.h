#pragma once

#include <QPointer>
#include <QWidget>

namespace controls {

/// Disables a form for the length of a scope, and then sets the focus where it was.
class Disabled {
public:
    explicit Disabled(QWidget& form) : form_(form), focus_(form.focusWidget()) { form_.setEnabled(false); }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;
    ~Disabled() {
        form_.setEnabled(true);
        if (focus_ != nullptr) {
            focus_->setFocus();
        }
    }

private:
    QWidget& form_;
    QPointer<QWidget> focus_;
};

} // namespace controls
