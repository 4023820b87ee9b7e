#pragma once

#include <QGuiApplication>

namespace controls {

/// Shows the hourglass pointer for the length of a scope.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
};

/// Restores the default pointer, however many hourglasses are shown.
inline void restoreDefaultPointer() {
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace controls
