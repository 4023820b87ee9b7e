#include "engine/differential/DifferentialFixture.h"
#include "engine/differential/StatementMaker.h"

#include <algorithm>

namespace engine::differential {
namespace {

/// `session` has the rows alone, `other` indexes and keys too.
class Indexes : public DifferentialTest {
protected:
    void makeIndexes(Dice& dice) {
        unique_.clear();
        for (const IndexStatement& index : indexes(dice)) {
            if (otherHasIdentity() && index.table == "u" && index.uniqueColumns == "id") {
                continue;
            }
            const Answer made = ask(*other, index.text);
            const bool doubles = !index.uniqueColumns.empty() && hasDoubles(index);
            EXPECT_EQ(made.refused(), doubles) << script() << index.text << "\n" << made.told();
            EXPECT_EQ(made.refusedAsDouble(), doubles) << script() << index.text << "\n" << made.told();
            if (made.refused()) {
                continue;
            }
            addToScript(index.text);
            if (!index.uniqueColumns.empty()) {
                unique_.push_back(index);
            }
        }
    }

    /// Whether rows without a key are alike in all these columns; one null is like another.
    bool hasDoubles(const IndexStatement& index) {
        const Answer found = ask(*session, "select count(*) from " + index.table + " group by " + index.uniqueColumns +
                                               " having count(*) > 1");
        EXPECT_FALSE(found.refused()) << found.told();
        return !found.rows.empty();
    }
    bool hasDoubles() {
        return std::any_of(unique_.begin(), unique_.end(), [&](const auto& index) { return hasDoubles(index); });
    }

    std::string message(const std::string& statement, const Answer& plain, const Answer& indexed) {
        return script() + statement + "\nwithout: " + plain.told() + "\nwith: " + indexed.told();
    }

    bool compareSelect(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        const std::string select = maker.select().spelled(dice);
        const Answer plain = ask(*session, select);
        const Answer indexed = ask(*other, select);
        EXPECT_FALSE(plain.broken() || indexed.broken()) << message(select, plain, indexed);
        if (plain.refusedInARow() || indexed.refusedInARow()) {
            return false;
        }
        EXPECT_EQ(plain.error, indexed.error) << message(select, plain, indexed);
        EXPECT_EQ(plain.rowsTold(maker.inOrder()), indexed.rowsTold(maker.inOrder()))
            << message(select, plain, indexed);
        return !plain.refused();
    }

    bool compareWrite(Dice& dice) {
        const std::string write = StatementMaker(dice, Manner::Calm).write().spelled(dice);
        ask(*session, "begin transaction");
        ask(*other, "begin transaction");
        const Answer plain = ask(*session, write);
        const Answer indexed = ask(*other, write);
        EXPECT_FALSE(plain.broken() || indexed.broken()) << message(write, plain, indexed);
        const bool inARow = plain.refusedInARow() || indexed.refusedInARow();
        if (!inARow && indexed.refusedAsDouble()) {
            EXPECT_FALSE(plain.refused()) << message(write, plain, indexed);
            EXPECT_TRUE(hasDoubles()) << message(write, plain, indexed);
        } else if (!inARow) {
            EXPECT_EQ(plain.error, indexed.error) << message(write, plain, indexed);
            EXPECT_EQ(plain.affected, indexed.affected) << message(write, plain, indexed);
            EXPECT_FALSE(hasDoubles()) << message(write, plain, indexed);
            EXPECT_EQ(ask(*session, kAll).rowsTold(false, true), ask(*other, kAll).rowsTold(false, true))
                << message(write, plain, indexed);
        }
        ask(*session, "rollback");
        ask(*other, "rollback");
        return !inARow && !plain.refused();
    }

private:
    static constexpr const char* kAll = "select * from t";

    std::vector<IndexStatement> unique_;
};

TEST_F(Indexes, ChangeNoAnswer) {
    Tally selects;
    Tally writes;
    repeat(80, [&](Dice& dice) {
        makeTables(dice);
        makeIndexes(dice);
        constexpr int kStatements = 60;
        for (int i = 0; i < kStatements && !HasFailure(); ++i) {
            if (dice.once(4)) {
                writes.count(compareWrite(dice));
            } else {
                selects.count(compareSelect(dice));
            }
        }
    });
    expectShare(selects, 85, "selects with and without indexes");
    expectShare(writes, 85, "writes with and without indexes");
}

} // namespace
} // namespace engine::differential
