#pragma once

#include "engine/run/Session.h"

#include <cstdint>

namespace provision {

/// Fills `partitadoppia` of a company with exactly that many rows (0, or at least 2) in balanced transactions of two to
/// five, dated from two years before its last balance to one after, and brings `contatorepd` up to them. The same
/// company, rows and seed give the same ledger.
void addLedger(engine::Session& session, long rows, std::uint64_t seed);

} // namespace provision
