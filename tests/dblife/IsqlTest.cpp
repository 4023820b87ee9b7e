// Another program can connect to the databases by the names of their data sources.

#include "dblife/Isql.h"

#include "ado/ConnectionString.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/Capabilities.h"
#include "support/Processes.h"

#include <gmock/gmock.h>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class Isql : private ConServerDiRete, public SessionTest {
protected:
    void SetUp() override { VABO_NEEDS(support::systemCapabilities().driverManagersClient); }
    void apri(const std::string& database) const {
        double id = idOf(database);
        ApriAzienda(id);
    }
    std::string risposta(const std::string& dataSource, const std::string& statement) const {
        return vabo::risposta(server, dataSource, statement);
    }
};

TEST_F(Isql, ReadsEachDatabaseByItsName) {
    apri(kCompany);
    aspettaOgniDatabase(workstation, server);
}

TEST_F(Isql, FindsTheMainDataSourceHoweverItIsSpelled) {
    apri(kCompany);
    EXPECT_EQ(risposta("Tlv_Server", "select DescStato from stati where IdStato = 1"), "Italia\n");
}

TEST_F(Isql, ReachesTheCompanyThatIsOpen) {
    workstation.run(kOtherCompany, "update stati set DescStato = 'Il Ponte' where IdStato = 1");
    const std::string statement = "select DescStato from stati where IdStato = 1";
    apri(kCompany);
    EXPECT_EQ(risposta("Tlv_server", statement), "Italia\n");
    apri(kOtherCompany);
    EXPECT_EQ(risposta("Tlv_server", statement), "Il Ponte\n");
}

TEST_F(Isql, ReadsAccentsAsTheyAre) {
    workstation.run(kCompany, "update stati set DescStato = N'Città è più' where IdStato = 1");
    apri(kCompany);
    EXPECT_EQ(risposta("Tlv_server", "select DescStato from stati where IdStato = 1"), "Città è più\n");
}

TEST_F(Isql, IsRefusedWithoutThePasswordWhichNoDataSourceHolds) {
    apri(kCompany);
    const std::string text = workstation.dataSources();
    ASSERT_NE(text, "");
    EXPECT_THAT(text, testing::Not(testing::HasSubstr(ado::ConnectionString(server).password())));
    support::HelperProcess isql(programmaIsql(), {"Tlv_server", "sa", "falsa", "-b"});
    EXPECT_EQ(isql.readLine(), std::nullopt);
    EXPECT_NE(isql.finish(), 0);
}

} // namespace
