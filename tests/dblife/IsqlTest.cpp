// Another program can connect to the databases by the names of their data sources.

#include "dblife/Isql.h"

#include "ado/ConnectionString.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/Processes.h"

#include <gmock/gmock.h>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class Isql : private OverTheWire, public SessionTest {
protected:
    void open(const std::string& database) const {
        double id = idOf(database);
        ApriAzienda(id);
    }
    std::string answer(const std::string& dataSource, const std::string& statement) const {
        return vabo::answer(server, dataSource, statement);
    }
};

TEST_F(Isql, ReadsEachDatabaseByItsName) {
    open(kCompany);
    expectEachDatabase(workstation, server);
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
    support::HelperProcess isql(isqlProgram(), {"Tlv_server", "sa", "falsa", "-b"});
    EXPECT_EQ(isql.readLine(), std::nullopt);
    EXPECT_NE(isql.finish(), 0);
}

} // namespace
