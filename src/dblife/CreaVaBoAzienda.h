#pragma once

namespace vabo {

/// Creates the temporary and the control database of the local instance, and the two tables of the latter, where they
/// are missing. Uses DbTemp, which must be closed, and leaves it closed. Reports nothing: what failed shows when the
/// databases are opened.
void CreaDatabaseControllo();

} // namespace vabo
