#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace support {

/// Runs `work` as the program handles one click: in one turn of the event loop, which then waits for the next event.
inline void inOneEvent(const std::function<void()>& work) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        work();
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop,
                         &QEventLoop::quit, Qt::SingleShotConnection);
    });
    loop.exec();
}

} // namespace support
