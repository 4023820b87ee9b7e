#pragma once

namespace vabo {

/// Takes up a company: sets its name and connection texts, opens DbAzienda, writes this terminal's row. Where `id` is
/// empty, the terminal's company is taken; on return `id` is the company taken up. `id` may be the global
/// IdAziendaLavoro itself. Instead of a company that can't be opened the first one of the server is taken; where there
/// is none, a box appears and the process ends. Raises nothing: callers look at the globals.
void ApriAzienda(double& id);

} // namespace vabo
