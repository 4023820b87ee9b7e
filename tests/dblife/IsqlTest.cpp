// Another program reaches the databases by the names of their data sources alone.

#include "ado/ConnectionString.h"
#include "platform/DataSources.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/Processes.h"
#include "support/Road.h"

#include <QStandardPaths>

#include <gmock/gmock.h>

#include <array>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

/// Where the server is another process: an embedded one is nobody else's.
struct OverTheWire {
    OverTheWire() {
        constexpr std::array kArguments{"", "--road=wire"};
        support::chooseRoad(static_cast<int>(kArguments.size()), kArguments.data());
    }
};

class Isql : private OverTheWire, public SessionTest {
protected:
    void open(const std::string& database) const {
        double id = idOf(database);
        ApriAzienda(id);
    }
    /// What the driver manager's own client answers to a statement.
    std::string answer(const std::string& dataSource, const std::string& statement) const {
        const ado::ConnectionString login(server);
        support::HelperProcess isql(QStandardPaths::findExecutable("isql").toStdString(),
                                    {dataSource, login.user(), login.password(), "-b", "-d|"});
        isql.writeLine(statement);
        EXPECT_EQ(isql.finish(), 0) << dataSource;
        return isql.readAll();
    }
};

TEST_F(Isql, ReadsEachDatabaseByItsName) {
    open(kCompany);
    const struct {
        const char* dataSource;
        const char* statement;
        const char* database;
    } cases[] = {
        {"Tlv_server", "select idautonumber, NomeUtente from AbilitazioneAccessi order by idautonumber", kCompany},
        {"Tlv_Temp", "select id, Lingua from LinguaClient order by id", support::kTemporaryDatabase},
        {"Tlv_Azienda", "select id, NomeAzienda from link_programma order by id", support::kControlDatabase},
    };
    for (const auto& one : cases) {
        std::string expected;
        for (const auto& row : workstation.rows(one.database, one.statement))
            expected += row[0] + "|" + row[1] + "\n";
        ASSERT_FALSE(expected.empty()) << one.dataSource;
        EXPECT_EQ(answer(one.dataSource, one.statement), expected) << one.dataSource;
    }
}

TEST_F(Isql, FindsTheMainDataSourceHoweverItIsSpelled) {
    open(kCompany);
    EXPECT_EQ(answer("Tlv_Server", "select DescStato from stati where IdStato = 1"), "Italia\n");
}

TEST_F(Isql, ReachesTheCompanyThatIsOpen) {
    workstation.run(kOtherCompany, "update stati set DescStato = 'Il Ponte' where IdStato = 1");
    const std::string statement = "select DescStato from stati where IdStato = 1";
    open(kCompany);
    EXPECT_EQ(answer("Tlv_server", statement), "Italia\n");
    open(kOtherCompany);
    EXPECT_EQ(answer("Tlv_server", statement), "Il Ponte\n");
}

TEST_F(Isql, ReadsAccentsAsTheyAre) {
    workstation.run(kCompany, "update stati set DescStato = N'Città è più' where IdStato = 1");
    open(kCompany);
    EXPECT_EQ(answer("Tlv_server", "select DescStato from stati where IdStato = 1"), "Città è più\n");
}

TEST_F(Isql, IsRefusedWithoutThePasswordWhichNoDataSourceHolds) {
    open(kCompany);
    const auto bytes = workstation.fileText("C:\\odbc.ini");
    ASSERT_TRUE(bytes.has_value());
    EXPECT_THAT(*bytes, testing::Not(testing::HasSubstr(ado::ConnectionString(server).password())));
    support::HelperProcess isql(QStandardPaths::findExecutable("isql").toStdString(),
                                {"Tlv_server", "sa", "falsa", "-b"});
    EXPECT_EQ(isql.readLine(), std::nullopt);
    EXPECT_NE(isql.finish(), 0);
}

} // namespace
