#pragma once

#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace support {

/// Runs `work` as the program handles one click: in one turn of the event loop, which then waits for the next event.
inline void inOneEvent(const std::function<void()>& work) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        work();
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
    });
    loop.exec();
}

} // namespace support
