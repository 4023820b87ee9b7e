// The data layer over the wire compared with the fewest ODBC calls for the same work, in one process, with the same
// connection text, on the same server. With `--pooled` the driver manager keeps connections; without it the machine's
// configuration decides. Everything runs in one event, as what the program does after a click.

#include "Pairs.h"
#include "PeerProcess.h"
#include "RawOdbc.h"
#include "ado/Connection.h"
#include "ado/drivers/odbc/OdbcConnection.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int kTurns = 10; ///< how often the two alternate in one pair
constexpr int kUpdates = 200 / kTurns;
constexpr int kConnections = 100 / kTurns;

bench::PeerProcess& server() {
    static bench::PeerProcess process(PEER_PROGRAM);
    return process;
}

/// The connection text that the data layer gives to the driver.
std::string driverText() {
    return ado::odbc::driverText(ado::ConnectionString(server().connectionString()), "FreeTDS");
}

using bench::RawConnection;
using bench::RawStatement;

/// One pair: the two alternate, so that a disturbance of the machine affects both.
template<typename Ours, typename Theirs>
void takeTurns(benchmark::State& state, const Ours& ours, const Theirs& theirs) {
    double oursTook = 0, theirsTook = 0;
    for (int turn = 0; turn < kTurns; ++turn) {
        oursTook += bench::seconds(ours);
        theirsTook += bench::seconds(theirs);
    }
    bench::report(state, oursTook, theirsTook);
}

std::string update(int value) {
    return "update conti set saldo = " + std::to_string(value) + " where id = " + std::to_string(1 + value % 100);
}

void fill(ado::Connection& connection) {
    connection.Execute("IF OBJECT_ID('conti') IS NOT NULL DROP TABLE conti");
    connection.Execute("CREATE TABLE conti (id int NOT NULL PRIMARY KEY, saldo int NOT NULL)");
    for (int id = 1; id <= 100; ++id) {
        connection.Execute("INSERT INTO conti (id, saldo) VALUES (" + std::to_string(id) + ", 0)");
    }
}

void RepeatedUpdate(benchmark::State& state) {
    ado::Connection connection;
    connection.Open(server().connectionString());
    fill(connection);
    RawConnection raw;
    raw.open(driverText());
    RawStatement statement(raw);
    int value = 0;
    for (auto _ : state) {
        takeTurns(
            state,
            [&] {
                for (int i = 0; i < kUpdates; ++i) {
                    connection.Execute(update(++value));
                }
            },
            [&] {
                for (int i = 0; i < kUpdates; ++i) {
                    statement.run(update(++value));
                }
            });
    }
}
BENCHMARK(RepeatedUpdate)->Apply(bench::inPairs);

void ConnectAndDisconnect(benchmark::State& state) {
    const std::string text = driverText();
    for (auto _ : state) {
        takeTurns(
            state,
            [&] {
                for (int i = 0; i < kConnections; ++i) {
                    ado::Connection connection;
                    connection.Open(server().connectionString());
                    connection.Close();
                }
            },
            [&] {
                for (int i = 0; i < kConnections; ++i) {
                    RawConnection raw;
                    raw.open(text);
                    raw.close();
                }
            });
    }
}
BENCHMARK(ConnectAndDisconnect)->Apply(bench::inPairs);

/// Sets a configuration of the driver manager, in the place of the machine's, in which connections are kept for a
/// minute.
void keepConnections() {
    std::ofstream(server().folder() / "odbcinst.ini")
        << "[ODBC]\nPooling=Yes\n[FreeTDS]\nDriver=libtdsodbc.so\nCPTimeout=60\n";
    setenv("ODBCSYSINI", server().folder().c_str(), 1);
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], "--pooled") == 0) {
        keepConnections();
        argv[1] = argv[0];
        --argc;
        ++argv;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    // All of it in one event, as the program does what follows a click.
    const QCoreApplication application(argc, argv);
    QTimer::singleShot(0, [] {
        benchmark::RunSpecifiedBenchmarks();
        QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}
