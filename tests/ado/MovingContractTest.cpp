#include "ado/AdoFixture.h"

#include <limits>

namespace ado {
namespace {

using test::Contract;
using test::display;
using test::raises;

class Moving : public Contract {};

enum class At { First, Bof, Eof, Empty };

struct MoveCase {
    const char* name;
    At state;
    void (*move)(Recordset&);
    bool error;
    long position; ///< after the move
};

const MoveCase kMoves[] = {
    {"BOF, first", At::Bof, [](Recordset& rs) { rs.MoveFirst(); }, false, 1},
    {"BOF, last", At::Bof, [](Recordset& rs) { rs.MoveLast(); }, false, 4},
    {"BOF, previous", At::Bof, [](Recordset& rs) { rs.MovePrevious(); }, true, -2},
    {"BOF, back 2", At::Bof, [](Recordset& rs) { rs.Move(-2); }, true, -2},
    {"BOF, by 0", At::Bof, [](Recordset& rs) { rs.Move(0); }, true, -2},
    {"BOF, next", At::Bof, [](Recordset& rs) { rs.MoveNext(); }, false, 1},
    {"BOF, by 2", At::Bof, [](Recordset& rs) { rs.Move(2); }, false, 2},
    {"EOF, first", At::Eof, [](Recordset& rs) { rs.MoveFirst(); }, false, 1},
    {"EOF, last", At::Eof, [](Recordset& rs) { rs.MoveLast(); }, false, 4},
    {"EOF, previous", At::Eof, [](Recordset& rs) { rs.MovePrevious(); }, false, 4},
    {"EOF, back 2", At::Eof, [](Recordset& rs) { rs.Move(-2); }, false, 3},
    {"EOF, by 0", At::Eof, [](Recordset& rs) { rs.Move(0); }, true, -3},
    {"EOF, next", At::Eof, [](Recordset& rs) { rs.MoveNext(); }, true, -3},
    {"EOF, by 2", At::Eof, [](Recordset& rs) { rs.Move(2); }, true, -3},
    {"empty, first", At::Empty, [](Recordset& rs) { rs.MoveFirst(); }, true, -1},
    {"empty, last", At::Empty, [](Recordset& rs) { rs.MoveLast(); }, true, -1},
    {"empty, previous", At::Empty, [](Recordset& rs) { rs.MovePrevious(); }, true, -1},
    {"empty, by 0", At::Empty, [](Recordset& rs) { rs.Move(0); }, true, -1},
    {"empty, next", At::Empty, [](Recordset& rs) { rs.MoveNext(); }, true, -1},
    {"empty, from first", At::Empty, [](Recordset& rs) { rs.MoveFromFirst(1); }, true, -1},
    {"empty, to 1", At::Empty, [](Recordset& rs) { rs.setAbsolutePosition(1); }, true, -1},
    {"row, by 0", At::First, [](Recordset& rs) { rs.Move(0); }, false, 1},
    {"row, by 2", At::First, [](Recordset& rs) { rs.Move(2); }, false, 3},
    {"row, past the end", At::First, [](Recordset& rs) { rs.Move(99); }, false, -3},
    {"row, far past the end", At::First, [](Recordset& rs) { rs.Move(std::numeric_limits<long>::max()); }, false, -3},
    {"row, past the begin", At::First, [](Recordset& rs) { rs.Move(-99); }, false, -2},
    {"row, previous", At::First, [](Recordset& rs) { rs.MovePrevious(); }, false, -2},
    {"row, from first 2", At::First, [](Recordset& rs) { rs.MoveFromFirst(2); }, false, 3},
    {"EOF, from first 1", At::Eof, [](Recordset& rs) { rs.MoveFromFirst(1); }, false, 2},
    {"row, from first past the end", At::First, [](Recordset& rs) { rs.MoveFromFirst(4); }, false, -3},
    {"row, from first backwards", At::First, [](Recordset& rs) { rs.MoveFromFirst(-1); }, false, -2},
    {"row, to 3", At::First, [](Recordset& rs) { rs.setAbsolutePosition(3); }, false, 3},
};

TEST_F(Moving, FollowsTheTableOfStates) {
    for (const MoveCase& step : kMoves) {
        Recordset rs;
        open(rs, step.state == At::Empty ? "select * from Comuni where id = 0" : "select * from Comuni order by id");
        if (step.state == At::Bof) {
            rs.MovePrevious();
        }
        if (step.state == At::Eof) {
            rs.Move(99);
        }
        if (step.error) {
            EXPECT_TRUE(raises(kNoCurrentRecord, [&] { step.move(rs); })) << step.name;
        } else {
            step.move(rs);
        }
        EXPECT_EQ(rs.AbsolutePosition(), step.position) << step.name;
        EXPECT_EQ(rs.BOF(), step.position == -2 || step.position == -1) << step.name;
        EXPECT_EQ(rs.EOF(), step.position == -3 || step.position == -1) << step.name;
    }
}

TEST_F(Moving, PastTheLastRowIsTheEndAndOnceMoreRaises) {
    Recordset rs;
    open(rs);
    int rows = 0;
    for (; !rs.EOF(); rs.MoveNext()) {
        ++rows;
    }
    EXPECT_EQ(rows, 4);
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs["nome"].Value(); }));
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs.MoveNext(); }));
    EXPECT_TRUE(rs.EOF());
}

TEST_F(Moving, TheNthRecordFromTheFirstStandsOneBehindItsNumber) {
    Recordset rs;
    open(rs);
    const long position = rs.AbsolutePosition();
    rs.MoveFromFirst(position);
    EXPECT_EQ(display(rs["nome"]), "Milano");
}

TEST_F(Moving, CountsAndPositionsAreKnownToTheCursorsThatKnowThem) {
    for (const CursorType type : {CursorType::Keyset, CursorType::Static}) {
        Recordset rs;
        open(rs, "select * from Comuni order by id", type);
        EXPECT_EQ(rs.RecordCount(), 4);
        EXPECT_EQ(rs.AbsolutePosition(), 1);
    }
    for (const CursorType type : {CursorType::ForwardOnly, CursorType::Dynamic}) {
        Recordset rs;
        open(rs, "select * from Comuni order by id", type);
        EXPECT_EQ(rs.RecordCount(), -1);
        EXPECT_EQ(rs.AbsolutePosition(), -1);
        rs.Move(9);
        EXPECT_EQ(rs.AbsolutePosition(), -3);
    }
}

TEST_F(Moving, AForwardOnlyCursorGoesForwardAndToTheFirst) {
    Recordset rs;
    open(rs, "select * from Comuni order by id", CursorType::ForwardOnly);
    rs.MoveNext();
    rs.Move(1);
    EXPECT_EQ(display(rs["id"]), "3");
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.MovePrevious(); }));
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.Move(-1); }));
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.MoveLast(); }));
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.MoveFromFirst(1); }));
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.setAbsolutePosition(1); }));
    EXPECT_EQ(display(rs["id"]), "3");
    rs.MoveFirst();
    EXPECT_EQ(display(rs["id"]), "1");
}

TEST_F(Moving, APositionThatIsNotThereIsAWrongArgument) {
    Recordset rs;
    open(rs);
    EXPECT_TRUE(raises(kWrongArguments, [&] { rs.setAbsolutePosition(0); }));
    EXPECT_TRUE(raises(kWrongArguments, [&] { rs.setAbsolutePosition(5); }));
    EXPECT_EQ(rs.AbsolutePosition(), 1);
}

TEST_F(Moving, AFilterLeavesItsRowsAndItsPositions) {
    Recordset rs;
    open(rs);
    rs.MoveLast();
    rs.setFilter("nome like '%o%'");
    EXPECT_EQ(rs.Filter(), "nome like '%o%'");
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    EXPECT_EQ(display(rs["nome"]), "Roma");
    rs.MoveLast();
    EXPECT_EQ(rs.AbsolutePosition(), 3);
    EXPECT_EQ(display(rs["nome"]), "Forlì");
    rs.MoveNext();
    EXPECT_TRUE(rs.EOF());
    rs.setFilter("");
    EXPECT_EQ(rs.RecordCount(), 4);
    EXPECT_EQ(display(rs["nome"]), "Roma");
}

TEST_F(Moving, AFilterThatNothingMeetsIsEmptyWithoutError) {
    Recordset rs;
    open(rs);
    rs.setFilter("id = 99");
    EXPECT_TRUE(rs.EOF());
    EXPECT_TRUE(rs.BOF());
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs["nome"].Value(); }));
}

TEST_F(Moving, ARefusedFilterChangesNothing) {
    Recordset rs;
    open(rs);
    rs.setFilter("id > 1");
    rs.MoveNext();
    EXPECT_TRUE(raises(kWrongArguments, [&] { rs.setFilter("nome = 'L'Aquila'"); }));
    EXPECT_EQ(rs.Filter(), "id > 1");
    EXPECT_EQ(rs.AbsolutePosition(), 2);
    EXPECT_EQ(display(rs["id"]), "3");
}

TEST_F(Moving, ARequeryKeepsTheFilterAndANewOpenHasNone) {
    Recordset rs;
    open(rs);
    rs.setFilter("id > 2");
    rs.Requery();
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.Close();
    open(rs);
    EXPECT_EQ(rs.Filter(), "");
    EXPECT_EQ(rs.RecordCount(), 4);
}

TEST_F(Moving, RowsAreReadByTheirPlaceWithoutMoving) {
    Recordset rs;
    open(rs);
    rs.setFilter("id > 2");
    EXPECT_EQ(display(rs.ValueAt(2, 1)), "L'Aquila");
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs.ValueAt(3, 1); }));
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs.ValueAt(0, 1); }));
    EXPECT_TRUE(raises(kItemNotFound, [&] { rs.ValueAt(1, 5); }));
}

} // namespace
} // namespace ado
