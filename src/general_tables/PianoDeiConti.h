#pragma once

namespace vabo {

/// Asks an administrator how long the levels of the chart are and writes rows 1 to 5 of TabellaUilityConti. The last
/// row repeats the box of the budget items as it stands (1 or 0).
void DefinisciPianoDeiConti(int casellaBudget);

} // namespace vabo
