#pragma once

#include "locks/BlocchiForm.h"
#include "support/DialogScript.h"

namespace vabo {

/// The lock of a project, on a day that the sample's dates have nothing to do with, so that a year filled up shows.
class ProjectForm : public BlocchiForm {
protected:
    ProjectForm() : BlocchiForm("Scegli_progetto_4", "iddateend") { ado::setToday(ado::Date::of(2026, 5, 5)); }
    std::string dataDelProgetto() const {
        return valore("select iddate from progetti where ID = " + std::to_string(kProgetto));
    }
    support::DialogScript script; ///< the form has no box of its own
};

} // namespace vabo
