#pragma once

namespace vabo {

/// Creates on the local instance what is missing of the temporary database, the control database and the latter's two
/// tables. Uses DbTemp, which must be closed, and leaves it closed. Raises and returns nothing: a failure is noticed
/// when the databases are opened.
void CreaDatabaseControllo();

} // namespace vabo
