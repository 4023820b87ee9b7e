#pragma once

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"
#include "locks/funzioni_datadefinitiva.h"

#include <array>
#include <string>

namespace vabo {

/// " idconto = 1051 or idconto = 1058 …": the definitive accounts, each behind `campo`. First those of the fixed places
/// that the statements spell out, whatever they hold; then the four that count only where they have an account. Those
/// are read here, twice each time: a test and a value, statements of the rule. `giri` is how often the four stand in
/// the list.
template<typename Regola>
std::string ContiDefinitivi(const Regola& regola, const NoveConti& ContiBlocco, const std::string& campo,
                            int giri = 1) {
    constexpr std::size_t kFissi = 7;
    std::string elenco = campo + std::to_string(ContiBlocco[0]);
    for (std::size_t i = 1; i < kFissi; ++i) {
        elenco += " or" + campo + std::to_string(ContiBlocco[i]);
    }
    for (int giro = 0; giro < giri; ++giro) {
        for (const auto leggi : {Conto18, Conto19, Conto27, Conto29}) {
            bool vuoto = false; // also where the test fails
            regola([&] { vuoto = IsEmptyValue(leggi()); });
            if (!vuoto) {
                regola([&] { elenco += " or" + campo + ado::plainNumber(leggi()); });
            }
        }
    }
    return elenco;
}

/// Rows that make their transaction definitive whatever its date: on an account of the headquarters, on a definitive
/// account, of a VAT section, or without an amount in another currency.
std::string SempreDefinitive(double contoHq2, double contoHq1, const std::string& definitivi);

/// " where numerotransazione = … and idsede = …": all rows of a transaction, of whatever project. A null leaves a gap
/// that the server refuses.
std::string DellaTransazione(const ado::Value& numero, const ado::Value& sede);

} // namespace vabo
