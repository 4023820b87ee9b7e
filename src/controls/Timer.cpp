#include "controls/Timer.h"

namespace controls {

Timer::Timer(QWidget* parent) : QWidget(parent) {
    hide();
    connect(&timer_, &QTimer::timeout, this, &Timer::Tick);
}

} // namespace controls
