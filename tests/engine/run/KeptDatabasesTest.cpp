// What a session finds that begins where another one of its process has ended.

#include "engine/run/KeptDatabases.h"

#include "engine/SessionFixture.h"
#include "support/Capabilities.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace engine {
namespace {

namespace fs = std::filesystem;

constexpr const char* kRows = "SELECT n FROM t ORDER BY n";

/// `session` is a stranger: it shares nothing with those that `next` opens, one after the other.
class KeptDatabasesTest : public SessionTest {
protected:
    KeptDatabasesTest() {
        kept->start();
        run("CREATE TABLE t (n int NOT NULL PRIMARY KEY, altro int NULL)");
        run("INSERT INTO t (n) VALUES (1)");
    }

    std::unique_ptr<Session> next(const std::string& database = "prova") {
        return Session::open(instance, Login{"", "", database}, kept);
    }
    std::string nextRows(std::string_view text) { return rowsOf(*next(), text); }
    std::string nextAnswer(std::string_view text) { return engine::answer(*next(), text); }
    fs::path file() const { return instance->database("prova")->file; }
    bool isOpen() const {
        fs::path log = file();
        return fs::exists(log += "-wal");
    }

    std::shared_ptr<KeptDatabases> kept = std::make_shared<KeptDatabases>();
};

TEST_F(KeptDatabasesTest, StayOpenBetweenTwoSessionsUntilTheyAreStopped) {
    EXPECT_EQ(nextRows(kRows), "1");
    session.reset();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(nextRows(kRows), "1");
    EXPECT_TRUE(isOpen());
    kept->stop();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(nextRows(kRows), "1");
    EXPECT_FALSE(isOpen()) << "nothing is kept before the next start";
}

TEST_F(KeptDatabasesTest, AreClosedOneByOneWhenTheyAreForgotten) {
    instance->createDatabase("altra", "", "");
    EXPECT_EQ(nextRows(kRows), "1");
    EXPECT_EQ(rowsOf(*next("altra"), "SELECT 1"), "1");
    session.reset();
    kept->forget(*instance->database("altra"));
    EXPECT_TRUE(isOpen());
    kept->forget(*instance->database("prova"));
    EXPECT_FALSE(isOpen());
}

TEST_F(KeptDatabasesTest, SeeWhatOthersHaveWrittenMeanwhile) {
    EXPECT_EQ(nextRows(kRows), "1");
    run("INSERT INTO t (n) VALUES (2)");
    EXPECT_EQ(nextRows(kRows), "1\n2");
}

TEST_F(KeptDatabasesTest, SeeWhatOthersHaveDefinedMeanwhile) {
    EXPECT_EQ(nextRows("SELECT * FROM t"), "1|NULL");
    run("ALTER TABLE t ADD terzo int NOT NULL DEFAULT 7");
    EXPECT_EQ(nextRows("SELECT * FROM t"), "1|NULL|7");
    run("DROP TABLE t");
    EXPECT_EQ(nextRows("SELECT * FROM t"), "!208 Invalid object name 't'.");
}

TEST_F(KeptDatabasesTest, AreNotInUse) {
    EXPECT_EQ(nextRows(kRows), "1");
    const fs::path open = file();
    session.reset();
    EXPECT_EQ(engine::answer(*next("master"), "DROP DATABASE prova"), "-");
    EXPECT_FALSE(fs::exists(open));
}

TEST_F(KeptDatabasesTest, AreInUseForAStrangerOnlyWhereOpenFilesStay) {
    EXPECT_EQ(nextRows(kRows), "1");
    const fs::path open = file();
    session = connect("master");
    const bool goes{support::systemCapabilities().openFilesMove};
    EXPECT_EQ(answer("DROP DATABASE prova"),
              goes ? "-" : "!3702 Cannot drop database \"prova\" because it is currently in use.");
    EXPECT_EQ(fs::exists(open), !goes);
    EXPECT_EQ(instance->database("prova").has_value(), !goes);
}

TEST_F(KeptDatabasesTest, AreDroppedByAStrangerWhenTheirEventEnds) {
    EXPECT_EQ(nextRows(kRows), "1");
    session = connect("master");
    std::thread event([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        kept->stop();
    });
    EXPECT_EQ(answer("DROP DATABASE prova"), "-");
    event.join();
}

TEST_F(KeptDatabasesTest, AreNoneOfADatabaseMadeAnewUnderTheSameName) {
    VABO_NEEDS(support::systemCapabilities().openFilesMove);
    EXPECT_EQ(nextRows(kRows), "1");
    session = connect("master");
    run("DROP DATABASE prova");
    EXPECT_THROW(next(), Error);
    run("CREATE DATABASE prova");
    session = connect();
    run("CREATE TABLE t (n int NOT NULL)");
    run("INSERT INTO t (n) VALUES (5)");
    EXPECT_EQ(nextRows(kRows), "5");
    kept->stop();
    EXPECT_EQ(rows(kRows), "5") << "closing the old one leaves the new one's files alone";
}

TEST_F(KeptDatabasesTest, AreNoneOfAFileThatTookTheirPlace) {
    VABO_NEEDS(support::systemCapabilities().openFilesMove);
    EXPECT_EQ(nextRows(kRows), "1");
    instance->createDatabase("altra", "", "");
    session = connect("altra");
    run("CREATE TABLE t (n int NOT NULL)");
    run("INSERT INTO t (n) VALUES (6)");
    session.reset();
    for (const char* ending : {"-wal", "-shm"}) {
        fs::path part = file();
        fs::remove(part += ending);
    }
    fs::rename(instance->database("altra")->file, file());
    EXPECT_EQ(nextRows(kRows), "6");
}

TEST_F(KeptDatabasesTest, AreNoneOfAFolderThatHasGone) {
    VABO_NEEDS(support::systemCapabilities().openFilesMove);
    EXPECT_EQ(nextRows(kRows), "1");
    session.reset();
    EXPECT_TRUE(instance->isThere());
    fs::remove_all(instance->folder());
    EXPECT_FALSE(instance->isThere());
    EXPECT_THROW(next(), Error);
}

TEST_F(KeptDatabasesTest, KeepNoSettingOfTheSessionBefore) {
    EXPECT_EQ(nextAnswer("SET DATEFORMAT dmy SELECT DAY('03/02/2004') AS giorno"), "-\ngiorno\n3");
    EXPECT_EQ(nextRows("SELECT DAY('03/02/2004')"), "2");
    run("CREATE TABLE c (id int IDENTITY (1, 1) NOT NULL, n int NULL)");
    EXPECT_EQ(nextAnswer("SET IDENTITY_INSERT c ON INSERT INTO c (id, n) VALUES (9, 1)"), "-\n(1)");
    EXPECT_TRUE(nextAnswer("INSERT INTO c (id, n) VALUES (10, 1)").starts_with("!544 "));
}

TEST_F(KeptDatabasesTest, KeepNoPlanThatASettingOfTheSessionBeforeMade) {
    run("CREATE TABLE c (id int IDENTITY (1, 1) NOT NULL, n int NULL)");
    auto first = next();
    EXPECT_EQ(engine::answer(*first, "SET IDENTITY_INSERT c ON"), "-");
    EXPECT_EQ(engine::answer(*first, "INSERT INTO c (id, n) VALUES (9, 1)"), "(1)");
    first.reset();
    EXPECT_TRUE(nextAnswer("INSERT INTO c (id, n) VALUES (10, 1)").starts_with("!544 "));
    first = next();
    EXPECT_EQ(engine::answer(*first, "SET DATEFORMAT dmy"), "-");
    EXPECT_EQ(rowsOf(*first, "SELECT DAY('03/02/2004')"), "3");
    first.reset();
    EXPECT_EQ(nextRows("SELECT DAY('03/02/2004')"), "2");
}

TEST_F(KeptDatabasesTest, KeepNoAnswerOfTheSessionBefore) {
    run("CREATE TABLE c (id int IDENTITY (1, 1) NOT NULL, n int NULL)");
    EXPECT_EQ(nextRows("INSERT INTO c (n) VALUES (1) SELECT @@IDENTITY"), "\n1");
    EXPECT_EQ(nextRows("SELECT @@IDENTITY"), "NULL");
}

TEST_F(KeptDatabasesTest, KeepNoTransactionOfTheSessionBefore) {
    EXPECT_EQ(nextAnswer("BEGIN TRANSACTION INSERT INTO t (n) VALUES (3)"), "-\n(1)");
    EXPECT_EQ(rows(kRows), "1");
    EXPECT_EQ(answer("INSERT INTO t (n) VALUES (4)"), "(1)");
    EXPECT_EQ(nextRows("SELECT @@TRANCOUNT"), "0");
    EXPECT_EQ(nextRows(kRows), "1\n4");
}

TEST_F(KeptDatabasesTest, KeepNoHoldOfTheSessionBefore) {
    auto first = next();
    auto hold = first->hold(kRows);
    first.reset();
    EXPECT_TRUE(answer("UPDATE t SET altro = 1 WHERE n = 1").starts_with("!1222 ")) << "a hold outlives its session";
    hold.reset();
    EXPECT_EQ(answer("UPDATE t SET altro = 1 WHERE n = 1"), "(1)");
    EXPECT_EQ(nextAnswer("BEGIN TRANSACTION SELECT n FROM t WITH (UPDLOCK)"), "-\nn\n1");
    EXPECT_EQ(answer("UPDATE t SET altro = 1 WHERE n = 1"), "(1)");
}

TEST_F(KeptDatabasesTest, KeepNoOtherDatabaseBesideThem) {
    const char* read = "SELECT n FROM altra.dbo.u";
    const auto makeAnew = [&](const char* value) {
        session = connect("master");
        run("CREATE DATABASE altra");
        session = connect("altra");
        run(std::string("CREATE TABLE u (n int NOT NULL) INSERT INTO u (n) VALUES (") + value + ")");
    };
    makeAnew("1");
    EXPECT_EQ(nextRows(read), "1");
    session.reset();
    EXPECT_EQ(engine::answer(*next("master"), "DROP DATABASE altra"), "-");
    makeAnew("2");
    EXPECT_EQ(nextRows(read), "2");
}

TEST_F(KeptDatabasesTest, AreTakenByOneSessionAtATime) {
    EXPECT_EQ(nextRows(kRows), "1");
    const auto one = next();
    const auto other = next();
    EXPECT_EQ(engine::answer(*one, "BEGIN TRANSACTION INSERT INTO t (n) VALUES (2)"), "-\n(1)");
    EXPECT_EQ(rowsOf(*other, kRows), "1");
}

} // namespace
} // namespace engine
