#pragma once

#include "ado/Conversions.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>

namespace vabo {

/// The first sample company, taken up, with an administrator logged in.
class AziendaAperta : public testing::Test {
protected:
    AziendaAperta() {
        NomeDatabase = support::kCompany;
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
        DirittiUtente.Administrator = kVero;
        DirittiUtente.A_Personale = kVero;
    }

    std::string valore(const std::string& testo) const { return posto.value(support::kCompany, testo); }
    std::vector<std::string> riga(const std::string& testo) const { return posto.row(support::kCompany, testo); }
    void esegui(const std::string& testo) const { posto.run(support::kCompany, testo); }

    support::TestWorkstation posto;
};

using Riga = std::vector<std::string>;

} // namespace vabo
