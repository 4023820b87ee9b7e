// A lock that is ended at any of its statements, and run again with the same date.

#include "locks/GuastoAPosto.h"
#include "locks/LibroAperto.h"
#include "support/Processes.h"

#include <ostream>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;

/// All kinds of rows that a lock tells apart, before and after both dates, in two branches and two projects.
const Libro kRighe = {
    {.id = 1, .numero = 1, .sede = 1, .transazione = alle("2023-11-10"), .report = alle("2024-04-10")},
    {.id = 2, .numero = 1, .sede = 1, .transazione = alle("2023-11-10"), .progetto = 10000004, .competenza = 5},
    {.id = 3, .numero = 1, .sede = 2, .transazione = alle("2024-02-10"), .definito = -1},
    {.id = 4, .numero = 2, .sede = 1, .transazione = alle("2024-02-10"), .report = alle("2024-05-01"), .seziva = 1},
    {.id = 5, .numero = 2, .sede = 1, .transazione = alle("2024-02-11"), .report = {}, .progetto = 10000004},
    {.id = 6, .numero = 3, .sede = 1, .transazione = alle("2024-04-10"), .report = alle("2024-03-31"), .conto = 1060},
    {.id = 7, .numero = 3, .sede = 1, .transazione = alle("2024-04-10"), .report = alle("2024-03-31")},
    {.id = 8, .numero = 4, .sede = 2, .transazione = alle("2024-05-10"), .report = alle("2024-05-10"), .definito = -1},
    {.id = 9, .numero = 5, .sede = 2, .transazione = alle("2024-05-10"), .conto = 1166, .competenza = 5},
    {.id = 10, .numero = 6, .sede = 2, .transazione = alle("2024-05-10"), .conto = {}, .depositi = {}, .valuta = 1002}};

constexpr const char* kData = "31/03/2024";

struct Blocco {
    const char* nome;
    const char* id;
};

void PrintTo(const Blocco& blocco, std::ostream* out) {
    *out << blocco.nome;
}

class StoppedHalfWay : public LibroAperto, public testing::WithParamInterface<Blocco> {
protected:
    StoppedHalfWay() { senzaGruppi(); }

    bool delProgetto() const { return std::string(GetParam().nome) == "progetto"; }
    void blocca() const { delProgetto() ? bloccaProgetto(kData) : bloccaSede(kData); }
    std::vector<std::string> atteso() const {
        return testi(delProgetto()
                         ? dopoIlProgetto(kRighe, kProgetto, alle("2024-03-31"), alle(kBilancio), contiDelCampione())
                         : dopoLaSede(kRighe, kSede, alle("2024-03-31"), alle(kBilancio), alle("2024-01-01"),
                                      contiDelCampione()));
    }
    /// All that a lock writes, but for the ledger.
    std::vector<std::string> date() const {
        auto tutte = lettura("select ID, iddate from progetti order by ID");
        for (const std::string& sede : lettura("select IdSede, idDatainvio from ElencoSedi order by IdSede")) {
            tutte.push_back(sede);
        }
        return tutte;
    }
    void daCapo() const {
        metti(kRighe);
        scrivi("update progetti set iddate = null where ID = 10000003");
        scrivi("update ElencoSedi set idDatainvio = null where IdSede = 4");
    }
    std::string altroProgramma(int fatale) const {
        support::HelperProcess altro("locks_runner", {posto.driveC().root().string(), support::kCompany,
                                                      GetParam().nome, GetParam().id, kData, std::to_string(fatale)});
        EXPECT_EQ(altro.readLine(), "pronto");
        altro.writeLine("via");
        return altro.readLine().value_or("ucciso");
    }
};

TEST_P(StoppedHalfWay, ByAConnectionThatFailsFromAnyStatementOnASecondRunGivesWhatOneUndisturbedDoes) {
    daCapo();
    int tutte = 0;
    {
        const GuastoAPosto nessuno;
        blocca();
        tutte = nessuno.inviate();
    }
    ASSERT_EQ(letto(), atteso());
    const auto conDate = date();
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        daCapo();
        {
            const GuastoAPosto guasto(posto, GuastoAPosto::Durata::DaQui);
            try {
                blocca();
            } catch (const ado::Error& errore) {
                EXPECT_FALSE(delProgetto()) << errore.description();
            }
        }
        blocca();
        ASSERT_EQ(letto(), atteso());
        ASSERT_EQ(date(), conDate);
    }
}

TEST_P(StoppedHalfWay, ByTheEndOfItsProcessAtAnyStatementASecondRunGivesWhatOneUndisturbedDoes) {
    daCapo();
    const int tutte = std::stoi(altroProgramma(0));
    ASSERT_GT(tutte, 40);
    ASSERT_EQ(letto(), atteso());
    const auto conDate = date();
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        daCapo();
        ASSERT_EQ(altroProgramma(fatale), "ucciso");
        posto.waitUntilNoRowIsHeld(support::kCompany);
        blocca();
        ASSERT_EQ(letto(), atteso());
        ASSERT_EQ(date(), conDate);
    }
}

INSTANTIATE_TEST_SUITE_P(Lock, StoppedHalfWay, testing::Values(Blocco{"progetto", "10000003"}, Blocco{"sede", "4"}),
                         [](const auto& info) { return std::string(info.param.nome); });

} // namespace
} // namespace vabo
