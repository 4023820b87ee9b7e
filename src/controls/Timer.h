#pragma once

#include <QTimer>
#include <QWidget>

namespace controls {

/// A timer of a form, which emits Tick again and again until it is stopped. A tick that the form drops, because it is
/// disabled or a box is open, is followed by the next: a handler that stops the timer first runs once, and isn't lost.
/// Never visible.
class Timer : public QWidget {
    Q_OBJECT
public:
    explicit Timer(QWidget* parent = nullptr);

    void start(int milliseconds) { timer_.start(milliseconds); }
    void stop() { timer_.stop(); }
    bool isOn() const { return timer_.isActive(); }
    /// In milliseconds.
    int Interval() const { return timer_.interval(); }

signals:
    void Tick();

private:
    QTimer timer_;
};

} // namespace controls
