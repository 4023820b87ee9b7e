// The two locks over the wire against bare ODBC calls that send the same texts in the same order to the same server, on
// ledgers of 10 000 to 1 000 000 rows. Read `ratio`; `gap_ms` and `gap_unwatched_ms` as in LocksBench.cpp.

#include "DrawnLock.h"
#include "LockLedger.h"
#include "Pairs.h"
#include "PeerProcess.h"
#include "RawOdbc.h"
#include "ado/drivers/odbc/OdbcConnection.h"
#include "engine/store/Instance.h"
#include "locks/BloccoProgetto.h"
#include "locks/BloccoSede.h"
#include "state/variabili.h"

#include <map>
#include <memory>
#include <vector>

namespace {

enum Lock { Project, Branch };

/// A server with a ledger of so many rows; one at a time.
bench::PeerProcess& serverWith(long rows) {
    static std::unique_ptr<bench::PeerProcess> server;
    static long present = 0;
    if (present != rows) {
        server.reset();
        server = std::make_unique<bench::PeerProcess>(PEER_PROGRAM);
        const auto instance = engine::Instance::open(server->folder() / "server", {});
        bench::layLedger(*engine::Session::open(instance, {{}, {}, "prova"}), rows);
        present = rows;
    }
    return *server;
}

/// The longest time without a drawing, in milliseconds.
double lock(Lock which, bool alsoWhileWaiting = true) {
    return bench::longestWithoutDrawing(alsoWhileWaiting, [&](vabo::Avanzamento& drawn) {
        if (which == Project) {
            vabo::AggiornaDataDefinitiva(bench::kLockedProject, bench::kLockDate, drawn);
        } else {
            vabo::BloccaSede(bench::kLockedBranch, bench::kLockDate, drawn);
        }
    });
}

/// The groups of the accounts are read on connections of their own, here as there.
void send(const std::vector<std::string>& texts, const std::string& connectionText) {
    bench::RawConnection connection;
    connection.open(connectionText);
    bench::RawStatement statement(connection);
    for (const std::string& text : texts) {
        if (text.starts_with("SELECT  IdGruppoVabo")) {
            bench::RawConnection own;
            own.open(connectionText);
            bench::RawStatement(own).read(text);
        } else if (text.starts_with("s") || text.starts_with("S")) {
            statement.read(text);
        } else {
            statement.run(text);
        }
    }
}

void locks(benchmark::State& state, Lock which) {
    const bench::PeerProcess& server = serverWith(state.range(0));
    vabo::StringaAzienda = server.connectionString();
    vabo::DbAzienda.Open(vabo::StringaAzienda);
    const std::string driverText = ado::odbc::driverText(ado::ConnectionString(server.connectionString()), "FreeTDS");
    std::vector<std::string> texts;
    ado::setStatementRecorder([&](const std::string& text) { texts.push_back(text); });
    state.counters["gap_unwatched_ms"] = lock(which, false);
    ado::setStatementRecorder({});
    for (auto _ : state) {
        const double ours = bench::seconds([&] { state.counters["gap_ms"] = lock(which); });
        const double theirs = bench::seconds([&] { send(texts, driverText); });
        bench::report(state, ours, theirs);
    }
    vabo::DbAzienda.Close();
}

void LockAProject(benchmark::State& state) {
    locks(state, Project);
}
void LockABranch(benchmark::State& state) {
    locks(state, Branch);
}

void registerSize(const char* name, void (*lock)(benchmark::State&), long rows) {
    benchmark::RegisterBenchmark(name, lock)->Arg(rows)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
}

} // namespace

/// By size, so that a ledger is laid once.
int main(int argc, char** argv) {
    for (const long rows : {10'000L, 100'000L, 1'000'000L}) {
        registerSize("LockAProject", LockAProject, rows);
        registerSize("LockABranch", LockABranch, rows);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
