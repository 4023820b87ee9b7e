#include "general_tables/TrattamentoIva.h"

#include "ado/Conversions.h"
#include "ado/Text.h"
#include "general_tables/CaricaValoriControlli.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr const char* kTestoStandard = "select * from IvaAliquotaStandard  ";

std::string Trattamento(const std::string& campo, double id) {
    return LeggiCampo("IvaTrattamento", campo, "idautonumber", id);
}

std::string Formato(const std::string& numero) {
    return ado::formatFixed(ado::toDouble(numero), ado::regionalSettings().decimals, true);
}

} // namespace

std::string ElencoTrattamenti() {
    return std::string("SELECT IdAutoNumber,  Descrizione") + " From IvaTrattamento" +
           " where idautonumber > 1 and not sigla like '" + "IV%" + "'" + " ORDER BY Descrizione";
}

// Failing statements are skipped.
std::int32_t LeggiAliquotaStandard() {
    std::int32_t id = 2;
    ado::Recordset rs;
    salta([&] { rs.Open(kTestoStandard, DbAzienda); });
    if (vera([&] { return !rs.EOF(); }) && vera([&] { return !IsEmptyValue(rs["idTipo"].Value()); })) {
        salta([&] { id = ado::toLong(rs["idTipo"]); });
    }
    salta([&] { rs.Close(); });
    return id;
}

std::string DescrizioneTrattamento(double id) {
    return Trattamento("descrizione", id);
}
std::string SiglaTrattamento(double id) {
    return Trattamento("Sigla", id);
}
std::string AliquotaTrattamento(double id) {
    return Formato(Trattamento("Aliquota", id));
}
std::string DetrazioneTrattamento(double id) {
    return Formato(Trattamento("quotadetrazione", id));
}

void SalvaAliquotaStandard(double id, const std::string& aliquota, const std::string& sigla,
                           const std::string& detrazione) {
    ado::Recordset rs;
    rs.Open(kTestoStandard, DbAzienda, ado::CursorType::Dynamic, ado::LockType::Pessimistic);
    if (rs.EOF()) {
        rs.AddNew();
    }
    ScriviColonne(kSenzaRegola, rs,
                  {{"idTipo", id},
                   {"Aliquota", aliquota},
                   {"Sigla", std::string(ado::trimmed(sigla, " "))},
                   {"Detrazione", detrazione}});
    rs.Update();
    rs.Close();
}

} // namespace vabo
