// How often the program waits for a server that doesn't answer.

#include "ado/Connection.h"
#include "ado/ExpectError.h"
#include "ado/TestServer.h"
#include "support/OneEvent.h"
#include "support/SilentResolver.h"
#include "support/SilentServer.h"

namespace ado {
namespace {

using support::inOneEvent;
using test::errorOf;

class OdbcSilence : public ::testing::Test {
protected:
    std::string text() const { return "Driver=SQL Server;Server=" + silent.server() + kRest; }
    std::string textOfTheOther() { return server.connectionString() + ";Connect Timeout=1"; }
    void expectSilence() const {
        Connection connection;
        const auto error = errorOf([&] { connection.Open(text()); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number(), kUnspecified);
        EXPECT_EQ(error->description(), "Server does not exist or access denied.");
        EXPECT_NE(error->context(), "");
        EXPECT_FALSE(connection.IsOpen());
    }

    static constexpr const char* kRest = ";UID=sa;PWD=x;Connect Timeout=1";
    support::SilentServer silent;
    test::TestServer server{support::TestedDriver::Wire};
};

TEST_F(OdbcSilence, WithinOneEventIsWaitedForOnce) {
    inOneEvent([&] {
        for (int i = 0; i < 3; ++i) {
            expectSilence();
        }
    });
    EXPECT_EQ(silent.callers(), 1);
}

TEST_F(OdbcSilence, IsForgottenWithTheEvent) {
    for (int i = 0; i < 2; ++i) {
        inOneEvent([&] { expectSilence(); });
        EXPECT_EQ(silent.callers(), 1);
    }
}

TEST_F(OdbcSilence, IsForgottenWhileABoxIsRead) {
    inOneEvent([&] {
        expectSilence();
        inOneEvent([] {});
        expectSilence();
    });
    EXPECT_EQ(silent.callers(), 2);
}

TEST_F(OdbcSilence, OfOneServerIsNoneOfAnother) {
    inOneEvent([&] {
        expectSilence();
        Connection other;
        EXPECT_FALSE(errorOf([&] { other.Open(textOfTheOther()); }));
    });
}

TEST_F(OdbcSilence, ARefusalIsNoSilenceAndTheNextLoginTriesAgain) {
    inOneEvent([&] {
        Connection connection;
        server.peer().kill();
        EXPECT_TRUE(errorOf([&] { connection.Open(textOfTheOther()); }));
        server.peer().restart();
        EXPECT_FALSE(errorOf([&] { connection.Open(textOfTheOther()); }));
    });
}

// The driver asks sixteen times for the port of a named instance, one second each, whatever the time-out of the login.
TEST_F(OdbcSilence, AnInstanceWhosePortNobodyTellsIsWaitedForOnce) {
    const support::SilentResolver resolver;
    const auto tellsOutOfReach = [&] {
        Connection connection;
        const auto error = errorOf(
            [&] { connection.Open("Driver=SQL Server;Server=" + resolver.address() + "\\sqlexpress" + kRest); });
        return error && error->description() == "Server does not exist or access denied.";
    };
    inOneEvent([&] {
        EXPECT_TRUE(tellsOutOfReach());
        EXPECT_GT(resolver.questions(), 0);
        EXPECT_TRUE(tellsOutOfReach());
        EXPECT_EQ(resolver.questions(), 0);
    });
}

TEST_F(OdbcSilence, OfAStatementIsRememberedToo) {
    Connection connection;
    connection.Open(textOfTheOther());
    inOneEvent([&] {
        server.peer().freeze();
        const auto silence = errorOf([&] { connection.Execute("select 1"); });
        server.peer().thaw();
        ASSERT_TRUE(silence);
        EXPECT_EQ(silence->description(), "Timeout expired");
        const auto remembered = errorOf([&] { connection.Execute("select 1"); });
        ASSERT_TRUE(remembered);
        EXPECT_EQ(remembered->description(), "Server does not exist or access denied.");
    });
    inOneEvent([&] { EXPECT_FALSE(errorOf([&] { connection.Execute("select 1"); })); });
}

TEST_F(OdbcSilence, OutsideOfAnyEventLoopIsWaitedForEachTime) {
    for (int i = 0; i < 2; ++i) {
        expectSilence();
    }
    EXPECT_EQ(silent.callers(), 2);
}

} // namespace
} // namespace ado
