#include "session/LinguaClient.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

#include <algorithm>
#include <array>

namespace vabo {

namespace {

bool CodiceValido(const std::string& lingua) {
    constexpr std::array<const char*, 5> kCodici = {"IT", "EN", "ES", "FR", "PO"};
    return std::find(kCodici.begin(), kCodici.end(), Maiuscolo(lingua)) != kCodici.end();
}

void PrendiColonna(ado::Recordset& rs, std::string& risultato) {
    salta([&] { risultato = ado::toText(rs["Lingua"]); });
}

void AggiungiRiga(ado::Recordset& rs, const std::string& lingua, std::string& risultato) {
    salta([&] { rs.AddNew(); });
    salta([&] { rs["id"] = 1; });
    salta([&] { rs["lingua"] = "IT"; });
    if (!IsEmptyValue(lingua)) {
        salta([&] { rs["lingua"] = lingua; });
    }
    salta([&] { rs.Update(); });
    PrendiColonna(rs, risultato);
}

void CambiaRiga(ado::Recordset& rs, const std::string& lingua, std::string& risultato) {
    salta([&] { rs["lingua"] = lingua; });
    salta([&] { rs.Update(); });
    PrendiColonna(rs, risultato);
}

} // namespace

// Failing statements are skipped.
std::string LeggiLinguaClient(const std::string& lingua) {
    std::string risultato = "IT";
    if (!IsEmptyValue(lingua) && !CodiceValido(lingua)) {
        return risultato;
    }
    salta([] { ApriDbTemp(); });
    salta([] { DbTemp.Execute("Create table LinguaClient (id int null, Lingua Nvarchar(2) Null )"); });
    ado::Recordset& rs = RsCondivisi(2);
    salta([&] { ApriScrivibile(rs, "select * from LinguaClient where id = 1", DbTemp); });
    if (vera([&] { return rs.EOF(); })) {
        AggiungiRiga(rs, lingua, risultato);
    } else if (!IsEmptyValue(lingua)) {
        CambiaRiga(rs, lingua, risultato);
    } else if (vera([&] { return !IsEmptyValue(rs["Lingua"]); })) {
        PrendiColonna(rs, risultato);
    }
    RilasciaRecordset(2);
    LinguaCorrente = risultato;
    return risultato;
}

} // namespace vabo
