#include "fiscal/LasciaCodici.h"

#include "ado/Conversions.h"
#include "fiscal/ControllaCodici.h"
#include "kit/IsEmptyValue.h"
#include "kit/Testi.h"

namespace vabo {

namespace {

constexpr double kItalia = 1;

} // namespace

// A zero is no empty field: it is checked, and not taken.
bool LasciaCodiceFiscale(std::string& codice, double idStato) {
    if (codice.empty() || idStato > kItalia) {
        return true;
    }
    codice = Maiuscolo(codice);
    std::string copia = codice;
    Flag esito = kFalso;
    if (ado::isNumeric(copia)) {
        ControllaPartitaIva(copia, esito);
    } else {
        ControllaCodiceFiscale(copia, esito);
    }
    return esito != kFalso;
}

void LasciaPartitaIva(const std::string& partitaIva, double idStato) {
    if (idStato > kItalia || IsEmptyValue(partitaIva)) {
        return;
    }
    std::string copia = partitaIva;
    Flag esito = kFalso;
    ControllaPartitaIva(copia, esito);
}

std::string PartitaIvaProposta(const std::string& partitaIva, const std::string& codiceFiscale) {
    const bool manca = IsEmptyValue(partitaIva) && !IsEmptyValue(codiceFiscale);
    return manca && ado::isNumeric(codiceFiscale) ? codiceFiscale : partitaIva;
}

} // namespace vabo
