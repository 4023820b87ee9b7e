// What happens when the server behind the wire doesn't exist, ends or stops answering.

#include "ado/Connection.h"
#include "ado/Drivers.h"
#include "ado/ExpectError.h"
#include "ado/Recordset.h"
#include "ado/TestServer.h"
#include "support/Capabilities.h"
#include "support/DataSourceStore.h"
#include "support/Environment.h"
#include "support/OneEvent.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace ado {
namespace {

using test::errorOf;

constexpr const char* kOutOfReach = "Server does not exist or access denied.";
constexpr const char* kLinkFailure = "Communication link failure";

class OdbcFailures : public ::testing::Test {
protected:
    std::string text() const { return server.connectionString() + ";Connect Timeout=1"; }

    static void expectOutOfReach(const std::string& connectionString) {
        Connection refused;
        const auto error = errorOf([&] { refused.Open(connectionString); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number(), kUnspecified);
        EXPECT_EQ(error->sqlState(), "08001");
        EXPECT_EQ(error->description(), kOutOfReach);
        EXPECT_NE(error->context(), "") << "the driver's own words are kept";
        EXPECT_FALSE(refused.IsOpen());
    }

    void expectWorks(Connection& connection) {
        connection.setConnectionString(text());
        connection.Open();
        EXPECT_EQ(connection.Execute("update Prova set n = n where n = 1"), 1);
    }

    void fill(Connection& connection) {
        connection.Open(text());
        connection.Execute("create table Prova (n int not null primary key, t nvarchar(200) null)");
        connection.Execute("insert into Prova (n) values (1)");
    }

    test::TestServer server{support::TestedDriver::Wire};
    support::Peer& peer = server.peer();
    Connection connection;
};

TEST_F(OdbcFailures, APortNobodyListensOnIsOutOfReach) {
    fill(connection);
    connection.Close();
    peer.kill();
    expectOutOfReach(text());
    peer.restart();
    expectWorks(connection);
}

TEST_F(OdbcFailures, AServerThatDoesNotAnswerTheLoginIsGivenUp) {
    fill(connection);
    connection.Close();
    peer.freeze();
    expectOutOfReach(text());
    peer.thaw();
    expectWorks(connection);
}

TEST_F(OdbcFailures, AServerThatFallsSilentGivesAnErrorAndIsReachedAgainOnceItIsBack) {
    fill(connection);
    peer.freeze();
    const auto error = errorOf([&] { connection.Execute("update Prova set n = 1"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kUnspecified);
    EXPECT_EQ(error->description(), "Timeout expired");
    EXPECT_EQ(error->statement(), "update Prova set n = 1");
    peer.thaw();
    connection.Close();
    expectWorks(connection);
}

TEST_F(OdbcFailures, AServerThatEndsBetweenTwoStatementsGivesAnError) {
    fill(connection);
    peer.kill();
    const auto error = errorOf([&] { connection.Execute("update Prova set n = 1"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kUnspecified);
    EXPECT_EQ(error->sqlState(), "08S01");
    EXPECT_EQ(error->description(), kLinkFailure);
    peer.restart();
    connection.Close();
    expectWorks(connection);
}

TEST_F(OdbcFailures, AnOpenConnectionReachesItsServerAgainOnceItIsBack) {
    fill(connection);
    peer.kill();
    EXPECT_TRUE(errorOf([&] { connection.Execute("update Prova set n = 1"); }));
    const auto error = errorOf([&] { connection.Execute("update Prova set n = 1"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), kOutOfReach);
    EXPECT_EQ(error->statement(), "update Prova set n = 1");
    EXPECT_TRUE(connection.IsOpen());
    peer.restart();
    EXPECT_EQ(connection.Execute("update Prova set n = 1"), 1);
}

TEST_F(OdbcFailures, ARecordsetIsReadAnewOnAnOpenConnectionOnceItsServerIsBack) {
    fill(connection);
    Recordset rs;
    rs.Open("select * from Prova", connection, CursorType::Keyset, LockType::Pessimistic);
    rs["t"] = "perso";
    peer.kill();
    EXPECT_TRUE(errorOf([&] { rs.Update(); }));
    peer.restart();
    EXPECT_TRUE(errorOf([&] { rs.Update(); })) << "what was begun on the lost connection is lost with it";
    rs.CancelUpdate();
    rs.Close();
    rs.Open("select * from Prova", connection, CursorType::Keyset, LockType::Pessimistic);
    EXPECT_TRUE(Value(rs["t"]).isNull());
    rs["t"] = "scritto";
    rs.Update();
    EXPECT_EQ(connection.Execute("update Prova set n = n where t = 'scritto'"), 1);
}

TEST_F(OdbcFailures, AServerThatEndsInTheMiddleOfAResultGivesAnError) {
    fill(connection);
    for (int n = 2; n <= 128; n *= 2) {
        const std::string many = std::to_string(n / 2);
        connection.Execute("insert into Prova (n, t) select n + " + many + ", replicate('x', 200) from Prova");
    }
    auto driverConnection = connection.driverConnection();
    const auto result = driverConnection->run("select a.t, b.t, c.n from Prova a, Prova b, Prova c");
    ASSERT_TRUE(result->nextResult());
    ASSERT_TRUE(result->nextRow());
    peer.kill();
    const auto error = errorOf([&] {
        while (result->nextRow()) {
        }
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), kLinkFailure);
    EXPECT_FALSE(driverConnection->alive());
    driverConnection.reset();
    peer.restart();
    connection.Close();
    expectWorks(connection);
}

TEST_F(OdbcFailures, ConnectionsKeptForLaterAreNotTrustedWhenTheirServerWasAnother) {
    fill(connection);
    Connection more[3];
    for (Connection& one : more) {
        one.Open(text());
    }
    for (Connection& one : more) {
        one.Close();
    }
    connection.Close();
    peer.kill();
    peer.restart();
    for (Connection& one : more) {
        expectWorks(one);
    }
}

TEST_F(OdbcFailures, AServerThatWasAnotherAMomentAgoFailsAtMostOnceAndNoWriteRunsTwice) {
    fill(connection);
    connection.Close();
    support::inOneEvent([&] {
        {
            Connection more[3];
            for (Connection& one : more) {
                one.Open(text());
            }
        }
        peer.kill();
        peer.restart();
        connection.Open(text());
        const auto write = [&] { connection.Execute("insert into Prova (n) values (2)"); };
        if (const auto error = errorOf(write)) {
            EXPECT_EQ(error->description(), kLinkFailure);
            write();
        }
        connection.Close();
        expectWorks(connection);
    });
    EXPECT_EQ(connection.Execute("update Prova set t = 'x'"), 2);
}

TEST_F(OdbcFailures, AServerThatAnsweredLongerAgoIsAskedWhetherItLives) {
    fill(connection);
    connection.Close();
    support::inOneEvent([&] {
        connection.Open(text());
        connection.Close();
        peer.kill();
        peer.restart();
        std::this_thread::sleep_for(std::chrono::milliseconds(1100));
        expectWorks(connection);
    });
}

TEST_F(OdbcFailures, AServerThatHasJustFallenSilentIsAskedWhetherItLives) {
    fill(connection);
    connection.Close();
    support::inOneEvent([&] {
        connection.Open(text());
        peer.freeze();
        EXPECT_TRUE(errorOf([&] { connection.Execute("update Prova set n = 1"); }));
        connection.Close();
        expectOutOfReach(text());
        peer.thaw();
    });
    expectWorks(connection);
}

TEST_F(OdbcFailures, AHoldWhoseServerEndedIsGivenUpWithoutWaiting) {
    fill(connection);
    auto hold = connection.driverConnection()->hold("SELECT n FROM Prova WITH (UPDLOCK, ROWLOCK) WHERE n = 1");
    peer.kill();
    EXPECT_TRUE(errorOf([&] { hold->run("update Prova set n = 1")->nextResult(); }));
    hold.reset();
    peer.restart();
    connection.Close();
    expectWorks(connection);
}

TEST_F(OdbcFailures, NamesAndPasswordsOfAnyCharactersArriveAsTheyAre) {
    for (const std::string password : {"a;b", "{a", "a}b", " a ", "a=b", "è'\"€", "PWD=x;UID=y"}) {
        server.addLogin("giulia rossi", password);
        std::string quoted;
        for (const char c : password) {
            quoted += c == '}' ? "}}" : std::string(1, c);
        }
        std::string other = server.connectionString();
        other.replace(other.find("UID=sa;PWD=segreta"), 18, "UID=giulia rossi;PWD={" + quoted + "}");
        EXPECT_FALSE(errorOf([&] { Connection().Open(other); })) << password;
    }
}

TEST(OdbcDrivers, WithoutARegisteredDriverTheRegistrySpeaks) {
    VABO_NEEDS(support::systemCapabilities().driversByEnvironment);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto open = [] {
        qputenv("ODBCSYSINI", "/nonexistent");
        support::useDataSourceFile(support::nowhere() / "odbc.ini");
        const auto error = errorOf([] { Connection().Open("Driver=SQL Server;Server=127.0.0.1;UID=sa;PWD=x"); });
        if (error) {
            std::fprintf(stderr, "%d %s\n", error->number(), error->description().c_str());
        }
        std::exit(error ? 0 : 1);
    };
    EXPECT_EXIT(open(), ::testing::ExitedWithCode(0), "-2147467259 .*SQL Server");
}

} // namespace
} // namespace ado
