#include "engine/differential/DifferentialFixture.h"
#include "engine/differential/StatementMaker.h"

#include <array>
#include <optional>
#include <set>

namespace engine::differential {
namespace {

/// A condition is true, false or unknown: what the three find is all rows, each of them once.
class Partition : public DifferentialTest {
public:
    static constexpr int kParts = 3;

    /// 0, 1 or 2: the part of a row.
    static std::string partOf(const std::string& p) {
        return "case when " + p + " then 0 when not (" + p + ") then 1 else 2 end";
    }
    static std::string inPart(const std::string& p, int part) {
        return part == 0 ? p : part == 1 ? "not (" + p + ")" : partOf(p) + " = 2";
    }
    struct Wanted {
        int part;
        std::string condition;
    };
    /// The three conditions, and others whose rows follow from them; `kParts` are no rows.
    static std::vector<Wanted> wanted(const std::string& p) {
        return {{0, p},
                {1, inPart(p, 1)},
                {2, inPart(p, 2)},
                {1, "not ((" + p + ") and null = 1)"},
                {kParts, "not ((" + p + ") or null = 1)"}};
    }

    /// The session with the rows alone or the one with indexes.
    void prepare(Dice& dice) {
        makeTables(dice);
        for (const IndexStatement& index : indexes(dice)) {
            if (!ask(*other, index.text).refused()) {
                addToScript(index.text);
            }
        }
    }
    void use(Session& on) { on_ = &on; }

    /// Nothing where the statement or the value of a row was refused.
    std::optional<Answer> answered(const std::string& statement) {
        Answer answer = ask(*on_, statement);
        EXPECT_FALSE(answer.broken()) << script() << statement << "\n" << answer.told();
        return answer.refused() ? std::nullopt : std::optional(std::move(answer));
    }

    /// `select` with the part as its last item and without a condition, against the same with a condition for each.
    bool expectParts(const std::string& items, const std::string& from, const std::string& p,
                     const std::string& conditioned, const std::string& behind = "", const std::string& other = "") {
        const std::string all = "select " + items + ", " + partOf(p) + from + behind;
        const std::optional<Answer> whole = answered(all);
        bool compared = whole.has_value();
        std::vector<Wanted> conditions = wanted(p);
        if (!other.empty()) {
            conditions.push_back({0, other});
        }
        for (std::size_t i = 0; i < conditions.size() && compared; ++i) {
            const auto& [part, condition] = conditions[i];
            const std::string text = "select " + items + conditioned + condition;
            const std::optional<Answer> found = answered(text);
            compared = found.has_value();
            if (compared) {
                EXPECT_EQ(found->rowsTold(false), rowsOf(*whole, part).rowsTold(false)) << script() << all << "\n"
                                                                                        << whole->told() << text << "\n"
                                                                                        << found->told();
            }
        }
        return compared;
    }

    /// The rows whose last value is the part, without that value.
    static Answer rowsOf(const Answer& whole, int part) {
        Answer some = whole;
        some.columns.pop_back();
        some.rows.clear();
        for (Answer::Row row : whole.rows) {
            if (row.back() == std::to_string(part)) {
                row.pop_back();
                some.rows.push_back(std::move(row));
            }
        }
        return some;
    }

    std::set<std::string> idsOf(const std::string& table) {
        std::set<std::string> ids;
        for (const Answer::Row& row : ask(*on_, "select id from " + table).rows) {
            ids.insert(*row.front());
        }
        return ids;
    }

    bool ofRows(Dice& dice) {
        const auto [p, other] = StatementMaker(dice, Manner::Calm).inTwoWords({"a1"});
        return expectParts("a1.id, a1.i, a1.v", " from t as a1", p, " from t as a1 where ", "", other);
    }

    bool ofJoins(Dice& dice) {
        const auto [p, other] = StatementMaker(dice, Manner::Calm).inTwoWords({"a1", "a2"});
        return expectParts("a1.id, a2.id", " from t as a1 cross join u as a2", p, " from t as a1 join u as a2 on ", "",
                           other);
    }

    /// An outer join has the pairs of the inner one and each row that is in none of them.
    bool ofOuterJoins(Dice& dice) {
        const std::string p = StatementMaker(dice, Manner::Calm).condition({"a1", "a2"});
        const std::string kind = dice.oneOf("left", "right", "full");
        const std::string text = "select a1.id, a2.id from t as a1 " + kind + " join u as a2 on " + p;
        const auto pairs = answered("select a1.id, a2.id, " + partOf(p) + " from t as a1 cross join u as a2");
        const auto found = pairs ? answered(text) : std::nullopt;
        if (!found) {
            return false;
        }
        Answer wanted = rowsOf(*pairs, 0);
        std::set<std::string> left = kind == "right" ? std::set<std::string>() : idsOf("t");
        std::set<std::string> right = kind == "left" ? std::set<std::string>() : idsOf("u");
        for (const Answer::Row& row : wanted.rows) {
            left.erase(*row[0]);
            right.erase(*row[1]);
        }
        for (const std::string& id : left) {
            wanted.rows.push_back({id, std::nullopt});
        }
        for (const std::string& id : right) {
            wanted.rows.push_back({std::nullopt, id});
        }
        EXPECT_EQ(found->rowsTold(false), wanted.rowsTold(false)) << script() << text << "\n" << found->told();
        return true;
    }

    /// WHERE behind joins, whose missing rows are nulls.
    bool ofJoinedRows(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        std::string from = " from t as a1" + dice.oneOf(" left", " right", " full") + " join u as a2 on ";
        from += maker.condition({"a1", "a2"});
        from += dice.oneOf(" join", " left join", " right join", " full join");
        from += " t as a3 on a3." + dice.oneOf("i = a2.i", "id = a1.id", "v = a2.v", "t <= a1.i");
        const auto [p, other] = maker.inTwoWords({"a1", "a2", "a3"});
        return expectParts("a1.id, a2.id, a3.id", from, p, from + " where ", "", other);
    }

    bool ofGroups(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        const std::string key = maker.anyColumn("a1");
        const std::string p = maker.groupCondition(key);
        const std::string from = " from t as a1";
        return expectParts(key + ", count(*)", from, p, from + " group by " + key + " having ", " group by " + key);
    }

    /// COUNT and SUM of the parts, added up, are those of the whole.
    bool ofSums(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        const std::string p = maker.condition({"a1"});
        const std::string select = "select count(*) as c, sum(" + maker.exactNumber({"a1"}) + ") as s from t as a1";
        std::string parts;
        for (int part = 0; part < kParts; ++part) {
            parts += (part == 0 ? "" : " union all ") + select + " where " + inPart(p, part);
        }
        const std::string added = "select sum(c), sum(s) from (" + parts + ") as x";
        const auto whole = answered(select);
        const auto sum = whole ? answered(added) : std::nullopt;
        if (!sum) {
            return false;
        }
        EXPECT_EQ(whole->rowsTold(true), sum->rowsTold(true)) << script() << select << "\n"
                                                              << whole->told() << added << "\n"
                                                              << sum->told();
        return true;
    }

    /// A DELETE leaves the rows of the two other parts, an UPDATE changes its own.
    bool ofWrites(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        const bool late = dice.once(2);
        const std::string p = late ? maker.lateSelect() : maker.condition({"t"});
        const int part = late ? 0 : dice.below(kParts);
        const bool removes = dice.once(2);
        const std::string write =
            (removes ? "delete from t where " : "update t set x = 'changed' where ") + inPart(p, part);
        const auto whole = answered("select t.id, " + partOf(p) + " from t");
        if (!whole) {
            return false;
        }
        ask(*on_, "begin transaction");
        const Answer written = ask(*on_, write);
        const auto changed = answered(removes ? "select id from t" : "select id from t where x = 'changed'");
        ask(*on_, "rollback");
        EXPECT_TRUE(!written.refused() || written.refusedInARow()) << script() << write << "\n" << written.told();
        if (written.refused()) {
            return false;
        }
        Answer wanted = rowsOf(*whole, part);
        EXPECT_EQ(written.affected, static_cast<std::int64_t>(wanted.rows.size())) << script() << write;
        if (removes) {
            wanted.rows.clear();
            for (int rest = 0; rest < kParts; ++rest) {
                const Answer some = rowsOf(*whole, rest);
                wanted.rows.insert(wanted.rows.end(), rest == part ? some.rows.end() : some.rows.begin(),
                                   some.rows.end());
            }
        }
        EXPECT_EQ(changed->rowsTold(false), wanted.rowsTold(false)) << script() << write << "\n" << whole->told();
        return true;
    }

    /// An UPDATE stores what a SELECT of the same values shows before it.
    bool ofAssignments(Dice& dice) {
        StatementMaker maker(dice, Manner::Calm);
        const auto [column, type] =
            kColumns[static_cast<std::size_t>(dice.below(static_cast<int>(std::size(kColumns))))];
        const std::string value = maker.valueFor(column, {"t"});
        const std::string where = " where " + maker.condition({"t"});
        const std::string select = "select t.id, cast(" + value + " as " + type + ") from t" + where;
        const std::string update = std::string("update t set ") + column + " = " + value + where;
        const auto before = answered(select);
        const auto others = answered("select t.id, t." + std::string(column) + " from t");
        if (!before || !others) {
            return false;
        }
        ask(*on_, "begin transaction");
        const Answer written = ask(*on_, update);
        const auto after = answered("select t.id, t." + std::string(column) + " from t");
        ask(*on_, "rollback");
        EXPECT_FALSE(written.broken()) << script() << update << "\n" << written.told();
        if (written.refused()) {
            return false;
        }
        Answer wanted = *others;
        for (Answer::Row& row : wanted.rows) {
            for (const Answer::Row& changed : before->rows) {
                row = row[0] == changed[0] ? changed : row;
            }
        }
        EXPECT_EQ(after->rowsTold(false, true), wanted.rowsTold(false, true)) << script() << select << "\n"
                                                                              << before->told() << update << "\n"
                                                                              << after->told();
        return true;
    }

private:
    struct TypedColumn {
        const char* column;
        const char* type;
    };
    static constexpr TypedColumn kColumns[] = {
        {"i", "int"},           {"s", "smallint"},    {"d", "decimal(9,3)"}, {"m", "money"},   {"f", "float"},
        {"q", "datetime"},      {"v", "varchar(20)"}, {"n", "nvarchar(20)"}, {"c", "char(8)"}, {"g", "bigint"},
        {"e", "decimal(18,0)"}, {"r", "real"},        {"b", "bit"}};

    Session* on_ = nullptr;
};

TEST_F(Partition, GivesAllRowsOnce) {
    using Kind = bool (Partition::*)(Dice&);
    struct Row {
        Kind kind;
        const char* name;
        int share;
        Tally tally;
    };
    Row rows[] = {{&Partition::ofRows, "conditions of rows", 90, {}},
                  {&Partition::ofJoins, "conditions of joins", 90, {}},
                  {&Partition::ofOuterJoins, "conditions of outer joins", 90, {}},
                  {&Partition::ofJoinedRows, "conditions behind joins", 90, {}},
                  {&Partition::ofGroups, "conditions of groups", 90, {}},
                  {&Partition::ofSums, "sums of parts", 75, {}},
                  {&Partition::ofWrites, "conditions of writes", 90, {}},
                  {&Partition::ofAssignments, "values of updates", 90, {}}};
    repeat(60, [&](Dice& dice) {
        prepare(dice);
        constexpr int kConditions = 8;
        for (int i = 0; i < kConditions * static_cast<int>(std::size(rows)) && !HasFailure(); ++i) {
            Row& row = rows[static_cast<std::size_t>(i) % std::size(rows)];
            use(dice.once(2) ? *session : *other);
            row.tally.count((this->*row.kind)(dice));
        }
    });
    for (const Row& row : rows) {
        expectShare(row.tally, row.share, row.name);
    }
}

} // namespace
} // namespace engine::differential
