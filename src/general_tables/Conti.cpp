#include "general_tables/Conti.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Uguale.h"
#include "state/variabili.h"

namespace vabo {

// No failure rule here: errors reach the caller.
std::int32_t LeggiGruppoVabo(double idConto) {
    ado::Connection connessione;
    connessione.Open(StringaAzienda);
    Sql = "SELECT  IdGruppoVabo From conti where IdConto =" + ado::plainNumber(idConto);
    ado::Recordset rs;
    rs.Open(Sql, connessione, ado::CursorType::Keyset, ado::LockType::ReadOnly);
    std::int32_t gruppo = 0;
    if (!rs.EOF()) {
        rs.MoveFirst();
        gruppo = ado::toLong(rs["IdGruppoVabo"]);
    }
    rs.Close();
    connessione.Close();
    return gruppo;
}

// Failing statements are skipped.
bool ContoEconomico(double idConto) {
    bool economico = false;
    if (IsEmptyValue(idConto)) {
        return economico;
    }
    ado::Recordset rs;
    salta([&] {
        ApriScrivibile(rs, "select idmastro from conti where idconto = " + ado::plainNumber(idConto), DbAzienda);
    });
    if (vera([&] { return !rs.EOF(); })) {
        salta([&] {
            const ado::Value mastro = rs["Idmastro"];
            economico = Uguale(mastro, 1) || Uguale(mastro, 4);
        });
    }
    salta([&] { rs.Close(); });
    return economico;
}

} // namespace vabo
