// What is done while the server behind the wire is lost or doesn't answer.

#include "ado/Connection.h"
#include "ado/ExpectError.h"
#include "ado/TestServer.h"
#include "ado/WhileWaiting.h"
#include "ado/drivers/odbc/Aside.h"
#include "support/SilentServer.h"

#include <gtest/gtest.h>

#include <thread>

namespace ado {
namespace {

using test::errorOf;

class OdbcWaiting : public ::testing::Test {
protected:
    OdbcWaiting() {
        connection.Open(server.connectionString() + ";Connect Timeout=1");
        connection.Execute("create table Prova (n int not null)");
        connection.Execute("insert into Prova values (1), (2), (3), (4), (5), (6), (7), (8)");
    }

    test::TestServer server{support::TestedDriver::Wire};
    support::Peer& peer = server.peer();
    Connection connection;
    int times = 0;
};

TEST_F(OdbcWaiting, AServerThatEndsMeanwhileGivesTheErrorOfALostConnection) {
    {
        const WhileWaiting waiting([this] {
            if (++times == 1) {
                peer.kill();
            }
        });
        const auto error = errorOf([this] {
            connection.Execute("select count(*) from Prova a, Prova b, Prova c, Prova d, Prova e, Prova f, Prova g, "
                               "Prova h, Prova i");
        });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->description(), "Communication link failure");
        EXPECT_EQ(error->sqlState(), "08S01");
        EXPECT_GE(times, 1);
    }
    peer.restart();
    const int before = times;
    EXPECT_EQ(connection.Execute("update Prova set n = n"), 8);
    EXPECT_EQ(times, before);
}

TEST_F(OdbcWaiting, AServerThatFallsSilentIsWaitedForNoLongerThanElse) {
    const WhileWaiting waiting([this] { ++times; });
    peer.freeze();
    const auto error = errorOf([this] { connection.Execute("update Prova set n = n"); });
    peer.thaw();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), "Timeout expired");
    EXPECT_GE(times, 5);
}

TEST_F(OdbcWaiting, IsFilledDuringALoginToo) {
    const support::SilentServer silent;
    const WhileWaiting waiting([this] { ++times; });
    Connection other;
    const auto error =
        errorOf([&] { other.Open("Driver=SQL Server;Server=" + silent.server() + ";UID=sa;PWD=x;Connect Timeout=1"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), "Server does not exist or access denied.");
    EXPECT_GE(times, 5);
}

TEST(OdbcCalls, StayOnTheirThreadWhereThereIsNothingToDoMeanwhile) {
    std::thread::id ran;
    odbc::aside([&] { ran = std::this_thread::get_id(); });
    EXPECT_EQ(ran, std::this_thread::get_id());
}

TEST(OdbcCalls, RunBesideItWhereThereIs) {
    const WhileWaiting waiting([] {});
    std::thread::id ran;
    odbc::aside([&] { ran = std::this_thread::get_id(); });
    EXPECT_NE(ran, std::this_thread::get_id());
    EXPECT_NE(ran, std::thread::id());
}

} // namespace
} // namespace ado
