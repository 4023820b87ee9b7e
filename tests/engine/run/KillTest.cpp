#include "engine/SessionFixture.h"
#include "engine/store/Sqlite.h"
#include "support/Capabilities.h"
#include "support/Processes.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <random>
#include <set>

namespace engine {
namespace {

constexpr int kKills = 60;
constexpr int kMostReportsBeforeAKill = 40;

class Killing : public SessionTest {
protected:
    Killing() {
        run("create table t (id int identity(1,1) not null primary key, note nvarchar(20) null)");
        run("create index perNote on t (note)");
        run("create table copia (id int not null primary key, note nvarchar(20) null)");
    }

    /// Lets a writer run until it has reported so many rows, kills it, and returns all that it reported.
    std::set<std::int64_t> reportsOfAKilledWriter(int before) {
        support::HelperProcess writer("engine_kill_writer", {instance->folder().string()});
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

    std::set<std::int64_t> ids() {
        std::set<std::int64_t> found;
        const auto batch = session->execute("select id from t");
        batch->nextResult();
        while (const ResultRow* row = batch->nextRow()) {
            found.insert(row->integer(0));
        }
        return found;
    }

    std::string integrity() const {
        sqlite::Connection file(instance->database("prova")->file, false);
        sqlite::Statement check(file, "PRAGMA integrity_check");
        return check.step() ? std::string(check.text(0)) : "no answer";
    }
};

TEST_F(Killing, AWriterLosesNoStatementThatReturnedAndLeavesNoHalfTransaction) {
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RecordProperty("seed", std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> before(0, kMostReportsBeforeAKill);

    std::set<std::int64_t> reported;
    for (int kill = 0; kill < kKills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        reported.merge(reportsOfAKilledWriter(before(random)));
        ASSERT_EQ(integrity(), "ok");
        const std::set<std::int64_t> present = ids();
        std::set<std::int64_t> missing;
        std::set_difference(reported.begin(), reported.end(), present.begin(), present.end(),
                            std::inserter(missing, missing.end()));
        ASSERT_TRUE(missing.empty()) << missing.size() << " rows lost, first " << *missing.begin();
        ASSERT_EQ(rows("select count(*) from t where note = 'riga doppia' and not exists (select * from copia where "
                       "copia.id = t.id)"),
                  "0");
    }
    EXPECT_GT(reported.size(), static_cast<std::size_t>(kKills)) << "the writers hardly wrote";
}

/// SQLite maps the index of its log: shortening that file may end a process that uses it, but no row is lost.
TEST_F(Killing, AnEmptiedIndexOfTheLogLosesNoStatementThatReturned) {
    VABO_NEEDS(support::systemCapabilities().openMapsShrink);
    session.reset(); // this process must not have it mapped
    support::HelperProcess writer("engine_session_helper", {instance->folder().string(), "prova"});
    writer.writeLine("insert into t (note) values ('prima')");
    ASSERT_EQ(writer.readLine(), "0");
    std::filesystem::path index = instance->database("prova")->file;
    index += "-shm";
    ASSERT_GT(std::filesystem::file_size(index), 0U);
    std::filesystem::resize_file(index, 0);
    writer.writeLine("insert into t (note) values ('seconda')");
    const bool returned = writer.readLine() == "0";
    writer.kill();
    session = connect();
    EXPECT_EQ(rows("select count(*) from t where note = 'prima'"), "1");
    if (returned) {
        EXPECT_EQ(rows("select count(*) from t where note = 'seconda'"), "1");
    }
    EXPECT_EQ(answer("insert into t (note) values ('terza')"), "(1)");
    EXPECT_EQ(integrity(), "ok");
}

} // namespace
} // namespace engine
