// The data layer compared with SQLite on the same files, with the same durability. Each iteration runs both one after
// the other, so that `ratio` compares the same moment; read its median.

#include "Pairs.h"
#include "ado/Connection.h"
#include "ado/Drivers.h"
#include "ado/Recordset.h"
#include "engine/store/Instance.h"

#include <sqlite3.h>

#include <ctime>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int kUpdates = 200;
constexpr int kRows = 100'000;
constexpr int kColumns = 8;
constexpr int kLongRow = 64; ///< columns; with a thousand rows, the most in one INSERT, 64,000 values

/// An embedded server in its own folder, removed at the end. The folder is on the disk of the build tree, not in
/// memory, so that commits take their real time.
class BenchServer {
public:
    BenchServer() : folder_(fs::current_path() / ("bench-" + std::to_string(getpid()))) {
        fs::create_directories(folder_ / "istanze");
        engine::InstanceOptions options{[this](std::string_view path) { return folder_ / path; }};
        engine::Instance::create(folder_ / "istanze" / "BANCO", options);
        ado::setEmbeddedHome({[this] { return folder_ / "istanze"; }, options.mapPath});
        ado::Connection master;
        master.Open("Server=BANCO;");
        master.Execute("CREATE DATABASE prova");
        connection.Open("Server=BANCO;DATABase=prova");
    }
    ~BenchServer() {
        connection.Close();
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    BenchServer(const BenchServer&) = delete;
    BenchServer& operator=(const BenchServer&) = delete;

    fs::path databaseFile() const {
        for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
            if (entry.path().filename() == "prova.mdf") {
                return entry.path();
            }
        }
        throw std::runtime_error("the database has no file");
    }
    const fs::path& folder() const { return folder_; }

    ado::Connection connection;

private:
    fs::path folder_;
};

class RawDatabase {
public:
    explicit RawDatabase(const fs::path& file) {
        if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
        run("PRAGMA journal_mode=WAL");
        run("PRAGMA synchronous=FULL");
        sqlite3_create_collation(handle_, "TSQL", SQLITE_UTF8, nullptr,
                                 [](void*, int, const void*, int, const void*) { return 0; });
    }
    ~RawDatabase() { sqlite3_close(handle_); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void run(const char* text) {
        if (sqlite3_exec(handle_, text, nullptr, nullptr, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
    }
    sqlite3_stmt* prepare(const char* text) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, text, -1, &statement, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
        return statement;
    }

private:
    sqlite3* handle_ = nullptr;
};

void RepeatedUpdateOfOneShape(benchmark::State& state) {
    BenchServer server;
    server.connection.Execute("CREATE TABLE conti (id int NOT NULL PRIMARY KEY, saldo int NOT NULL)");
    RawDatabase raw(server.folder() / "raw.db");
    raw.run("CREATE TABLE conti (id INTEGER PRIMARY KEY, saldo INTEGER NOT NULL)");
    for (int id = 1; id <= 100; ++id) {
        const std::string row = "INSERT INTO conti (id, saldo) VALUES (" + std::to_string(id) + ", 0)";
        server.connection.Execute(row);
        raw.run(row.c_str());
    }
    sqlite3_stmt* prepared = raw.prepare("UPDATE conti SET saldo = ?1 WHERE id = ?2");
    int value = 0;
    for (auto _ : state) {
        const double ours = bench::seconds([&] {
            for (int i = 0; i < kUpdates; ++i) {
                server.connection.Execute("update conti set saldo = " + std::to_string(++value) +
                                          " where id = " + std::to_string(1 + i % 100));
            }
        });
        const double theirs = bench::seconds([&] {
            for (int i = 0; i < kUpdates; ++i) {
                sqlite3_bind_int(prepared, 1, ++value);
                sqlite3_bind_int(prepared, 2, 1 + i % 100);
                sqlite3_step(prepared);
                sqlite3_reset(prepared);
            }
        });
        bench::report(state, ours, theirs);
    }
    sqlite3_finalize(prepared);
}
BENCHMARK(RepeatedUpdateOfOneShape)->Apply(bench::inPairs);

void fillWideTable(ado::Connection& connection) {
    connection.Execute(
        "CREATE TABLE righe (id int IDENTITY (1, 1) NOT NULL PRIMARY KEY, codice nvarchar(20) NULL, nome nvarchar(80) NULL,"
        " importo decimal(18,2) NULL, data datetime NULL, definito int NULL, quota float NULL, nota nvarchar(100) NULL)");
    std::mt19937 random(7); // the same rows in every run
    for (int begin = 0; begin < kRows; begin += 500) {
        std::string text = "INSERT INTO righe (codice, nome, importo, data, definito, quota, nota) VALUES ";
        for (int i = begin; i < begin + 500; ++i) {
            const auto r = random();
            text += std::string(i == begin ? "" : ",") + "('C" + std::to_string(r % 9999) + "', 'Conto di prova " +
                    std::to_string(i) + "', " + std::to_string(r % 100000) + "." + std::to_string(10 + r % 90) +
                    ", '2004" + std::to_string(10 + r % 3) + std::to_string(10 + r % 19) + "', " +
                    std::to_string(r % 2) + ", " + std::to_string(r % 100) + ".5, " +
                    (r % 3 ? "N'Città di prova'" : "NULL") + ")";
        }
        connection.Execute(text);
    }
}

struct Checksum {
    std::size_t bytes = 0;
    double sum = 0;

    void add(const ado::Value& value) {
        if (const auto* text = std::get_if<std::string>(&value.variant())) {
            bytes += text->size();
        } else if (const auto* number = std::get_if<std::int32_t>(&value.variant())) {
            sum += *number;
        } else if (const auto* real = std::get_if<double>(&value.variant())) {
            sum += *real;
        } else if (const auto* decimal = std::get_if<ado::Decimal>(&value.variant())) {
            sum += decimal->toDouble();
        }
    }
};

void OpenAndReadRecordset(benchmark::State& state) {
    BenchServer server;
    fillWideTable(server.connection);
    RawDatabase raw(server.databaseFile());
    for (auto _ : state) {
        Checksum checksum;
        int rows = 0;
        const double ours = bench::seconds([&] {
            ado::Recordset rs;
            rs.Open("select * from righe", server.connection, ado::CursorType::Keyset, ado::LockType::Pessimistic);
            for (; !rs.EOF(); rs.MoveNext(), ++rows) {
                for (int column = 0; column < kColumns; ++column) {
                    checksum.add(rs[column].Value());
                }
            }
            rs.Close();
        });
        if (rows != kRows) {
            state.SkipWithError("not all rows came");
        }
        std::size_t bytes = 0;
        double sum = 0;
        const double theirs = bench::seconds([&] {
            sqlite3_stmt* loop = raw.prepare("select * from righe");
            while (sqlite3_step(loop) == SQLITE_ROW) {
                for (int column = 0; column < kColumns; ++column) {
                    switch (sqlite3_column_type(loop, column)) {
                    case SQLITE_INTEGER:
                    case SQLITE_FLOAT:
                        sum += sqlite3_column_double(loop, column);
                        break;
                    case SQLITE_TEXT: {
                        const std::string text(reinterpret_cast<const char*>(sqlite3_column_text(loop, column)));
                        bytes += text.size();
                        break;
                    }
                    default:
                        break;
                    }
                }
            }
            sqlite3_finalize(loop);
        });
        benchmark::DoNotOptimize(checksum);
        benchmark::DoNotOptimize(bytes);
        benchmark::DoNotOptimize(sum);
        bench::report(state, ours, theirs);
    }
}
BENCHMARK(OpenAndReadRecordset)->Apply(bench::inPairs);

/// Long statements of one kind: `ratio` is the time per element of a long statement divided by that of one of a
/// thousand elements. Each statement has its own shape, so that none is in the plan cache. Processor time is measured,
/// since long statements are interrupted by other processes more often.
template<class Statement>
void perElement(benchmark::State& state, const Statement& statement) {
    constexpr int kFew = 1000;
    BenchServer server;
    server.connection.Execute("CREATE TABLE conti (id int NOT NULL PRIMARY KEY, saldo int NULL)");
    server.connection.Execute("INSERT INTO conti (id) VALUES (1), (2), (3)");
    std::string columns;
    for (int i = 1; i < kLongRow; ++i) {
        columns += ", c" + std::to_string(i) + " int NULL";
    }
    server.connection.Execute("CREATE TABLE larga (c0 int NULL" + columns + ")");
    int runs = 0;
    const auto run = [&](int elements) {
        const std::string text = statement(elements, ++runs);
        server.connection.Execute("BEGIN TRANSACTION");
        const std::clock_t begin = std::clock();
        server.connection.Execute(text);
        const std::clock_t end = std::clock();
        server.connection.Execute("ROLLBACK");
        return static_cast<double>(end - begin) / CLOCKS_PER_SEC;
    };
    const auto elements = static_cast<int>(state.range(0));
    for (auto _ : state) {
        const double many = run(elements);
        bench::report(state, many, run(kFew) * elements / kFew);
    }
}

void InList(benchmark::State& state) {
    perElement(state, [](int elements, int run) {
        std::string text = "update conti set saldo = 1 where id in (0";
        for (int i = run; i < elements; ++i) {
            text += "," + std::to_string(i);
        }
        return text + ")";
    });
}

void CaseBranches(benchmark::State& state) {
    perElement(state, [](int elements, int run) {
        std::string text = "update conti set saldo = case id";
        for (int i = run; i < elements; ++i) {
            text += " when " + std::to_string(i) + " then " + std::to_string(i);
        }
        return text + " end";
    });
}

void InsertedValues(benchmark::State& state) {
    perElement(state, [](int elements, unsigned run) {
        std::string text = "insert into larga values ";
        for (int i = 0; i < elements; ++i) {
            text += i % kLongRow > 0 ? "," : i > 0 ? "),(" : "(";
            text += i < 8 && (run >> i & 1U) != 0 ? "null" : std::to_string(i);
        }
        for (int i = elements; i % kLongRow > 0; ++i) {
            text += ",0";
        }
        return text + ")";
    });
}

void fewToMany(benchmark::internal::Benchmark* benchmark) {
    for (const int elements : {1000, 4000, 16'000, 64'000}) {
        benchmark->Arg(elements);
    }
    bench::inPairs(benchmark);
}
BENCHMARK(InList)->Apply(fewToMany);
BENCHMARK(CaseBranches)->Apply(fewToMany);
BENCHMARK(InsertedValues)->Apply(fewToMany);

} // namespace
