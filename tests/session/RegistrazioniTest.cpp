// The data sources that are registered when a company is taken up.

#include "dblife/RegistraFixture.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/Capabilities.h"

#include <gmock/gmock.h>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;
using Texts = std::vector<std::string>;

class Registrazioni : public SessionTest {
protected:
    void open(const std::string& database) const {
        double id = idOf(database);
        ApriAzienda(id);
    }
    static Texts joined(std::initializer_list<Texts> parts) {
        Texts all;
        for (const Texts& part : parts) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }
    /// The three of a company, in their order.
    Texts threeOf(const std::string& database, const std::string& description) const {
        const std::string local = workstation.driveC().firstLine("C:\\vabo\\NomeServerLocal.txt");
        return joined({registrazione("Tlv_server", database, description, workstation.serverName()),
                       registrazione("Tlv_Temp", "VaBoDatiTemp", description, local),
                       registrazione("Tlv_Azienda", "VaBoDatiAzienda", description, local)});
    }
};

TEST_F(Registrazioni, AreThreeOfTheCompanyTakenUpEachAddedAndThenConfigured) {
    const support::RecordedDataSources registry;
    open(kOtherCompany);
    EXPECT_EQ(registry.calls(), threeOf(kOtherCompany, "Dati Fondazione Il Ponte"));
}

TEST_F(Registrazioni, FollowEachCompany) {
    support::RecordedDataSources registry;
    open(kOtherCompany);
    registry.forget();
    open(kCompany);
    EXPECT_EQ(registry.calls(), threeOf(kCompany, "Dati Associazione Aurora"));
}

TEST_F(Registrazioni, AreThoseOfTheCompanyThatTookOver) {
    drop(kOtherCompany);
    const support::RecordedDataSources registry;
    open(kOtherCompany);
    EXPECT_EQ(registry.calls(), threeOf(kCompany, "Dati Associazione Aurora"));
}

TEST_F(Registrazioni, OnANewWorkstationTheLocalServersNameIsWholeFromTheSecondReadingOn) {
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    const support::RecordedDataSources registry;
    open(kCompany);
    const Texts ofTemp(registry.calls().begin() + 4, registry.calls().begin() + 8);
    EXPECT_THAT(ofTemp[0], testing::HasSubstr("|SERVER=POSTO_7|"));
    EXPECT_THAT(ofTemp[1], testing::HasSubstr("~SERVER=POSTO_7~"));
    EXPECT_THAT(ofTemp[2], testing::HasSubstr("|SERVER=POSTO_7\\sqlexpress|"));
    EXPECT_THAT(ofTemp[3], testing::HasSubstr("~SERVER=POSTO_7\\sqlexpress~"));
    EXPECT_THAT(registry.calls()[8], testing::HasSubstr("|SERVER=POSTO_7\\sqlexpress|"));
}

TEST_F(Registrazioni, DontHappenWhereNoCompanyIsTakenUp) {
    noCompanyDatabases();
    double id = idOf(kCompany);
    const support::RecordedDataSources registry;
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_EQ(registry.calls(), Texts{});
}

TEST_F(Registrazioni, DontHappenForARowWithoutADatabase) {
    open(kCompany);
    const double id = idOf(kOtherCompany);
    control("update link_programma set dbname = '' where id = " + textOf(id));
    const support::RecordedDataSources registry;
    double chosen = id;
    ApriAzienda(chosen);
    EXPECT_EQ(IdAzienda, id);
    EXPECT_EQ(registry.calls(), Texts{});
}

TEST_F(Registrazioni, ThatFailLeaveTheCompanyTakenUp) {
    setTerminal("", idOf(kCompany));
    support::RecordedDataSources registry;
    registry.refusesRegistration = true;
    open(kCompany);
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}})) << "what follows is done";
    EXPECT_EQ(registry.calls().size(), 6U) << "each is tried";
}

TEST_F(Registrazioni, TakeNoKeyFromACompanysName) {
    control("update link_programma set NomeAzienda = 'Onlus\rDatabase=master;UID=sa\rPWD=x\nPort=9' "
            "where dbname = 'VaBoDatiAurora'");
    open(kCompany);
    const std::string text = workstation.dataSources();
    EXPECT_THAT(text, testing::HasSubstr("\nDescription=Dati Onlus Database=master;UID=sa PWD=x Port=9\n"));
    for (const char* line : {"\nDatabase=VaBoDatiAurora\n", "\nDatabase=VaBoDatiTemp\n"}) {
        EXPECT_THAT(text, testing::HasSubstr(line));
    }
    for (const char* line : {"\nDatabase=master", "\nUID=", "\nPWD=", "\nPort="}) {
        EXPECT_THAT(text, testing::Not(testing::HasSubstr(line)));
    }
}

TEST_F(Registrazioni, StandInTheUsersFile) {
    VABO_NEEDS(support::systemCapabilities().storedSourcesAreFound);
    open(kCompany);
    open(kOtherCompany);
    const auto names = platform::dataSources().names();
    ASSERT_GE(names.size(), 3U);
    EXPECT_THAT(Texts(names.begin(), names.begin() + 3), testing::ElementsAre("Tlv_server", "Tlv_Temp", "Tlv_Azienda"));
    const std::string text = workstation.dataSources();
    EXPECT_THAT(text, testing::HasSubstr("\nDatabase=VaBoDatiPonte\n"));
    EXPECT_THAT(text, testing::HasSubstr("\nDescription=Dati Fondazione Il Ponte\n"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("Aurora")));
}

} // namespace
