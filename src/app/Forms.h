#pragma once

#include "controls/FormRegistry.h"

namespace app {

/// Gives every form of the program its factory under its name.
void registerForms(controls::FormRegistry& registry);

} // namespace app
