#include "engine/store/RowLocks.h"

#include "os/Paths.h"
#include "support/OwnerAlone.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace engine {
namespace {

class Locks : public testing::Test {
protected:
    support::TemporaryFolder folder;
    std::filesystem::path database = folder.path() / "a.mdf";
};

TEST_F(Locks, ARowHeldIsRefusedToOthersAtOnce) {
    RowLocks first(database);
    RowLocks second(database);
    EXPECT_TRUE(first.acquire("progetti", 7));
    EXPECT_FALSE(second.acquire("progetti", 7));
    EXPECT_TRUE(second.acquire("progetti", 8));
    EXPECT_TRUE(second.acquire("conti", 7));
    first.release("progetti", 7);
    EXPECT_TRUE(second.acquire("progetti", 7));
}

TEST_F(Locks, TheNameOfTheTableFollowsTheCollation) {
    RowLocks first(database);
    RowLocks second(database);
    EXPECT_TRUE(first.acquire("Citt\u00e0", 1));
    EXPECT_FALSE(second.acquire("CITT\u00c0", 1));
    EXPECT_TRUE(second.heldByOthers("citt\u00e0", 1));
    EXPECT_TRUE(second.acquire("Citta", 1));
}

TEST_F(Locks, HoldsAreCounted) {
    RowLocks first(database);
    RowLocks second(database);
    EXPECT_TRUE(first.acquire("t", 1));
    EXPECT_TRUE(first.acquire("t", 1));
    first.release("t", 1);
    EXPECT_FALSE(second.acquire("t", 1));
    first.release("t", 1);
    EXPECT_TRUE(second.acquire("t", 1));
    first.release("t", 1);
    EXPECT_TRUE(first.heldByOthers("t", 1)) << "a release too many takes nothing from another";
}

TEST_F(Locks, TellWhatOthersHoldAndNotWhatIsHeldHere) {
    RowLocks first(database);
    RowLocks second(database);
    EXPECT_FALSE(first.anyHeldByOthers());
    ASSERT_TRUE(first.acquire("t", -5));
    EXPECT_FALSE(first.anyHeldByOthers());
    EXPECT_FALSE(first.heldByOthers("t", -5));
    EXPECT_TRUE(second.anyHeldByOthers());
    EXPECT_TRUE(second.heldByOthers("t", -5));
    EXPECT_FALSE(second.heldByOthers("t", 5));
    first.release("t", -5);
    EXPECT_FALSE(second.anyHeldByOthers());
}

TEST_F(Locks, EndWithTheirHolder) {
    RowLocks second(database);
    {
        RowLocks first(database);
        ASSERT_TRUE(first.acquire("t", 1));
        EXPECT_TRUE(second.anyHeldByOthers());
    }
    EXPECT_FALSE(second.anyHeldByOthers());
}

TEST_F(Locks, OfAnotherDatabaseAreAnotherMatter) {
    RowLocks first(database);
    RowLocks other(folder.path() / "b.mdf");
    ASSERT_TRUE(first.acquire("t", 1));
    EXPECT_FALSE(other.anyHeldByOthers());
    EXPECT_TRUE(other.acquire("t", 1));
}

TEST_F(Locks, TellWhetherADatabaseIsInUse) {
    EXPECT_FALSE(RowLocks::databaseInUse(database));
    {
        RowLocks first(database);
        EXPECT_TRUE(RowLocks::databaseInUse(database));
    }
    EXPECT_FALSE(RowLocks::databaseInUse(database));
}

TEST_F(Locks, BelongToTheOwner) {
    RowLocks locks(database);
    EXPECT_TRUE(support::isForOwnerAlone(folder.path() / "a.mdf.locks"));
}

TEST_F(Locks, OfAnotherProcessAreSeenAndDieWithIt) {
    RowLocks locks(database);
    support::HelperProcess holder("engine_row_holder", {os::utf8Of(database)});
    ASSERT_EQ(holder.readLine(), "held");
    EXPECT_TRUE(locks.anyHeldByOthers());
    EXPECT_TRUE(locks.heldByOthers("t", 1));
    EXPECT_FALSE(locks.acquire("T", 1));
    EXPECT_TRUE(locks.acquire("t", 2));
    holder.kill();
    EXPECT_FALSE(locks.anyHeldByOthers());
    EXPECT_TRUE(locks.acquire("t", 1));
}

} // namespace
} // namespace engine
