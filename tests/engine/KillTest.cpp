#include "engine/Sqlite.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <random>
#include <set>
#include <string>

namespace engine {
namespace {

constexpr int kills = 60;
constexpr int mostReportsBeforeAKill = 40;

/// Lets a writer run until it has reported so many rows, kills it, and returns all that it reported.
std::set<std::int64_t> reportsOfAKilledWriter(const std::string& database, int before) {
    support::HelperProcess writer("engine_kill_writer", {database});
    std::set<std::int64_t> reported;
    const auto take = [&] {
        const std::optional<std::string> line = writer.readLine();
        if (line) {
            reported.insert(std::stoll(*line));
        }
        return line.has_value();
    };
    for (int i = 0; i < before && take(); ++i) {
    }
    writer.kill();
    while (take()) {
    }
    return reported;
}

struct Rows {
    std::set<std::int64_t> ids;
    std::int64_t halves = 0; ///< of transactions of which one half alone is there
};

Rows rowsOf(sqlite::Connection& connection) {
    Rows rows;
    sqlite::Statement tables(connection, "SELECT count(*) FROM sqlite_schema WHERE name IN ('t', 'copy')");
    if (!tables.step() || tables.integer(0) < 2) {
        return rows; // killed before it had made them
    }
    sqlite::Statement ids(connection, "SELECT id FROM t");
    while (ids.step()) {
        rows.ids.insert(ids.integer(0));
    }
    sqlite::Statement halves(connection, "SELECT count(*) FROM t FULL JOIN copy USING (id, note) "
                                         "WHERE t.rowid IS NULL OR copy.rowid IS NULL");
    halves.step();
    rows.halves = halves.integer(0);
    return rows;
}

TEST(Killing, AWriterLosesNoCommittedRowAndLeavesNoHalfTransaction) {
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RecordProperty("seed", std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> before(0, mostReportsBeforeAKill);

    const support::TemporaryFolder folder;
    const std::filesystem::path database = folder.path() / "a.mdf";
    std::set<std::int64_t> reported;
    for (int kill = 0; kill < kills; ++kill) {
        reported.merge(reportsOfAKilledWriter(database.string(), before(random)));

        sqlite::Connection connection(database, true);
        sqlite::Statement check(connection, "PRAGMA integrity_check");
        ASSERT_TRUE(check.step());
        ASSERT_EQ(check.text(0), "ok") << "after kill " << kill;
        const Rows rows = rowsOf(connection);
        std::set<std::int64_t> missing;
        std::set_difference(reported.begin(), reported.end(), rows.ids.begin(), rows.ids.end(),
                            std::inserter(missing, missing.end()));
        ASSERT_TRUE(missing.empty()) << missing.size() << " rows lost, first " << *missing.begin() << " after kill "
                                     << kill;
        ASSERT_EQ(rows.halves, 0) << "after kill " << kill;
    }
    EXPECT_GT(reported.size(), static_cast<std::size_t>(kills)) << "the writers hardly wrote";
}

} // namespace
} // namespace engine
