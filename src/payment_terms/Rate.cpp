#include "payment_terms/Rate.h"

#include "kit/IsEmptyValue.h"
#include "kit/Testi.h"
#include "payment_terms/SenzaBuchi.h"

namespace vabo {

void TogliRateVuote(CampiCondizione& campi) {
    SenzaBuchi(campi.scadenze, [](const std::string& scadenza) { return IsEmptyValue(scadenza); });
}

void AggiornaRate(CampiCondizione& campi) {
    TogliRateVuote(campi);
    campi.numeroRate = "1";
    if (IsEmptyValue(campi.tipoRimessa) || campi.tipoRimessa == kNessunaScelta) {
        return;
    }
    campi.descrizione = campi.tipoRimessa + " a " + campi.scadenze[0];
    for (std::size_t i = 1; i < kRate; ++i) {
        if (!IsEmptyValue(campi.scadenze[i])) {
            campi.numeroRate = std::to_string(i + 1);
            campi.descrizione += "-" + campi.scadenze[i];
        }
    }
    campi.descrizione += " " + campi.decorrenza;
}

std::string NomeDiRipiego(const CampiCondizione& campi) {
    constexpr std::size_t kNominate = 10;
    std::string nome = campi.tipoRimessa;
    if (!IsEmptyValue(campi.decorrenza)) {
        nome += " " + campi.decorrenza;
    }
    for (std::size_t i = 0; i < kNominate; ++i) {
        if (!IsEmptyValue(campi.scadenze[i])) {
            nome += "  " + campi.scadenze[i];
        }
    }
    return nome;
}

} // namespace vabo
