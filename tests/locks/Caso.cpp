#include "locks/Caso.h"

#include <cstdio>

namespace vabo::libro {

std::string giorno(std::chrono::sys_days giorni) {
    const std::chrono::year_month_day data(giorni);
    char testo[32];
    std::snprintf(testo, sizeof testo, "%04d-%02u-%02u", static_cast<int>(data.year()),
                  static_cast<unsigned>(data.month()), static_cast<unsigned>(data.day()));
    return testo;
}

std::string Caso::digitata(const char* separatore) const {
    const std::string testo = giorno(data);
    return testo.substr(8, 2) + separatore + testo.substr(5, 2) + separatore + testo.substr(0, 4);
}

Caso Generatore::nuovo(int primaDelBilancio, bool senzaChiave) {
    using namespace std::chrono;
    Caso nuovo;
    const sys_days bilanci[] = {2023y / 12 / 31, 2023y / 1 / 31, 2024y / 2 / 29, 2023y / 2 / 28, 2024y / 6 / 15};
    nuovo.senzaBilancio = una(8);
    nuovo.bilancio = nuovo.senzaBilancio ? sys_days(2000y / 12 / 31) : bilanci[numero(0, 4)];
    nuovo.data = nuovo.bilancio + days(numero(-primaDelBilancio, 40));
    for (Numero* conto : {&nuovo.conti.hq1, &nuovo.conti.hq2, &nuovo.conti.c1, &nuovo.conti.c2, &nuovo.conti.c5,
                          &nuovo.conti.c18, &nuovo.conti.c19, &nuovo.conti.c27, &nuovo.conti.c29}) {
        *conto = una(5) ? Numero() : una(8) ? Numero(0) : Numero(numero(101, 112));
    }
    const int righe = numero(0, 60);
    for (int id = 1; id <= righe; ++id) {
        nuovo.righe.push_back(riga(id, nuovo, senzaChiave));
    }
    return nuovo;
}

Riga Generatore::riga(int id, const Caso& caso, bool senzaChiave) {
    return {.id = id,
            .numero = senzaChiave && una(20) ? Numero() : numero(1, 9),
            .sede = senzaChiave && una(20) ? Numero() : numero(1, 3),
            .transazione = momento(caso),
            .report = momento(caso),
            .conto = una(8)   ? Numero()
                     : una(6) ? Numero(0)
                              : Numero(numero(101, 140)),
            .progetto = una(10) ? Numero() : Numero(una(2) ? 10000003 : 10000004),
            .competenza = una(10) ? Numero() : Numero(una(2) ? 4 : 5),
            .descrizione = "Riga " + std::to_string(id),
            .depositi = importo(),
            .prelievi = importo(),
            .valuta = una(10) ? Numero() : Numero(una(4) ? 1002 : 1001),
            .seziva = una(12) ? Numero() : Numero(una(15) ? numero(-1, 2) : 0),
            .definito = una(10) ? Numero() : Numero(-numero(0, 1))};
}

/// Around the two dates, on them, and in the middle of a day too.
Momento Generatore::momento(const Caso& caso) {
    if (una(12)) {
        return {};
    }
    const auto intorno = una(2) ? caso.bilancio : caso.data;
    return alle(giorno(intorno + std::chrono::days(numero(-2, 2))), una(6) ? "10:30" : "00:00");
}

Numero Generatore::importo() {
    return una(8) ? Numero() : Numero(una(2) ? 0 : numero(1, 3) * 1250);
}

} // namespace vabo::libro
