#include "support/Refusals.h"

#include "ado/Recordset.h"
#include "support/TestWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace support {
namespace {

using Texts = std::vector<std::string>;

class Refused : public testing::Test {
protected:
    Refused() {
        workstation.run(kCompany, "create table Prova (n int not null primary key, t nvarchar(9) null)");
        workstation.run(kCompany, "insert into Prova values (1, 'uno'), (2, 'due')");
    }
    std::string text() const {
        const std::string server = *workstation.fileText("C:\\vabo\\IndirizzoServer.txt");
        return server.substr(0, server.rfind(';')) + ";Database=" + kCompany;
    }
    /// Opens the table and writes its first row; the descriptions of what failed.
    Texts write() {
        Texts failed;
        const auto step = [&failed](const std::function<void()>& work) {
            try {
                work();
            } catch (const ado::Error& error) {
                failed.push_back(error.description());
            }
        };
        ado::Recordset rs;
        ado::Connection connection;
        step([&] { connection.Open(text()); });
        step([&] {
            rs.Open("select * from Prova order by n", connection, ado::CursorType::Keyset, ado::LockType::Pessimistic);
        });
        step([&] { rs["t"] = "altro"; });
        step([&] { rs.Update(); });
        return failed;
    }
    std::string stored() const { return workstation.value(kCompany, "select t from Prova where n = 1"); }

    TestWorkstation workstation;
    Refusals refusals;
};

TEST_F(Refused, CountsLoginsStatementsKeysAndHolds) {
    refusals.begin();
    EXPECT_EQ(write(), Texts{});
    const Texts& asked = refusals.asked();
    ASSERT_EQ(asked.size(), 5U);
    EXPECT_EQ(asked[0], std::string("login to ") + kCompany);
    EXPECT_EQ(asked[1], "select * from Prova order by n");
    EXPECT_THAT(asked[2], testing::StartsWith("key of "));
    EXPECT_THAT(asked[3], testing::StartsWith("hold: SELECT "));
    EXPECT_THAT(asked[4], testing::StartsWith("UPDATE "));
    EXPECT_EQ(stored(), "altro");
}

TEST_F(Refused, OnceRefusesThatRequestAlone) {
    refusals.begin(5);
    EXPECT_EQ(write(), Texts{Refusals::kRefusal});
    EXPECT_EQ(stored(), "uno");
    EXPECT_EQ(write(), Texts{}) << "and none of the next run";
    EXPECT_EQ(stored(), "altro");
}

TEST_F(Refused, FromThereRefusesAllThatFollow) {
    refusals.begin(4, Refusals::Lasting::FromThere);
    EXPECT_THAT(write(), testing::Contains(Refusals::kRefusal));
    EXPECT_EQ(write().front(), Refusals::kRefusal) << "the login of the next run, too";
    EXPECT_EQ(stored(), "uno");
    refusals.end();
    EXPECT_EQ(write(), Texts{});
}

TEST_F(Refused, NothingIsRefusedBehindIt) {
    ado::Connection connection;
    {
        Refusals another;
        connection.Open(text());
        another.begin(1, Refusals::Lasting::FromThere);
        EXPECT_THROW(connection.Execute("delete from Prova"), ado::Error);
    }
    EXPECT_EQ(connection.Execute("delete from Prova"), 2);
}

} // namespace
} // namespace support
