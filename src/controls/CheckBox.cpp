#include "controls/CheckBox.h"

#include "controls/PropertyError.h"

#include <array>

namespace controls {

namespace {

constexpr std::array kStates = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};

}

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {
    setTristate(true);
    connect(this, &QCheckBox::stateChanged, this, &CheckBox::Click);
}

int CheckBox::Value() const {
    switch (checkState()) {
    case Qt::Checked:
        return 1;
    case Qt::PartiallyChecked:
        return 2;
    case Qt::Unchecked:
        break;
    }
    return 0;
}

void CheckBox::setValue(int value) {
    if (value < 0 || value >= static_cast<int>(kStates.size())) {
        throw invalidPropertyValue();
    }
    setCheckState(kStates[static_cast<std::size_t>(value)]);
}

void CheckBox::nextCheckState() {
    setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
}

} // namespace controls
