#pragma once

#include "app/monkey/Dice.h"

#include <QString>

namespace monkey {

/// What the monkey types and pastes: names, numbers and dates that the forms may take, and what they must bear.
QString anyText(Dice& dice);

} // namespace monkey
