#include "ado/PresentEvent.h"

#include <QAbstractEventDispatcher>
#include <QThread>

#include <utility>

namespace ado {

bool atEndOfEvent(std::function<void()> forget) {
    QAbstractEventDispatcher* events = QAbstractEventDispatcher::instance();
    if (events == nullptr || QThread::currentThread()->loopLevel() == 0) {
        return false;
    }
    QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, events, std::move(forget),
                     Qt::SingleShotConnection);
    return true;
}

} // namespace ado
