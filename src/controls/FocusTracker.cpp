#include "controls/FocusTracker.h"

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>

namespace controls {

namespace {

bool isInAForm(const QWidget& control) {
    const QWidget* window = control.window();
    return qobject_cast<const QDialog*>(window) == nullptr && window->windowType() != Qt::Popup;
}

} // namespace

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
    if (now == nullptr || !isInAForm(*now)) {
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
            followInactive();
        }
        last_ = now_;
        emit entered(last_);
        followInactive();
    }
}

// Where a handler has shown a box, its form becomes active again only later, and until then the toolkit doesn't tell
// where in that form the handler has sent the focus.
void FocusTracker::followInactive() {
    const QWidget* focused = QApplication::focusWidget();
    if (now_.isNull() || (focused != nullptr && isInAForm(*focused))) {
        return;
    }
    if (QWidget* next = now_->window()->focusWidget()) {
        now_ = next;
    }
}

} // namespace controls
