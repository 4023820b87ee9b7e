#include "payment_terms/NomeDecorrenza.h"

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "kit/IsEmptyValue.h"
#include "payment_terms/SenzaBuchi.h"

#include <cstdint>

namespace vabo {

namespace {

constexpr int kFuoriIndice = 9;

/// By number; none for the places ahead of January and behind December.
constexpr std::array kMesi = {"",       "Gennaio", "Febbraio",  "Marzo",   "Aprile",   "Maggio",   "Giugno",
                              "Luglio", "Agosto",  "Settembre", "Ottobre", "Novembre", "Dicembre", ""};

std::string NomeDelMese(const std::string& numero) {
    const std::int32_t mese = ado::toLong(numero);
    if (mese < 0 || mese >= static_cast<std::int32_t>(kMesi.size())) {
        throw ado::Error(kFuoriIndice, "Subscript out of range");
    }
    return kMesi[static_cast<std::size_t>(mese)];
}

// The first day is looked at nowhere: what counts is the second.
void ComponiGiorni(CampiDecorrenza& campi) {
    if (!IsEmptyValue(campi.giorni[1])) {
        campi.descrizione = "Sc.il " + campi.giorni[0];
    }
    for (std::size_t i = 1; i < campi.giorni.size(); ++i) {
        if (!IsEmptyValue(campi.giorni[i])) {
            campi.descrizione += " - " + campi.giorni[i];
        }
    }
    campi.descrizione += " del mese";
}

} // namespace

void TogliZeri(CampiDecorrenza& campi) {
    const auto zero = [](const std::string& testo) { return testo == "0"; };
    SenzaBuchi(campi.giorni, zero);
    SenzaBuchi(campi.mesi, zero);
}

void ComponiNome(CampiDecorrenza& campi) {
    if (!IsEmptyValue(campi.descrizione)) {
        ComponiGiorni(campi);
    }
    const char* davanti = " escluso ";
    for (const std::string& mese : campi.mesi) {
        if (!IsEmptyValue(mese)) {
            campi.descrizione += davanti + NomeDelMese(mese);
        }
        davanti = "  ";
    }
}

} // namespace vabo
