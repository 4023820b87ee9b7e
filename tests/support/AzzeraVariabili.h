#pragma once

namespace vabo {

/// Sets all global state as at the start of the process, so that each test of a process begins with the same.
void AzzeraVariabili();

} // namespace vabo
