#pragma once

namespace vabo {

/// Asks an administrator for the lengths of the chart's levels and writes rows 1 to 5 of TabellaUilityConti. Row 5 gets
/// the value of the box of the budget items, 1 or 0.
void DefinisciPianoDeiConti(int casellaBudget);

} // namespace vabo
