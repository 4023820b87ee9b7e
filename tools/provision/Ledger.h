#pragma once

#include "engine/run/Session.h"

#include <cstdint>

namespace provision {

/// Fills `partitadoppia` of a company with exactly that many rows (0, or at least 2) in balanced transactions of two to
/// five rows, dated from two years before the last balance to one year after it, and sets `contatorepd` accordingly.
/// The same company, number of rows and seed give the same ledger.
void addLedger(engine::Session& session, long rows, std::uint64_t seed);

} // namespace provision
