#pragma once

#include "locks/BlocchiForm.h"
#include "support/DialogScript.h"

namespace vabo {

/// The lock of a branch, on a day that the sample's dates have nothing to do with.
class BranchForm : public BlocchiForm {
protected:
    BranchForm() : BlocchiForm("Scegli_sede_Pd", "DataInizio") { ado::setToday(ado::Date::of(2026, 5, 5)); }
    std::string dataDellaSede() const {
        return valore("select idDatainvio from ElencoSedi where IdSede = " + std::to_string(kSede));
    }
    static std::string domanda(const std::string& data) {
        return "Blocco la contabilità sino alla data " + data + " ?";
    }
    static constexpr const char* kPrimaDelBilancio = "Data inferiore alla data del Bilancio";
    support::DialogScript script;
};

} // namespace vabo
