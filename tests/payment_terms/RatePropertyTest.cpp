// Payment terms with any fields.

#include "kit/IsEmptyValue.h"
#include "payment_terms/Rate.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

namespace vabo {
namespace {

/// A field as users leave it: mostly filled, now and then empty or nothing to the program.
std::string campoACaso() {
    if (*rc::gen::inRange(0, 4) == 0) {
        return *rc::gen::element<std::string>("", "0", " ", "00", "0,00");
    }
    return *rc::gen::oneOf(rc::gen::map(rc::gen::inRange(1, 400), [](int giorni) { return std::to_string(giorni); }),
                           rc::gen::arbitrary<std::string>());
}

CampiCondizione condizioneACaso() {
    CampiCondizione campi;
    campi.tipoRimessa = *rc::gen::element<std::string>("", "Seleziona", "Rimessa diretta");
    campi.decorrenza = *rc::gen::element<std::string>("", "Seleziona", "Fine mese");
    campi.descrizione = *rc::gen::arbitrary<std::string>();
    for (std::string& scadenza : campi.scadenze) {
        scadenza = campoACaso();
    }
    return campi;
}

std::ptrdiff_t piene(const CampiCondizione& campi) {
    return std::ranges::count_if(campi.scadenze, [](const std::string& campo) { return !IsEmptyValue(campo); });
}

bool senzaBuchi(const CampiCondizione& campi) {
    return std::ranges::is_partitioned(campi.scadenze, [](const std::string& campo) { return !IsEmptyValue(campo); }) &&
           std::ranges::all_of(campi.scadenze,
                               [](const std::string& campo) { return campo.empty() || !IsEmptyValue(campo); });
}

TEST(RateACaso, ThereAreNoGapsAndTheirNumberIsThatOfTheFilledFields) {
    EXPECT_TRUE(rc::check([] {
        CampiCondizione campi = condizioneACaso();
        const CampiCondizione prima = campi;
        AggiornaRate(campi);
        RC_ASSERT(senzaBuchi(campi));
        const bool conTipo = prima.tipoRimessa == "Rimessa diretta";
        RC_ASSERT(campi.numeroRate == std::to_string(conTipo ? std::max<std::ptrdiff_t>(1, piene(campi)) : 1));
        RC_ASSERT(conTipo || campi.descrizione == prima.descrizione);
        RC_ASSERT(campi.tipoRimessa == prima.tipoRimessa);
        RC_ASSERT(campi.decorrenza == prima.decorrenza);
        RC_ASSERT(campi.anticipo == prima.anticipo);
        // What stays is what was typed ahead of the first gap.
        const auto quante = static_cast<std::size_t>(piene(campi));
        RC_ASSERT(std::equal(campi.scadenze.begin(), campi.scadenze.begin() + quante, prima.scadenze.begin()));
        RC_ASSERT(quante == kRate || IsEmptyValue(prima.scadenze[quante]));
    }));
}

TEST(RateACaso, ASecondRunChangesNothing) {
    EXPECT_TRUE(rc::check([] {
        CampiCondizione una = condizioneACaso();
        AggiornaRate(una);
        CampiCondizione due = una;
        AggiornaRate(due);
        RC_ASSERT(due.scadenze == una.scadenze);
        RC_ASSERT(due.numeroRate == una.numeroRate);
        RC_ASSERT(due.descrizione == una.descrizione);
    }));
}

} // namespace
} // namespace vabo
