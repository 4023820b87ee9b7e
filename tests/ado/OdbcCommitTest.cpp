// The end of a row hold, where the server can't keep what was written.

#include "ado/ExpectError.h"
#include "ado/Recordset.h"
#include "ado/TestServer.h"
#include "ado/WhileWaiting.h"
#include "support/Capabilities.h"
#include "support/CutWire.h"
#include "support/LargestFile.h"

#include <gtest/gtest.h>

#include <memory>

namespace ado {
namespace {

using test::errorOf;

class OdbcCommit : public ::testing::Test {
protected:
    OdbcCommit() {
        connection.Open(server.connectionString());
        connection.Execute("create table Prova (n int not null primary key, t nvarchar(4000) null)");
        connection.Execute("insert into Prova (n, t) values (1, 'prima'), (2, 'prima')");
    }
    static void open(Recordset& rs, Connection& on) {
        rs.Open("select * from Prova order by n", on, CursorType::Keyset, LockType::Pessimistic);
    }
    /// Read by another connection.
    std::string stored(int n) {
        Recordset rs;
        rs.Open("select t from Prova where n = " + std::to_string(n), server.connectionString());
        return std::get<std::string>(rs["t"].Value().variant());
    }

    test::TestServer server{support::TestedDriver::Wire};
    Connection connection;
};

TEST_F(OdbcCommit, OnAFullDiskFailsTheUpdateAndNothingThatFollowsIsLost) {
    VABO_NEEDS(support::systemCapabilities().limitedFileSize);
    Recordset rs;
    open(rs, connection);
    rs["t"] = std::string(4000, 'x');
    {
        const support::LargestFile limit(server.peer().pid(), 1);
        const auto error = errorOf([&] { rs.Update(); });
        ASSERT_TRUE(error) << "it looks stored";
    }
    EXPECT_EQ(stored(1), "prima");
    rs.CancelUpdate();
    rs.Close();
    EXPECT_EQ(connection.Execute("update Prova set t = 'dopo'"), 2);
    EXPECT_EQ(stored(1), "dopo") << "it is no part of an open transaction";
}

TEST_F(OdbcCommit, AtWhateverByteTheWireIsCutAnUpdateThatSucceedsIsStored) {
    support::CutWire wire(server.peer().port());
    const auto update = [&](long cut) {
        Connection over;
        over.Open("Driver=SQL Server;Server=" + wire.server() + ";UID=sa;PWD=segreta;Database=Vabodati");
        Recordset rs;
        open(rs, over);
        rs["t"] = "dopo";
        cut < 0 ? wire.mend() : wire.cutAfter(cut);
        const bool told = !errorOf([&] { rs.Update(); });
        const long passed = wire.passed();
        wire.mend();
        return std::pair(told, passed);
    };
    const auto [whole, bytes] = update(-1);
    ASSERT_TRUE(whole);
    int refused = 0;
    for (long cut = 0; cut < bytes; ++cut) {
        SCOPED_TRACE(cut);
        connection.Execute("update Prova set t = 'prima'");
        const bool told = update(cut).first;
        refused += told ? 0 : 1;
        EXPECT_TRUE(!told || stored(1) == "dopo");
    }
    EXPECT_GT(refused, 0);
}

TEST_F(OdbcCommit, ThatCanNeitherBeSentNorTakenBackGivesUpItsConnection) {
    connection.Execute("create table Molte (n int not null)");
    connection.Execute("insert into Molte values (1), (2), (3), (4), (5), (6), (7), (8)");
    Connection other;
    other.Open(server.connectionString());
    auto rs = std::make_unique<Recordset>();
    open(*rs, connection);
    (*rs)["t"] = "dopo";
    {
        const WhileWaiting waiting([&] { rs.reset(); });
        other.Execute("select count(*) from Molte a, Molte b, Molte c, Molte d, Molte e, Molte f, Molte g, Molte h");
    }
    ASSERT_FALSE(rs);
    EXPECT_EQ(connection.Execute("update Prova set t = 'altro' where n = 1"), 1) << "on a new connection";
    EXPECT_EQ(stored(1), "altro") << "and in no open transaction";
    Connection another;
    another.Open(server.connectionString());
    EXPECT_EQ(another.Execute("update Prova set t = 'ancora'"), 2) << "nothing is held";
}

} // namespace
} // namespace ado
