#pragma once

// Which program started last on this workstation, as the local temporary database records it, and the first of January
// after the last balance. Failing statements are skipped.

#include "ado/Value.h"

namespace vabo {

/// With a version: records it (1 for the main program, 2 for the one of donations), and gives 0. Without one: what is
/// recorded, 0 where nothing is. Creates the temporary database and its table where they are missing, and leaves DbTemp
/// closed.
double VerDb(const ado::Value& Versione = {});

/// The date of the last balance; 31 December 1990 where the company has none.
ado::Date LeggiDataBilancioProgetto();
/// The first of January of the year after it.
ado::Date LeggiPrimoGennaio();

} // namespace vabo
