// How long a connection waits for rows that another one holds. The tests look at the statements sent instead of
// waiting.

#include "ado/Recordset.h"
#include "ado/TestServer.h"
#include "support/OneEvent.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace ado {
namespace {

std::vector<std::string>* heard = nullptr;
QtMessageHandler others = nullptr;

/// The texts sent over the wire while this object lives, read from the driver's log.
class SentTexts {
public:
    SentTexts() {
        QLoggingCategory::setFilterRules(QStringLiteral("vabo.odbc.debug=true"));
        heard = &texts_;
        others = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (QLatin1String(context.category) == QLatin1String("vabo.odbc")) {
                heard->push_back(message.toStdString());
            } else {
                others(type, context, message);
            }
        });
    }
    ~SentTexts() {
        qInstallMessageHandler(others);
        QLoggingCategory::setFilterRules({});
    }
    SentTexts(const SentTexts&) = delete;
    SentTexts& operator=(const SentTexts&) = delete;

    long count(const std::string& text) const { return std::count(texts_.begin(), texts_.end(), text); }

private:
    std::vector<std::string> texts_;
};

constexpr const char* kWait = "SET LOCK_TIMEOUT 5000";
constexpr const char* kBegin =
    "SET LOCK_TIMEOUT 0; BEGIN TRANSACTION; SELECT [n] FROM [Prova] WITH (UPDLOCK, ROWLOCK) WHERE [n] = 1";
constexpr const char* kEnd = "IF @@TRANCOUNT > 0 COMMIT TRANSACTION; SET LOCK_TIMEOUT 5000";

/// Whether the driver manager keeps the connections of this process.
bool keepsConnections() {
    const char* drivers = std::getenv("ODBCSYSINI");
    return drivers != nullptr && std::string_view(drivers).ends_with("keeping");
}

class OdbcHolds : public ::testing::Test {
protected:
    OdbcHolds() {
        connection.Open(server.connectionString());
        connection.Execute("create table Prova (n int not null primary key)");
        connection.Execute("insert into Prova (n) values (1), (2)");
    }

    test::TestServer server{support::TestedDriver::Wire};
    Connection connection;
};

TEST_F(OdbcHolds, AConnectionWaitsForOthersLessThanItsStatementsMayTake) {
    const SentTexts sent;
    Connection usual;
    usual.Open(server.connectionString());
    EXPECT_EQ(sent.count(kWait), 1);
    Connection hasty;
    hasty.Open(server.connectionString() + ";Connect Timeout=3");
    EXPECT_EQ(sent.count("SET LOCK_TIMEOUT 1000"), 1);
    Connection patient;
    patient.Open(server.connectionString() + ";Connect Timeout=2147483647");
    EXPECT_EQ(sent.count("SET LOCK_TIMEOUT 28800000"), 1) << "a day at the longest";
}

TEST_F(OdbcHolds, AKeptConnectionIsPreparedOnceAnEvent) {
    const auto reopen = [&](const std::string& more = {}) {
        connection.Close();
        connection.Open(server.connectionString() + more);
    };
    support::inOneEvent([&] {
        const SentTexts sent;
        reopen();
        EXPECT_EQ(sent.count(kWait), 1) << "the server may have gone since the event before";
        reopen();
        reopen();
        EXPECT_EQ(sent.count(kWait), keepsConnections() ? 1 : 3);
        reopen(";Connect Timeout=3");
        EXPECT_EQ(sent.count("SET LOCK_TIMEOUT 1000"), 1);
        reopen();
        EXPECT_EQ(sent.count(kWait), keepsConnections() ? 2 : 4);
    });
    const SentTexts sent;
    reopen();
    EXPECT_EQ(sent.count(kWait), 1);
}

TEST_F(OdbcHolds, AKeptConnectionThatHeldRowsNeedsNoPreparing) {
    support::inOneEvent([&] {
        connection.Close();
        connection.Open(server.connectionString());
        Recordset rs;
        rs.Open("select * from Prova order by n", connection, CursorType::Keyset, LockType::Pessimistic);
        rs["n"] = 7;
        rs.Update();
        rs.Close();
        const SentTexts sent;
        connection.Close();
        connection.Open(server.connectionString());
        EXPECT_EQ(sent.count(kWait), keepsConnections() ? 0 : 1);
    });
}

TEST_F(OdbcHolds, OnlyAHeldRowIsRefusedAtOnce) {
    Recordset rs;
    rs.Open("select * from Prova order by n", connection, CursorType::Keyset, LockType::Pessimistic);
    const SentTexts sent;
    rs["n"] = 7;
    EXPECT_EQ(sent.count(kBegin), 1);
    EXPECT_EQ(sent.count(kEnd), 0);
    rs.Update();
    EXPECT_EQ(sent.count(kEnd), 1);
}

TEST_F(OdbcHolds, TheLastOfSeveralHoldsEndsTheirTransaction) {
    Recordset first, second;
    for (Recordset* rs : {&first, &second}) {
        rs->Open("select * from Prova order by n", connection, CursorType::Keyset, LockType::Pessimistic);
    }
    second.MoveNext();
    const SentTexts sent;
    first["n"] = 7;
    second["n"] = 8;
    EXPECT_EQ(sent.count("SELECT [n] FROM [Prova] WITH (UPDLOCK, ROWLOCK) WHERE [n] = 2"), 1);
    first.Update();
    EXPECT_EQ(sent.count(kEnd), 0);
    second.Update();
    EXPECT_EQ(sent.count(kEnd), 1);
}

} // namespace
} // namespace ado
