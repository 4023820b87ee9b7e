// Two programs that lock at once, while a third one posts.

#include "locks/LibroAperto.h"
#include "support/Processes.h"
#include "support/SomebodyElse.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;
using libro::Riga;

constexpr int kRighe = 300;
constexpr int kRegistrate = 40;
constexpr const char* kData = "31/03/2024";

/// Rows that both locks lay their hands on, many of them by several passes.
Libro righeDiEntrambi(std::mt19937& caso) {
    const auto numero = [&](int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso); };
    const char* const giorni[] = {"2023-10-05", "2023-12-31", "2024-01-01", "2024-02-20", "2024-03-31", "2024-05-02"};
    Libro righe;
    for (int id = 1; id <= kRighe; ++id) {
        righe.push_back({.id = id,
                         .numero = numero(1, kRighe / 3),
                         .sede = numero(1, 2),
                         .transazione = alle(giorni[numero(0, 5)]),
                         .report = alle(giorni[numero(0, 5)]),
                         .conto = numero(1, 8) == 1 ? 1060 : 1200,
                         .progetto = numero(1, 4) == 1 ? 10000004 : 10000003,
                         .competenza = numero(1, 4) == 1 ? 5 : 4,
                         .seziva = numero(1, 10) == 1 ? 1 : 0,
                         .definito = -numero(0, 1)});
    }
    return righe;
}

class TwoPrograms : public LibroAperto {
protected:
    std::unique_ptr<support::HelperProcess> programma(const char* blocco, const char* id) const {
        auto altro = std::make_unique<support::HelperProcess>(
            "locks_runner",
            std::vector<std::string>{posto.driveC().root().string(), support::kCompany, blocco, id, kData, "0"});
        EXPECT_EQ(altro->readLine(), "pronto");
        return altro;
    }
    Libro dopoIlProgetto(const Libro& righe) const {
        return libro::dopoIlProgetto(righe, kProgetto, alle("2024-03-31"), alle(kBilancio), contiDelCampione());
    }
    Libro dopoLaSede(const Libro& righe) const {
        return libro::dopoLaSede(righe, kSede, alle("2024-03-31"), alle(kBilancio), alle("2024-01-01"),
                                 contiDelCampione());
    }
};

/// Whatever order the statements had: a row that one lock alone writes stands as that lock leaves it; one that both
/// write, as one of them does; and nothing else of any row is another.
TEST_F(TwoPrograms, LockAtOnceAndTheEndIsThatOfSomeOrderOfTheirStatements) {
    const std::uint32_t seme = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seme));
    std::mt19937 caso(seme);
    for (int prova = 0; prova < 5; ++prova) {
        SCOPED_TRACE(prova);
        const Libro righe = righeDiEntrambi(caso);
        metti(righe);
        const auto progetto = programma("progetto", "10000003");
        const auto sede = programma("sede", "4");
        progetto->writeLine("via");
        sede->writeLine("via");
        EXPECT_GT(std::stoi(progetto->readLine().value_or("0")), 40);
        EXPECT_GT(std::stoi(sede->readLine().value_or("0")), 40);
        EXPECT_EQ(progetto->finish(), 0);
        EXPECT_EQ(sede->finish(), 0);

        const auto dopo = letto();
        ASSERT_EQ(dopo.size(), righe.size());
        const auto primaProgetto = testi(dopoLaSede(dopoIlProgetto(righe)));
        const auto primaSede = testi(dopoIlProgetto(dopoLaSede(righe)));
        for (std::size_t i = 0; i < righe.size(); ++i) {
            EXPECT_TRUE(dopo[i] == primaProgetto[i] || dopo[i] == primaSede[i])
                << dopo[i] << "\n  project first: " << primaProgetto[i] << "\n  branch first:  " << primaSede[i];
        }
    }
}

TEST_F(TwoPrograms, LoseNoRowThatIsPostedDuringTheirRun) {
    std::mt19937 caso(7);
    const Libro righe = righeDiEntrambi(caso);
    metti(righe);
    const auto progetto = programma("progetto", "10000003");
    const auto sede = programma("sede", "4");
    progetto->writeLine("via");
    sede->writeLine("via");
    for (int i = 1; i <= kRegistrate; ++i) {
        scrivi(libro::inserimento({{.id = kRighe + i,
                                    .numero = 1000 + i,
                                    .transazione = alle("2024-05-02"),
                                    .report = alle("2024-03-15"),
                                    .descrizione = "Registrata durante il blocco"}}));
    }
    EXPECT_GT(std::stoi(progetto->readLine().value_or("0")), 40);
    EXPECT_GT(std::stoi(sede->readLine().value_or("0")), 40);
    const auto dopo = letto();
    ASSERT_EQ(dopo.size(), righe.size() + kRegistrate);
    for (std::size_t i = righe.size(); i < dopo.size(); ++i) {
        Riga attesa = {.id = static_cast<int>(i) + 1,
                       .numero = static_cast<int>(1001 + i - righe.size()),
                       .transazione = alle("2024-05-02"),
                       .report = alle("2024-03-15"),
                       .descrizione = "Registrata durante il blocco"};
        const std::string aperta = testo(attesa);
        attesa.definito = -1;
        EXPECT_TRUE(dopo[i] == aperta || dopo[i] == testo(attesa)) << dopo[i];
    }
}

/// A transaction posted ahead of each statement in turn: what the passes behind it say of it counts.
TEST_F(TwoPrograms, ATransactionPostedDuringTheProjectsLockIsSeenByThePassesThatCome) {
    senzaGruppi();
    const Libro righe = {{.id = 1, .numero = 1, .seziva = 1}, {.id = 2, .numero = 2}};
    const Libro nuove = {
        {.id = 3, .numero = 3, .report = alle("2024-02-01"), .definito = 0},
        {.id = 4, .numero = 4, .transazione = alle("2024-02-10"), .report = alle("2024-06-01"), .seziva = 1},
        {.id = 5, .numero = 5, .transazione = alle("2024-05-10"), .report = alle("2024-06-01"), .definito = -1}};
    std::map<std::string, int> visti; // how often each end state came about
    bool ancora = true;
    for (int quando = 1; ancora; ++quando) {
        metti(righe);
        int inviate = 0;
        bool registrate = false;
        {
            const support::SomebodyElse altro([&](const std::string& /*testo*/) {
                if (++inviate == quando) {
                    scrivi(libro::inserimento(nuove));
                    registrate = true;
                }
            });
            bloccaProgetto(kData);
        }
        ancora = registrate;
        if (!registrate) {
            break;
        }
        const auto definiti =
            lettura("select definito from partitadoppia where idautonumber > 2 order by idautonumber");
        ASSERT_EQ(definiti.size(), 3U);
        ++visti[definiti[0] + " " + definiti[1] + " " + definiti[2]];
        ASSERT_EQ(letto().size(), 5U);
    }
    std::set<std::string> stati;
    for (const auto& [stato, volte] : visti) {
        stati.insert(stato);
    }
    EXPECT_EQ(stati, (std::set<std::string>{"-1 -1 0",   // ahead of the reopening
                                            "-1 -1 -1",  // ahead of the closing by date
                                            "0 -1 -1",   // ahead of the VAT rows
                                            "0 0 -1"})); // behind them
}

} // namespace
} // namespace vabo
