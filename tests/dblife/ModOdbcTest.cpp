#include "dblife/modODBC.h"

#include "support/RecordedDataSources.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;
using Texts = std::vector<std::string>;

class ModOdbc : public testing::Test {
protected:
    static std::int32_t enter(std::int16_t request, std::int32_t kind, const std::string& name = "Tlv_server") {
        return RegistraOdbc(request, kind, name, "VaBoDatiAurora", "Dati Aurora", "10.0.0.7,1444", "sa", "segreta");
    }

    support::RecordedDataSources registry;
};

TEST_F(ModOdbc, RegistersTheDatabaseAndThenConfiguresTheSource) {
    EXPECT_EQ(enter(kAggiungi, kTipoSqlServer), 1);
    EXPECT_EQ(enter(kConfigura, kTipoSqlServer), 1);
    const std::string registered = "register Tlv_server, SQL Server: Description=Dati "
                                   "Aurora|OemToAnsi=No|SERVER=10.0.0.7,1444|Database=VaBoDatiAurora";
    const std::string attributes =
        ", SQL Server: DSN=Tlv_server~Description=Dati Aurora~SERVER=10.0.0.7,1444~DBQ=VaBoDatiAurora~";
    EXPECT_EQ(registry.calls(), (Texts{registered, "configure 1" + attributes, registered, "configure 2" + attributes}))
        << "user and password go nowhere";
}

TEST_F(ModOdbc, AnAccessDatabaseIsConfiguredForItsDriverAndRegisteredForTheServers) {
    enter(kAggiungi, kTipoAccess);
    ASSERT_EQ(registry.calls().size(), 2U);
    EXPECT_TRUE(registry.calls()[0].starts_with("register Tlv_server, SQL Server: ")) << registry.calls()[0];
    EXPECT_TRUE(registry.calls()[1].starts_with("configure 1, Microsoft Access Driver (*.mdb): DSN=Tlv_server~"))
        << registry.calls()[1];
}

TEST_F(ModOdbc, OfANameThirtyCharactersCount) {
    const struct {
        std::string given, taken;
    } cases[] = {
        {"012345678901234567890123456789", "012345678901234567890123456789"},
        {"0123456789012345678901234567890", "012345678901234567890123456789"},
        {"Società_cooperativa_perché_lì_è", "Società_cooperativa_perché_lì_"},
        {"", ""},
    };
    for (const auto& one : cases) {
        registry.forget();
        enter(kAggiungi, kTipoSqlServer, one.given);
        ASSERT_EQ(registry.calls().size(), 2U);
        EXPECT_TRUE(registry.calls()[0].starts_with("register " + one.taken + ", SQL Server: ")) << registry.calls()[0];
        EXPECT_TRUE(registry.calls()[1].starts_with("configure 1, SQL Server: DSN=" + one.taken + "~Description="))
            << registry.calls()[1];
    }
}

TEST_F(ModOdbc, NoValueBringsAKeyOfItsOwn) {
    const std::string zero(1, '\0');
    RegistraOdbc(kAggiungi, kTipoSqlServer, "Tlv_\rserver", "Va\rBo" + zero + "DBQ=x",
                 "Dati Onlus\rDatabase=master\nUID=sa" + zero + "DSN=altra;PWD=x", "10.0.0.7\r\x7fUID=sa", "", "");
    EXPECT_EQ(registry.calls(),
              (Texts{"register Tlv_ server, SQL Server: Description=Dati Onlus Database=master UID=sa "
                     "DSN=altra;PWD=x|OemToAnsi=No|SERVER=10.0.0.7  UID=sa|Database=Va Bo DBQ=x",
                     "configure 1, SQL Server: DSN=Tlv_ server~Description=Dati Onlus Database=master UID=sa "
                     "DSN=altra;PWD=x~SERVER=10.0.0.7  UID=sa~DBQ=Va Bo DBQ=x~"}));
}

TEST_F(ModOdbc, AFailedRegistrationIsZeroAndNothingIsConfigured) {
    registry.refusesRegistration = true;
    EXPECT_EQ(enter(kAggiungi, kTipoSqlServer), 0);
    ASSERT_EQ(registry.calls().size(), 1U);
    EXPECT_TRUE(registry.calls()[0].starts_with("register ")) << registry.calls()[0];
}

TEST_F(ModOdbc, TheResultIsThatOfTheConfiguration) {
    registry.result = 0;
    EXPECT_EQ(enter(kConfigura, kTipoSqlServer), 0);
    EXPECT_EQ(registry.calls().size(), 2U);
}

TEST_F(ModOdbc, TwiceIsFirstToAddAndThenToConfigureWithTheServersNameReadEachTime) {
    int readings = 0;
    RegistraDueVolte({.NomeDsn = "Tlv_Temp", .Database = "VaBoDatiTemp", .Descrizione = "Dati"},
                     [&] { return "nome" + std::to_string(++readings); });
    EXPECT_EQ(registry.calls(),
              (Texts{"register Tlv_Temp, SQL Server: Description=Dati|OemToAnsi=No|SERVER=nome1|Database=VaBoDatiTemp",
                     "configure 1, SQL Server: DSN=Tlv_Temp~Description=Dati~SERVER=nome1~DBQ=VaBoDatiTemp~",
                     "register Tlv_Temp, SQL Server: Description=Dati|OemToAnsi=No|SERVER=nome2|Database=VaBoDatiTemp",
                     "configure 2, SQL Server: DSN=Tlv_Temp~Description=Dati~SERVER=nome2~DBQ=VaBoDatiTemp~"}));
}

TEST_F(ModOdbc, TwiceGoesOnAfterAFailure) {
    registry.refusesRegistration = true;
    RegistraDueVolte({.NomeDsn = "Tlv_Temp", .Database = "VaBoDatiTemp", .Descrizione = "Dati", .Server = "uno"});
    EXPECT_EQ(registry.calls().size(), 2U) << "one for each request";
}

} // namespace
