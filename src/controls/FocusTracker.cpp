#include "controls/FocusTracker.h"

#include <QApplication>
#include <QDialog>

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
    if (now == nullptr || now == last_) {
        return;
    }
    const QWidget* window = now->window();
    const bool inAForm = qobject_cast<const QDialog*>(window) == nullptr && window->windowType() != Qt::Popup;
    if (!inAForm) {
        return;
    }
    QWidget* from = last_;
    last_ = now;
    emit moved(from, now);
}

} // namespace controls
