// The two locks on ledgers of 10 000 to 1 000 000 rows, a tenth of which makes its transaction definitive in any case,
// against a raw SQLite program that runs the same statements prepared, on a copy of the same file, at the same
// durability. `ratio` is ours over theirs, `peak_mb` the most memory that a process needed for ours, `gap_ms` the
// longest time without a drawing of the window, `gap_unwatched_ms` the same where it is drawn between statements only.
//
// The ledgers lie in the folder in which the benchmark is started: on a disk a commit costs what a commit costs.

#include "DrawnLock.h"
#include "LockLedger.h"
#include "Pairs.h"
#include "ado/Drivers.h"
#include "engine/store/Instance.h"
#include "locks/BloccoProgetto.h"
#include "locks/BloccoSede.h"
#include "provision/Sql.h"
#include "state/variabili.h"

#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kServer = "BANCO";
constexpr const char* kDatabase = "prova";

enum Lock { Project, Branch };

void useServersIn(const fs::path& folder) {
    ado::setEmbeddedHome({[folder] { return folder; }, [folder](std::string_view path) { return folder / path; }});
}

/// An embedded server with a ledger of so many rows, and a copy of its file for the raw program.
class Ledger {
public:
    explicit Ledger(long rows)
        : folder_(fs::current_path() / ("bench-locks-" + std::to_string(getpid()) + "-" + std::to_string(rows))) {
        fs::create_directories(folder_);
        const auto instance = engine::Instance::create(
            folder_ / kServer, {[folder = folder_](std::string_view path) { return folder / path; }});
        instance->createDatabase(kDatabase, "", "");
        const auto session = engine::Session::open(instance, {{}, {}, kDatabase});
        bench::layLedger(*session, rows);
        file_ = instance->database(kDatabase)->file;
    }
    ~Ledger() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Ledger(const Ledger&) = delete;
    Ledger& operator=(const Ledger&) = delete;

    const fs::path& folder() const { return folder_; }
    fs::path copy() const {
        fs::path raw = folder_ / "raw.db";
        if (!fs::exists(raw)) {
            fs::copy_file(file_, raw);
        }
        return raw;
    }

private:
    fs::path folder_, file_;
};

Ledger& ledgerOf(long rows) {
    static std::map<long, std::unique_ptr<Ledger>> all;
    auto& ledger = all[rows];
    if (!ledger) {
        ledger = std::make_unique<Ledger>(rows);
    }
    return *ledger;
}

class Company {
public:
    explicit Company(const fs::path& folder) {
        useServersIn(folder);
        vabo::StringaAzienda = std::string("Server=") + kServer + ";DATABase=" + kDatabase + ";";
        vabo::DbAzienda.Open(vabo::StringaAzienda);
    }
    ~Company() { vabo::DbAzienda.Close(); }
    Company(const Company&) = delete;
    Company& operator=(const Company&) = delete;

    /// The longest time without a drawing, in milliseconds.
    static double lock(Lock which, bool alsoWhileWaiting = true) {
        return bench::longestWithoutDrawing(alsoWhileWaiting, [&](vabo::Avanzamento& drawn) {
            if (which == Project) {
                vabo::AggiornaDataDefinitiva(bench::kLockedProject, bench::kLockDate, drawn);
            } else {
                vabo::BloccaSede(bench::kLockedBranch, bench::kLockDate, drawn);
            }
        });
    }
};

/// SQLite and nothing else.
class Raw {
public:
    explicit Raw(const fs::path& file) {
        needed(sqlite3_open(file.c_str(), &handle_));
        run("PRAGMA journal_mode=WAL");
        run("PRAGMA synchronous=FULL");
        sqlite3_create_collation(handle_, "TSQL", SQLITE_UTF8, nullptr,
                                 [](void*, int, const void*, int, const void*) { return 0; });
    }
    ~Raw() { sqlite3_close(handle_); }
    Raw(const Raw&) = delete;
    Raw& operator=(const Raw&) = delete;

    void run(const std::string& text) { needed(sqlite3_exec(handle_, text.c_str(), nullptr, nullptr, nullptr)); }
    /// One call a row of the selection, all of its columns read and its keys kept, as a recordset does.
    void eachRow(const std::string& select, const char* update) {
        std::vector<std::array<int, 2>> keys;
        sqlite3_stmt* rows = prepare(select.c_str());
        while (sqlite3_step(rows) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(rows); ++column) {
                benchmark::DoNotOptimize(sqlite3_column_value(rows, column));
            }
            keys.push_back({sqlite3_column_int(rows, 1), sqlite3_column_int(rows, 2)});
        }
        sqlite3_finalize(rows);
        sqlite3_stmt* prepared = prepare(update);
        for (const auto& [number, branch] : keys) {
            sqlite3_bind_int(prepared, 1, number);
            sqlite3_bind_int(prepared, 2, branch);
            sqlite3_step(prepared);
            needed(sqlite3_reset(prepared));
        }
        sqlite3_finalize(prepared);
    }

    void lock(Lock which) { which == Project ? lockProject() : lockBranch(); }

private:
    static constexpr const char* kInAnyCase =
        "(idconto = 19 or idconto = 18 or idconto = 11 or idconto = 12 or idconto = 11 or idconto = 11 or idconto = 13 "
        "or idconto = 11 or idconto = 11 or idconto = 14 or idconto = 15 or idconto = 16 or idconto = 17 or seziva > 0 "
        "or ((importodepositi - importoprelievi = 0 or importodepositi - importoprelievi is null) and not idvaluta = "
        "1001))";
    static constexpr const char* kAccounts =
        "idconto = 11 or idconto = 12 or idconto = 11 or idconto = 11 or idconto = 13 or idconto = 11 or idconto = 11 "
        "or idconto = 14 or idconto = 15 or idconto = 16 or idconto = 17";

    void lockProject() {
        const std::string ofProject = " where idprogettorendiconto = " + std::to_string(bench::kLockedProject);
        run("update progetti set iddate = '2024-03-31 00:00:00.000' where id = " +
            std::to_string(bench::kLockedProject));
        run("update partitadoppia set definito = 0" + ofProject + " and datatransazione > '2023-12-31 00:00:00.000'");
        run("update partitadoppia set definito = -1" + ofProject +
            " and (datareport < '2024-03-31 00:00:00.000' or datareport = '2024-03-31 00:00:00.000') and not exists "
            "(select * from partitadoppia as b where b.numerotransazione = partitadoppia.numerotransazione and b.idsede "
            "= partitadoppia.idsede and (" +
            kAccounts + "))");
        const char* update = "update partitadoppia set definito = -1, datareport = datatransazione where "
                             "numerotransazione = ?1 and idsede = ?2";
        eachRow("select * from partitadoppia" + ofProject + " and " + kInAnyCase, update);
        eachRow("select * from partitadoppia" + ofProject + " and datareport = '2024-03-31 00:00:00.000' and (" +
                    kAccounts + ")",
                update);
    }
    void lockBranch() {
        const std::string ofBranch = " where idsedecompetenza = " + std::to_string(bench::kLockedBranch);
        run("update ElencoSedi set idDatainvio = '2024-03-31 00:00:00.000' where IdSede = " +
            std::to_string(bench::kLockedBranch));
        run("update partitadoppia set definito = 0" + ofBranch +
            " and datatransazione > '2024-03-31 00:00:00.000' and datatransazione > '2023-12-31 00:00:00.000'");
        run("update partitadoppia set definito = -1" + ofBranch + " and datatransazione < '2024-01-01 00:00:00.000'");
        eachRow("select * from partitadoppia" + ofBranch + " and " + kInAnyCase,
                "update partitadoppia set definito = -1 where numerotransazione = ?1 and idsede = ?2");
    }
    void needed(int code) const {
        if (code != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
    }
    sqlite3_stmt* prepare(const char* text) {
        sqlite3_stmt* statement = nullptr;
        needed(sqlite3_prepare_v2(handle_, text, -1, &statement, nullptr));
        return statement;
    }

    sqlite3* handle_ = nullptr;
};

std::string program;

/// The most memory of a process that does nothing but the lock, in MB.
double peak(const fs::path& folder, Lock which) {
    const std::string command =
        "'" + program + "' --peak '" + folder.string() + "' " + (which == Project ? "project" : "branch");
    FILE* answer = popen(command.c_str(), "r"); // NOLINT(cert-env33-c): this very program
    long kilobytes = 0;
    const bool told = answer != nullptr && std::fscanf(answer, "%ld", &kilobytes) == 1; // NOLINT(cert-err34-c)
    if (answer != nullptr) {
        pclose(answer);
    }
    if (!told) {
        throw std::runtime_error("no peak was told");
    }
    return static_cast<double>(kilobytes) / 1024;
}

int tellPeak(const fs::path& folder, Lock which) {
    {
        const Company company(folder);
        Company::lock(which);
    }
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            std::printf("%ld\n", std::stol(line.substr(6)));
        }
    }
    return 0;
}

void locks(benchmark::State& state, Lock which) {
    const Ledger& ledger = ledgerOf(state.range(0));
    Raw raw(ledger.copy());
    const Company company(ledger.folder());
    for (auto _ : state) {
        const double ours = bench::seconds([&] { state.counters["gap_ms"] = Company::lock(which); });
        const double theirs = bench::seconds([&] { raw.lock(which); });
        bench::report(state, ours, theirs);
    }
    state.counters["gap_unwatched_ms"] = Company::lock(which, false);
    state.counters["peak_mb"] = peak(ledger.folder(), which);
}

void LockAProject(benchmark::State& state) {
    locks(state, Project);
}
void LockABranch(benchmark::State& state) {
    locks(state, Branch);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    for (const long rows : {10'000L, 100'000L, 1'000'000L}) {
        benchmark->Arg(rows);
    }
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
}
BENCHMARK(LockAProject)->Apply(sizes);
BENCHMARK(LockABranch)->Apply(sizes);

} // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::strcmp(argv[1], "--peak") == 0) {
        return tellPeak(argv[2], std::strcmp(argv[3], "branch") == 0 ? Branch : Project);
    }
    program = fs::absolute(argv[0]).string();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
