#pragma once

#include <QProgressBar>

namespace controls {

/// A bar from 0 to 100.
class ProgressBar : public QProgressBar {
    Q_OBJECT
public:
    explicit ProgressBar(QWidget* parent = nullptr);

    double Value() const { return value_; }
    /// Raises error 380 outside 0 to 100; the bar stays as it was.
    void setValue(double value);
    double Max() const { return maximum(); }
    /// Adds a step, in single precision. Where that would reach the end, the bar goes back to 0.
    void advance(double step);

private:
    double value_ = 0;
};

} // namespace controls
