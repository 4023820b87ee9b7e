// What the connections of one event leave open in the embedded server, and for how long.

#include "ado/Connection.h"
#include "ado/ExpectError.h"
#include "ado/Recordset.h"
#include "ado/TestServer.h"
#include "engine/store/Instance.h"
#include "support/Capabilities.h"
#include "support/OneEvent.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace ado {
namespace {

namespace fs = std::filesystem;

using support::inOneEvent;
using test::errorOf;

class KeptInEvent : public ::testing::Test {
protected:
    KeptInEvent() {
        run("create table Prova (n int not null)");
        run("insert into Prova (n) values (1)");
    }

    /// Each on a connection of its own.
    void run(const std::string& text, const std::string& database = "Vabodati") const {
        Connection connection;
        connection.Open(server.connectionString(database));
        connection.Execute(text);
    }
    long count() const {
        Connection connection;
        connection.Open(server.connectionString());
        Recordset rs;
        rs.Open("select * from Prova", connection, CursorType::Static);
        return rs.RecordCount();
    }
    bool isOpen() const { return hasLog(server.databaseFile()); }
    bool isInstanceOpen() const { return hasLog(folder() / "instance.db"); }
    fs::path folder() const { return server.databaseFile().parent_path(); }

    test::TestServer server{support::TestedDriver::Embedded};

private:
    static bool hasLog(fs::path file) { return fs::exists(file += "-wal"); }
};

TEST_F(KeptInEvent, ADatabaseAndItsInstanceStayOpenUntilTheEventIsOver) {
    for (int event = 0; event < 2; ++event) {
        inOneEvent([&] {
            EXPECT_FALSE(isOpen() || isInstanceOpen());
            EXPECT_EQ(count(), 1);
            EXPECT_TRUE(isOpen() && isInstanceOpen());
            EXPECT_EQ(count(), 1);
            EXPECT_TRUE(isOpen() && isInstanceOpen());
        });
        EXPECT_FALSE(isOpen() || isInstanceOpen());
    }
}

TEST_F(KeptInEvent, WithoutAnEventItIsClosedWithItsConnection) {
    EXPECT_EQ(count(), 1);
    EXPECT_FALSE(isOpen());
}

TEST_F(KeptInEvent, WhileABoxIsReadNothingStaysOpen) {
    inOneEvent([&] {
        EXPECT_EQ(count(), 1);
        inOneEvent([] {});
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(count(), 1);
        EXPECT_TRUE(isOpen()) << "the event goes on";
    });
    EXPECT_FALSE(isOpen());
}

TEST_F(KeptInEvent, AConnectionThatOutlivesItsEventClosesItsDatabaseItself) {
    Connection connection;
    inOneEvent([&] { connection.Open(server.connectionString()); });
    EXPECT_TRUE(isOpen());
    connection.Close();
    EXPECT_FALSE(isOpen());
}

TEST_F(KeptInEvent, ADatabaseCanBeDroppedAndMadeAnewInOneEvent) {
    inOneEvent([&] {
        EXPECT_EQ(count(), 1);
        run("drop database Vabodati", "master");
        EXPECT_TRUE(errorOf([&] { count(); }));
        run("create database Vabodati", "master");
        run("create table Prova (n int not null)");
        EXPECT_EQ(count(), 0);
    });
    EXPECT_EQ(count(), 0);
}

TEST_F(KeptInEvent, APasswordChangedMeanwhileIsRefusedAtOnce) {
    inOneEvent([&] {
        EXPECT_EQ(count(), 1);
        server.addLogin("sa", "nuova");
        EXPECT_TRUE(test::raises(kLogin, [&] { count(); }));
    });
}

TEST_F(KeptInEvent, AnInstanceThatTookThePlaceOfAnotherIsReadAnew) {
    VABO_NEEDS(support::systemCapabilities().openFilesMove);
    inOneEvent([&] {
        EXPECT_EQ(count(), 1);
        fs::remove_all(folder());
        EXPECT_TRUE(errorOf([&] { count(); }));
        const auto anew = engine::Instance::create(folder(), {});
        anew->createDatabase("Vabodati", "", "");
        EXPECT_TRUE(test::raises(kLogin, [&] { count(); })) << "the new one has no login";
        anew->addLogin("sa", "segreta");
        run("create table Prova (n int not null)");
        EXPECT_EQ(count(), 0);
    });
}

} // namespace
} // namespace ado
