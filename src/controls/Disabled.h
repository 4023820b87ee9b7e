#pragma once

#include <QPointer>
#include <QWidget>

namespace controls {

/// A form that takes no input while it lives. The focus is afterwards where it was.
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
