#include "controls/ProgressBar.h"

#include "controls/PropertyError.h"

#include <cmath>

namespace controls {

namespace {

constexpr int kLowest = 0;
constexpr int kHighest = 100;

} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setRange(kLowest, kHighest);
    QProgressBar::setValue(kLowest);
}

void ProgressBar::setValue(double value) {
    const bool inside = value >= kLowest && value <= kHighest; // false for NaN
    if (!inside) {
        throw invalidPropertyValue();
    }
    value_ = value;
    QProgressBar::setValue(static_cast<int>(std::lround(value)));
}

double ProgressBar::advanced(double value, double step) const {
    const auto next = static_cast<float>(value + step);
    return Max() > next ? next : kLowest;
}

} // namespace controls
