// The two locks against the model of their rules, on ledgers that nobody has thought of.

#include "locks/LibroAperto.h"

#include <chrono>
#include <cstdio>
#include <random>

namespace vabo {
namespace {

using libro::Libro;
using libro::Numero;
using libro::Riga;

constexpr int kLibri = 1000; ///< of each lock, on each connection

std::string giorno(std::chrono::sys_days giorni) {
    const std::chrono::year_month_day data(giorni);
    char testo[32];
    std::snprintf(testo, sizeof testo, "%04d-%02u-%02u", static_cast<int>(data.year()),
                  static_cast<unsigned>(data.month()), static_cast<unsigned>(data.day()));
    return testo;
}

/// As a user types it.
std::string digitata(std::chrono::sys_days giorni) {
    const std::string data = giorno(giorni);
    return data.substr(8, 2) + "/" + data.substr(5, 2) + "/" + data.substr(0, 4);
}

/// One company as chance has it: its dates, accounts and rows.
struct Caso {
    std::chrono::sys_days bilancio, data;
    bool senzaBilancio = false;
    libro::Conti conti;
    Libro righe;
};

class Generatore {
public:
    explicit Generatore(std::uint32_t seme) : caso_(seme) {}

    /// Rows without a number or a branch are there only where `senzaChiave` allows them.
    Caso nuovo(int primaDelBilancio, bool senzaChiave) {
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

private:
    Riga riga(int id, const Caso& caso, bool senzaChiave) {
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
    libro::Momento momento(const Caso& caso) {
        if (una(12)) {
            return {};
        }
        const auto intorno = una(2) ? caso.bilancio : caso.data;
        return libro::alle(giorno(intorno + std::chrono::days(numero(-2, 2))), una(6) ? "10:30" : "00:00");
    }
    Numero importo() { return una(8) ? Numero() : Numero(una(2) ? 0 : numero(1, 3) * 1250); }

    int numero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso_); }
    bool una(int su) { return numero(1, su) == 1; }
    std::mt19937 caso_;
};

class ControIlModello : public LibroAperto {
protected:
    ControIlModello() { senzaGruppi(); }

    void metti(const Caso& caso) const {
        LibroAperto::metti(caso.righe);
        scrivi("update contatorepd set iddate = " +
               (caso.senzaBilancio ? "null" : "'" + libro::alle(giorno(caso.bilancio)) + "'"));
        mettiConto("tabellacontiutiliTransfersHQ", 1, caso.conti.hq1);
        mettiConto("tabellacontiutiliTransfersHQ", 2, caso.conti.hq2);
        mettiConto("TabellaContiUtili", 1, caso.conti.c1);
        mettiConto("TabellaContiUtili", 2, caso.conti.c2);
        mettiConto("TabellaContiUtili", 5, caso.conti.c5);
        mettiConto("TabellaContiUtili", 18, caso.conti.c18);
        mettiConto("TabellaContiUtili", 19, caso.conti.c19);
        mettiConto("TabellaContiUtili", 27, caso.conti.c27);
        mettiConto("TabellaContiUtili", 29, caso.conti.c29);
    }
    void mettiConto(const std::string& tabella, int id, const Numero& conto) const {
        scrivi("update " + tabella + " set idconto = " + (conto ? std::to_string(*conto) : "null") +
               " where id = " + std::to_string(id));
    }
    /// A table whose one date is set, as it has to stand then.
    std::vector<std::string> conData(const std::string& testo, int id, const std::string& data) const {
        std::vector<std::string> righe = lettura(testo);
        for (std::string& riga : righe) {
            if (riga.starts_with(std::to_string(id) + "|")) {
                riga = std::to_string(id) + "|" + libro::alle(data);
            }
        }
        return righe;
    }
    static constexpr const char* kProgetti = "select ID, iddate from progetti order by ID";
    static constexpr const char* kSedi = "select IdSede, idDatainvio from ElencoSedi order by IdSede";
    const std::uint32_t seme = std::random_device{}();
};

TEST_F(ControIlModello, TheProjectsLockLeavesEveryLedgerAsItsRulesSay) {
    RecordProperty("seed", std::to_string(seme));
    Generatore casi(seme);
    for (int prova = 0; prova < kLibri; ++prova) {
        SCOPED_TRACE("ledger " + std::to_string(prova) + " of seed " + std::to_string(seme));
        const Caso caso = casi.nuovo(40, true);
        metti(caso);
        const auto progetti = conData(kProgetti, kProgetto, giorno(caso.data));
        const auto sedi = lettura(kSedi);
        bloccaProgetto(digitata(caso.data));
        const auto atteso = dopoIlProgetto(caso.righe, kProgetto, libro::alle(giorno(caso.data)),
                                           libro::alle(giorno(caso.bilancio)), caso.conti);
        ASSERT_EQ(letto(), testi(atteso));
        ASSERT_EQ(lettura(kProgetti), progetti);
        ASSERT_EQ(lettura(kSedi), sedi);
    }
}

TEST_F(ControIlModello, TheBranchsLockLeavesEveryLedgerAsItsRulesSay) {
    RecordProperty("seed", std::to_string(seme));
    Generatore casi(seme);
    for (int prova = 0; prova < kLibri; ++prova) {
        SCOPED_TRACE("ledger " + std::to_string(prova) + " of seed " + std::to_string(seme));
        const Caso caso = casi.nuovo(0, false);
        metti(caso);
        const auto progetti = lettura(kProgetti);
        const auto sedi = conData(kSedi, kSede, giorno(caso.data));
        bloccaSede(digitata(caso.data));
        const auto atteso =
            dopoLaSede(caso.righe, kSede, libro::alle(giorno(caso.data)), libro::alle(giorno(caso.bilancio)),
                       libro::alle(giorno(caso.bilancio + std::chrono::days(1))), caso.conti);
        ASSERT_EQ(letto(), testi(atteso));
        ASSERT_EQ(lettura(kProgetti), progetti);
        ASSERT_EQ(lettura(kSedi), sedi);
    }
}

} // namespace
} // namespace vabo
