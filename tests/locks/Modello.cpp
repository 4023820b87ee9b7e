#include "locks/Modello.h"

#include <algorithm>
#include <set>

namespace vabo::libro {

namespace {

/// Three accounts always count, 0 where the company has set none; four more only where it has.
std::set<int> definitivi(const Conti& conti) {
    std::set<int> tutti = {conti.c1.value_or(0), conti.c2.value_or(0), conti.c5.value_or(0)};
    for (const Numero& facoltativo : {conti.c18, conti.c19, conti.c27, conti.c29}) {
        if (facoltativo.value_or(0) != 0) {
            tutti.insert(*facoltativo);
        }
    }
    return tutti;
}

bool suUnConto(const Riga& riga, const std::set<int>& conti) {
    return riga.conto && conti.contains(*riga.conto);
}

bool conIva(const Riga& riga) {
    return riga.seziva && *riga.seziva > 0;
}

/// A movement of another currency without value in the accounting currency.
bool senzaValore(const Riga& riga) {
    const bool niente = !riga.depositi || !riga.prelievi || *riga.depositi == *riga.prelievi;
    return niente && riga.valuta && *riga.valuta != 1001;
}

/// A number is unique only within its branch; a row without either belongs to no transaction.
bool stessaTransazione(const Riga& una, const Riga& altra) {
    return una.numero && una.sede && una.numero == altra.numero && una.sede == altra.sede;
}

bool sempreDefinitiva(const Riga& riga, const Conti& conti) {
    return suUnConto(riga, definitivi(conti)) || suUnConto(riga, {conti.hq1.value_or(0), conti.hq2.value_or(0)}) ||
           conIva(riga) || senzaValore(riga);
}

/// Makes the whole transaction of each chosen row definitive.
template<typename Scelta>
void definisci(Libro& libro, bool rendiconta, const Scelta& scelta) {
    const Libro prima = libro;
    for (const Riga& scelte : prima) {
        if (!scelta(scelte)) {
            continue;
        }
        for (Riga& riga : libro) {
            if (stessaTransazione(scelte, riga)) {
                riga.definito = -1;
                riga.report = rendiconta ? riga.transazione : riga.report;
            }
        }
    }
}

} // namespace

Libro dopoIlProgetto(Libro libro, int progetto, const std::string& data, const std::string& bilancio,
                     const Conti& conti) {
    const std::set<int> bloccati = definitivi(conti);
    for (Riga& riga : libro) {
        if (riga.progetto == progetto && riga.transazione && *riga.transazione > bilancio) {
            riga.definito = 0;
        }
    }
    for (Riga& riga : libro) {
        const bool esclusa = std::ranges::any_of(
            libro, [&](const Riga& altra) { return stessaTransazione(riga, altra) && suUnConto(altra, bloccati); });
        if (riga.progetto == progetto && riga.report && *riga.report <= data && !esclusa) {
            riga.definito = -1;
        }
    }
    definisci(libro, true,
              [&](const Riga& riga) { return riga.progetto == progetto && sempreDefinitiva(riga, conti); });
    definisci(libro, true, [&](const Riga& riga) {
        return riga.progetto == progetto && riga.report == data && suUnConto(riga, bloccati);
    });
    return libro;
}

Libro dopoLaSede(Libro libro, int sede, const std::string& data, const std::string& bilancio,
                 const std::string& giornoDopo, const Conti& conti) {
    for (Riga& riga : libro) {
        if (riga.competenza != sede || !riga.transazione) {
            continue;
        }
        if (*riga.transazione > data && *riga.transazione > bilancio) {
            riga.definito = 0;
        }
        if (*riga.transazione < giornoDopo) {
            riga.definito = -1;
        }
    }
    definisci(libro, false, [&](const Riga& riga) { return riga.competenza == sede && sempreDefinitiva(riga, conti); });
    return libro;
}

} // namespace vabo::libro
