#pragma once

namespace vabo {

/// All global state as at the start of the process, which a test or the next one in its process begins with.
void AzzeraVariabili();

} // namespace vabo
