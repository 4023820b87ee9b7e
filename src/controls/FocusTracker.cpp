#include "controls/FocusTracker.h"

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>

namespace controls {

FocusTracker& FocusTracker::instance() {
    static QPointer<FocusTracker> tracker;
    if (tracker.isNull()) {
        tracker = new FocusTracker(qApp);
    }
    return *tracker;
}

FocusTracker::FocusTracker(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusTracker::follow(QWidget* now) {
    if (now == nullptr) {
        return;
    }
    const QWidget* window = now->window();
    const bool inAForm = qobject_cast<const QDialog*>(window) == nullptr && window->windowType() != Qt::Popup;
    if (!inAForm) {
        return;
    }
    now_ = now;
    if (!telling_) {
        tell();
    }
}

void FocusTracker::tell() {
    const QScopedValueRollback telling(telling_, true);
    while (!now_.isNull() && now_ != last_) {
        if (!last_.isNull()) {
            emit left(last_);
        }
        last_ = now_;
        emit entered(last_);
    }
}

} // namespace controls
