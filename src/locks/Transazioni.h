#pragma once

#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "locks/Avanzamento.h"
#include "locks/RecordsetBlocchi.h"
#include "locks/TestiTransazioni.h"

#include <string>

namespace vabo {

/// Runs `modifica` on the transaction of each row of a selection, a statement a row, repeats included. `selezione`
/// gives the text. A selection that can't be opened has no rows.
template<typename Regola, typename Selezione>
void ModificaTransazioni(const Regola& regola, const Selezione& selezione, const std::string& modifica,
                         Avanzamento& avanzamento) {
    const Restituzione restituzione(kPostoRighe);
    ado::Recordset& rs = RsCondivisi(kPostoRighe);
    regola([&] { ApriScrivibile(rs, SqlCorrente = selezione(), DbAzienda); });
    long righe = 0;
    if (rs.IsOpen() && !rs.EOF()) {
        rs.MoveLast();
        righe = rs.RecordCount();
        rs.MoveFirst();
    }
    avanzamento.Comincia(righe);
    for (; righe > 0; --righe) {
        regola([&] {
            DbAzienda.Execute(SqlCorrente = modifica + DellaTransazione(rs["numerotransazione"], rs["idsede"]));
        });
        avanzamento.Avanza();
        regola([&] { rs.MoveNext(); }); // the recordset is shared, and events run meanwhile
    }
}

} // namespace vabo
