#pragma once

#include "locks/Modello.h"

#include <chrono>
#include <random>
#include <string>

namespace vabo::libro {

std::string giorno(std::chrono::sys_days giorni);

/// One company as chance has it: its dates, accounts and up to 60 rows.
struct Caso {
    std::chrono::sys_days bilancio, data;
    bool senzaBilancio = false;
    Conti conti;
    Libro righe;

    /// Midnight of each.
    std::string alBilancio() const { return alle(giorno(bilancio)); }
    std::string allaData() const { return alle(giorno(data)); }
    std::string alGiornoDopo() const { return alle(giorno(bilancio + std::chrono::days(1))); }
    /// The date as a user types it, with slashes or without.
    std::string digitata(const char* separatore = "/") const;
};

class Generatore {
public:
    explicit Generatore(std::uint32_t seme) : caso_(seme) {}

    /// Dates from so many days before the balance on. Rows without a number or a branch are there only where
    /// `senzaChiave` allows them.
    Caso nuovo(int primaDelBilancio, bool senzaChiave);

private:
    Riga riga(int id, const Caso& caso, bool senzaChiave);
    Momento momento(const Caso& caso);
    Numero importo();

    int numero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso_); }
    bool una(int su) { return numero(1, su) == 1; }
    std::mt19937 caso_;
};

} // namespace vabo::libro
