#pragma once

#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace support {

/// Runs `work` as the program runs what follows one click: within one turn of its event loop, which then waits for
/// something new.
inline void inOneEvent(const std::function<void()>& work) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        work();
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
    });
    loop.exec();
}

} // namespace support
