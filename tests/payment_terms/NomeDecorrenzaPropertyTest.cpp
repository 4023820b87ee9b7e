// Commencement rules with any days and months.

#include "kit/IsEmptyValue.h"
#include "payment_terms/NomeDecorrenza.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

namespace vabo {
namespace {

std::string numeroACaso(int fino) {
    return *rc::gen::map(rc::gen::inRange(0, fino), [](int numero) { return std::to_string(numero); });
}

TEST(DecorrenzeACaso, WhatIsStoredIsShownWithoutGapsAndASecondTimeTheSame) {
    EXPECT_TRUE(rc::check([] {
        CampiDecorrenza campi;
        std::ranges::generate(campi.giorni, [] { return numeroACaso(4); });
        std::ranges::generate(campi.mesi, [] { return numeroACaso(3); });
        const CampiDecorrenza prima = campi;
        TogliZeri(campi);
        const auto pieno = [](const std::string& campo) { return !IsEmptyValue(campo); };
        RC_ASSERT(std::ranges::is_partitioned(campi.giorni, pieno));
        RC_ASSERT(std::ranges::is_partitioned(campi.mesi, pieno));
        RC_ASSERT(std::ranges::count(campi.giorni, "0") + std::ranges::count(campi.mesi, "0") == 0);
        const auto restano = [](const auto& dopo, const auto& davanti) {
            const auto zero = std::ranges::find(davanti, "0");
            return std::equal(davanti.begin(), zero, dopo.begin());
        };
        RC_ASSERT(restano(campi.giorni, prima.giorni));
        RC_ASSERT(restano(campi.mesi, prima.mesi));
        CampiDecorrenza dopo = campi;
        TogliZeri(dopo);
        RC_ASSERT(dopo.giorni == campi.giorni);
        RC_ASSERT(dopo.mesi == campi.mesi);
    }));
}

// Two days rebuild the name, so that a second run gives the same one; without them it grows by as much each time.
TEST(DecorrenzeACaso, ANameOfTwoDaysStaysAndAnyOtherGrowsByTheSameEachTime) {
    EXPECT_TRUE(rc::check([] {
        CampiDecorrenza campi;
        campi.descrizione = *rc::gen::nonEmpty(rc::gen::string<std::string>());
        RC_PRE(!IsEmptyValue(campi.descrizione));
        std::ranges::generate(campi.giorni, [] { return numeroACaso(32); });
        std::ranges::generate(campi.mesi, [] { return numeroACaso(14); });
        const std::string prima = campi.descrizione;
        ComponiNome(campi);
        const std::string una = campi.descrizione;
        ComponiNome(campi);
        if (campi.giorni[1] != "0") {
            RC_ASSERT(una.starts_with("Sc.il " + campi.giorni[0] + " - " + campi.giorni[1]));
            RC_ASSERT(campi.descrizione == una);
        } else {
            const std::string aggiunto = una.substr(prima.size());
            RC_ASSERT(una == prima + aggiunto);
            RC_ASSERT(aggiunto.find(" del mese") != std::string::npos);
            RC_ASSERT(campi.descrizione == una + aggiunto);
        }
    }));
}

} // namespace
} // namespace vabo
