#pragma once

#include "locks/Libro.h"

namespace vabo::libro {

/// The accounts of the system as a company has set them: none where the row is missing, has no account, or account 0.
struct Conti {
    Numero hq1, hq2, c1, c2, c5, c18, c19, c27, c29;
};

/// What the rules of the locks make of a ledger, told without a database: the tests hold the program against it. Dates
/// are midnights.
Libro dopoIlProgetto(Libro libro, int progetto, const std::string& data, const std::string& bilancio,
                     const Conti& conti);
/// `giornoDopo` is the day after the balance.
Libro dopoLaSede(Libro libro, int sede, const std::string& data, const std::string& bilancio,
                 const std::string& giornoDopo, const Conti& conti);

} // namespace vabo::libro
