#pragma once

#include "controls/FormRegistry.h"

namespace app {

/// Registers the factory of every form of the program under the form's name.
void registerForms(controls::FormRegistry& registry);

} // namespace app
