#include "engine/store/Watched.h"

#include "engine/store/Idler.h"
#include "engine/store/Sqlite.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <thread>

namespace engine::sqlite {
namespace {

int calls = 0;
void count() noexcept {
    ++calls;
}

class WatchedStorage : public testing::Test {
protected:
    WatchedStorage() { calls = 0; }
    ~WatchedStorage() override { setIdler(nullptr); }
    int callsOf(const char* text) {
        calls = 0;
        connection.run(text);
        return calls;
    }

    support::TemporaryFolder folder;
    Connection connection{folder.path() / "a.mdf", true};
    static constexpr const char* kLong =
        "WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) SELECT max(i) FROM n";
};

TEST_F(WatchedStorage, LetsTheThreadsIdlerRunAndNoneWhereThereIsNone) {
    EXPECT_EQ(callsOf(kLong), 0);
    setIdler(count);
    EXPECT_GT(callsOf(kLong), 10);
    setIdler(nullptr);
    EXPECT_EQ(callsOf(kLong), 0);
}

TEST_F(WatchedStorage, LetsItRunDuringTheStepsOfAStatementShortOnesToo) {
    setIdler(count);
    Statement rows(connection,
                   "WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) SELECT i FROM n");
    while (rows.step()) {
    }
    EXPECT_GT(calls, 10);
}

TEST_F(WatchedStorage, EndsWhatItsIdlerGivesUpAndThatAlone) {
    setIdler([]() noexcept {
        if (++calls == 3) {
            giveUp();
        }
    });
    try {
        connection.run(kLong);
        ADD_FAILURE() << "it went on";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), SQLITE_INTERRUPT);
    }
    EXPECT_EQ(calls, 3);
    connection.run(kLong);
    EXPECT_GT(calls, 10);
}

TEST_F(WatchedStorage, WaitsForNoWriterWhoseWaitIsGivenUp) {
    setIdler([]() noexcept { giveUp(); });
    Patience patience;
    EXPECT_EQ(waitForWriter(&patience, 0), 0);
}

TEST_F(WatchedStorage, LeavesNothingBehindAtTheConnection) {
    setIdler(count);
    callsOf(kLong);
    calls = 0;
    sqlite3_exec(connection.handle(), kLong, nullptr, nullptr, nullptr);
    EXPECT_EQ(calls, 0);
}

TEST_F(WatchedStorage, LeavesTheConnectionAloneWhereThereIsNoIdler) {
    constexpr int kSteps = 10'000;
    sqlite3_progress_handler(
        connection.handle(), kSteps,
        [](void* /*unused*/) {
            ++calls;
            return 0;
        },
        nullptr);
    EXPECT_GT(callsOf(kLong), 10);
}

TEST_F(WatchedStorage, IsTheThreadsOwn) {
    setIdler(count);
    bool has = true;
    std::thread([&has] { has = hasIdler(); }).join();
    EXPECT_FALSE(has);
    EXPECT_TRUE(hasIdler());
}

/// The thread on which a transaction of so many rows is committed.
class CommittedStorage : public WatchedStorage {
protected:
    CommittedStorage() {
        connection.run("CREATE TABLE t (a)");
        sqlite3_commit_hook(
            connection.handle(),
            [](void* self) {
                static_cast<CommittedStorage*>(self)->thread = std::this_thread::get_id();
                return static_cast<CommittedStorage*>(self)->refuses;
            },
            this);
    }
    void write(int rows) {
        connection.begin();
        connection.run("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(rows) +
                       ") INSERT INTO t SELECT i FROM n");
        connection.commit();
    }
    std::thread::id thread;
    int refuses = 0;
};

TEST_F(CommittedStorage, CommitsManyRowsBesideAThreadThatHasAnIdler) {
    setIdler(count);
    write(1'000);
    EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_FALSE(connection.inTransaction());
    write(999);
    EXPECT_EQ(thread, std::this_thread::get_id()) << "those before it don't count";
    setIdler(nullptr);
    write(5'000);
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(CommittedStorage, ToldOfACommitThatFailsBesideIt) {
    setIdler(count);
    refuses = 1;
    EXPECT_THROW(write(1'000), Failure);
    refuses = 0;
    connection.rollback();
    write(1'000);
    Statement rows(connection, "SELECT count(*) FROM t");
    ASSERT_TRUE(rows.step());
    EXPECT_EQ(rows.integer(0), 1'000);
}

TEST_F(WatchedStorage, WaitsForAnotherWriterAndLetsTheIdlerRunMeanwhile) {
    Connection other(folder.path() / "a.mdf", false);
    other.run("CREATE TABLE t (a)");
    other.begin();
    static Connection* writing = nullptr;
    writing = &other;
    setIdler([]() noexcept {
        if (++calls == 3) {
            writing->commit();
        }
    });
    connection.run("INSERT INTO t VALUES (1)");
    writing = nullptr;
    EXPECT_EQ(calls, 3);
}

TEST_F(WatchedStorage, GivesUpWaitingForAWriterWhenItsPatienceEnds) {
    setIdler(count);
    Patience patience;
    EXPECT_EQ(waitForWriter(&patience, 0), 1);
    EXPECT_EQ(waitForWriter(&patience, 1), 1);
    EXPECT_EQ(calls, 2);
    patience.since -= Patience::kUsual;
    EXPECT_EQ(waitForWriter(&patience, 2), 0);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(waitForWriter(&patience, 0), 1) << "another wait begins";
}

TEST_F(WatchedStorage, AConnectionWithoutPatienceDoesNotWaitForAWriter) {
    Connection other(folder.path() / "a.mdf", false);
    other.run("CREATE TABLE t (a)");
    other.begin();
    setIdler(count);
    connection.waitAtMost(0);
    EXPECT_THROW(connection.run("INSERT INTO t VALUES (1)"), Failure);
    EXPECT_EQ(calls, 0);
    other.commit();
    connection.waitAtMost(-1);
    connection.run("INSERT INTO t VALUES (1)");
}

} // namespace
} // namespace engine::sqlite
