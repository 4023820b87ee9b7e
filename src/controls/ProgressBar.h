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
    /// The value one step further, in single precision; 0 where that would reach the end.
    double advanced(double value, double step) const;

private:
    double value_ = 0;
};

} // namespace controls
