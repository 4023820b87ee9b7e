#include "ado/AdoFixture.h"
#include "support/Processes.h"
#include "support/StatementRecorder.h"

namespace ado {
namespace {

using support::StatementRecorder;
using test::Contract;
using test::display;
using test::errorOf;
using Texts = std::vector<std::string>;

constexpr const char* kLockTimeout = "Lock request time out period exceeded.";

class Holding : public Contract {
protected:
    void SetUp() override {
        Contract::SetUp();
        other.Open(server.connectionString());
    }

    void openHolding(Recordset& rs, Connection& on, const std::string& source = "select * from Comuni order by id") {
        rs.Open(source, on, CursorType::Keyset, LockType::Pessimistic);
    }

    void expectRefused(const std::function<void()>& work) {
        const auto error = errorOf(work);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number(), kUnspecified);
        EXPECT_EQ(error->nativeError(), 1222);
        EXPECT_EQ(error->description(), kLockTimeout);
    }

    Connection other;
};

TEST_F(Holding, FromTheFirstAssignmentNobodyElseWritesTheRow) {
    Recordset mine;
    openHolding(mine, connection);
    other.Execute("update Comuni set cap = '1' where id = 1");
    mine["abitanti"] = 3;
    expectRefused([&] { other.Execute("update Comuni set cap = '2' where id = 1"); });
    expectRefused([&] { other.Execute("delete from Comuni where id = 1"); });
    other.Execute("update Comuni set cap = '2' where id = 2");
    mine.Update();
    other.Execute("update Comuni set cap = '3' where id = 1");
    EXPECT_EQ(cell("select cap, abitanti from Comuni where id = 1"), "3|3");
}

TEST_F(Holding, ASecondHolderIsRefusedAtOnceAndItsFieldUnchanged) {
    Recordset mine, theirs;
    openHolding(mine, connection);
    openHolding(theirs, other);
    mine["cap"] = "1";
    expectRefused([&] { theirs["cap"] = "2"; });
    EXPECT_EQ(display(theirs["cap"]), "00118");
    theirs.MoveNext();
    theirs["cap"] = "2";
    theirs.Update();
    mine.Update();
    theirs.MoveFirst();
    theirs["abitanti"] = 1;
    EXPECT_EQ(display(theirs["cap"]), "1") << "what was written meanwhile is read again";
    theirs.Update();
    EXPECT_EQ(cell("select cap, abitanti from Comuni where id = 1"), "1|1");
}

TEST_F(Holding, EndsWithCancelWithCloseAndWithTheRecordset) {
    const auto write = [&] { other.Execute("update Comuni set cap = '7' where id = 1"); };
    auto mine = std::make_unique<Recordset>();
    openHolding(*mine, connection);
    (*mine)["cap"] = "1";
    expectRefused(write);
    mine->CancelUpdate();
    write();
    (*mine)["cap"] = "1";
    expectRefused(write);
    mine.reset();
    write();
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "7");
}

TEST_F(Holding, AHeldRowCanStillBeRead) {
    Recordset mine, theirs;
    openHolding(mine, connection);
    mine["cap"] = "1";
    openHolding(theirs, other);
    EXPECT_EQ(display(theirs["cap"]), "00118");
}

TEST_F(Holding, SendsTheRowsSelectionAndReadsTheRowFromIt) {
    Recordset mine;
    openHolding(mine, connection, "select id, cap from Comuni order by id");
    const StatementRecorder recorder;
    mine["cap"] = "1";
    mine["cap"] = "2";
    mine.Update();
    const std::string select =
        std::string("SELECT [id], [cap] FROM [Comuni]") + support::capabilities().holdingHint + " WHERE [id] = 1";
    EXPECT_EQ(recorder.texts(), (Texts{select, "UPDATE [Comuni] SET [cap] = N'2' WHERE [id] = 1"}));
}

TEST_F(Holding, ARowThatIsGoneCannotBeHeld) {
    Recordset mine;
    openHolding(mine, connection);
    other.Execute("delete from Comuni where id = 1");
    EXPECT_TRUE(test::raises(kRowChanged, [&] { mine["cap"] = "1"; }));
    mine.MoveNext();
    mine["cap"] = "1";
    mine.Update();
}

TEST_F(Holding, AnOptimisticEditHoldsNothing) {
    Recordset mine;
    open(mine);
    mine["cap"] = "1";
    other.Execute("update Comuni set abitanti = 9 where id = 1");
    mine.Update();
    EXPECT_EQ(cell("select cap, abitanti from Comuni where id = 1"), "1|9");
}

TEST_F(Holding, BindsOtherProcessesAndEndsWithTheirs) {
    support::HelperProcess helper("ado_hold_helper", server.helperArguments());
    ASSERT_EQ(helper.readLine(), "ready");
    helper.writeLine("hold 1");
    ASSERT_EQ(helper.readLine(), "held");
    expectRefused([&] { connection.Execute("update Comuni set cap = '2' where id = 1"); });
    Recordset mine;
    openHolding(mine, connection);
    expectRefused([&] { mine["cap"] = "3"; });

    mine.MoveNext();
    mine["cap"] = "4";
    helper.writeLine("write 2");
    EXPECT_EQ(helper.readLine(), std::string("refused -2147467259 ") + kLockTimeout);
    mine.Update();
    helper.writeLine("write 2");
    EXPECT_EQ(helper.readLine(), "written");

    helper.writeLine("update");
    ASSERT_EQ(helper.readLine(), "updated");
    connection.Execute("update Comuni set abitanti = 5 where id = 1");
    EXPECT_EQ(cell("select cap, abitanti from Comuni where id = 1"), "11111|5");
    EXPECT_EQ(cell("select cap from Comuni where id = 2"), "22222");

    helper.writeLine("hold 1");
    ASSERT_EQ(helper.readLine(), "held");
    expectRefused([&] { connection.Execute("update Comuni set abitanti = 6 where id = 1"); });
    helper.kill();
    const auto write = [&] { connection.Execute("update Comuni set abitanti = 7 where id = 1"); };
    for (int tries = 0; !support::capabilities().holdEndsAtOnceWithItsProcess && tries < 10000 && errorOf(write);) {
        ++tries;
    }
    write();
    EXPECT_EQ(cell("select cap, abitanti from Comuni where id = 1"), "11111|7");
}

} // namespace
} // namespace ado
