#pragma once

namespace vabo {

/// Takes up a company: its name, its connection texts, an open DbAzienda, this terminal's row. An empty number asks for
/// the terminal's company; on return it is the one taken up, and it may be the global IdAziendaLavoro itself. A company
/// that can't be opened gives way to the first one of the server; where there is none, a box and the end of the
/// process. Nothing is raised: callers look at the globals.
void ApriAzienda(double& id);

} // namespace vabo
