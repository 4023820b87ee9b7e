#include "general_tables/CaricaValoriControlli.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

// An error ends the procedure with the empty text.
std::string LeggiCampo(const std::string& tabella, const std::string& campo, const std::string& campoChiave,
                       double valore) {
    std::string risultato;
    if (IsEmptyValue(valore) || IsEmptyValue(tabella) || IsEmptyValue(campo) || IsEmptyValue(campoChiave)) {
        return risultato;
    }
    const std::string testo =
        " select " + campo + " from " + tabella + " Where " + campoChiave + " = " + ado::plainNumber(valore);
    salta([&] {
        ado::Recordset rs;
        ApriScrivibile(rs, testo, DbAzienda);
        if (!rs.EOF() && !IsEmptyValue(rs[campo].Value())) {
            risultato = ado::toText(rs[campo]);
        }
        rs.Close();
    });
    return risultato;
}

} // namespace vabo
