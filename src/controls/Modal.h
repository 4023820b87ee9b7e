#pragma once

#include <QDialog>
#include <QPointer>

#include <utility>

namespace controls {

/// A dialog that is opened for one answer. It goes with its owner, should that be destroyed meanwhile.
template<typename Dialog>
class Modal {
public:
    template<typename... Arguments>
    explicit Modal(Arguments&&... arguments) : dialog_(new Dialog(std::forward<Arguments>(arguments)...)) {}
    ~Modal() { delete dialog_.data(); }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;

    /// Shows the dialog until it is answered. False where it went unanswered, and can't be asked for anything more.
    bool answered() {
        dialog_->exec();
        return !dialog_.isNull();
    }
    bool accepted() { return answered() && dialog_->result() == QDialog::Accepted; }

    Dialog& operator*() const { return *dialog_; }
    Dialog* operator->() const { return dialog_.data(); }

private:
    QPointer<Dialog> dialog_;
};

} // namespace controls
