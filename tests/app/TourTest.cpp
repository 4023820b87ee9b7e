#include "support/Capabilities.h"
#include "support/DataSourceStore.h"
#include "support/Environment.h"
#include "support/Processes.h"
#include "support/TestWorkstation.h"

#include <QImage>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using support::HelperProcess;

QImage picture(const std::filesystem::path& folder, const std::string& name) {
    return QImage(QString::fromStdString((folder / (name + ".png")).string()));
}

void expectThreeKinds(const std::filesystem::path& folder, const std::string& name) {
    const QImage plain = picture(folder, name);
    ASSERT_FALSE(plain.isNull()) << name;
    EXPECT_GT(picture(folder, name + "-200").width(), plain.width()) << name;
    const QImage dark = picture(folder, name + "-scuro");
    EXPECT_EQ(dark.size(), plain.size()) << name;
    EXPECT_NE(dark, plain) << name;
}

TEST(Tour, LeavesAPictureOfEveryFormInThreeKinds) {
    VABO_NEEDS(support::systemCapabilities().sourcesOfStartedPrograms);
    const support::TestWorkstation workstation;
    const support::TemporaryFolder folder;
    const auto users = folder.path() / "odbc.ini";
    support::useDataSourceFile(users);
    HelperProcess tour("vabo-tour", {workstation.driveC().root().string(), folder.path().string()});
    ASSERT_EQ(tour.finish(), 0);
    if (support::systemCapabilities().dataSourcesInAFile) {
        EXPECT_EQ(support::dataSourceText(users), "") << "the user's own data sources";
        EXPECT_NE(workstation.dataSources(), "");
    }
    for (const char* name : {"01-avvio",
                             "02-login",
                             "03-login-password",
                             "04-messaggio",
                             "05-console",
                             "06-console-elenco",
                             "07-collegamenti",
                             "17-registra-aziende",
                             "18-registra-aziende-fonte",
                             "19-blocco-progetto",
                             "19-blocco-progetto-scelta",
                             "19-blocco-progetto-corsa",
                             "20-blocco-sede",
                             "20-blocco-sede-scelta",
                             "20-blocco-sede-domanda",
                             "20-blocco-sede-corsa",
                             "36-utenti",
                             "37-utenti-scelto",
                             "38-utenti-tutti-i-diritti",
                             "51-indirizzo-server",
                             "51-indirizzo-server-avviso",
                             "51-indirizzo-server-cartella",
                             "51-indirizzo-server-conferma"}) {
        expectThreeKinds(folder.path(), name);
        EXPECT_GE(picture(folder.path(), std::string(name) + "-200").height(),
                  2 * picture(folder.path(), name).height() - 2)
            << name;
    }
    // These fill the screen, which is less than twice as large at 200 %.
    for (const char* name : {"21-sezionali-iva",
                             "22-sezionali-iva-modifica",
                             "23-stati",
                             "24-stati-modifica",
                             "25-stati-aree",
                             "26-condizioni",
                             "26-condizioni-modifica",
                             "26-condizioni-en",
                             "26-condizioni-es",
                             "26-condizioni-po",
                             "26-condizioni-fr",
                             "27-condizioni-decorrenze",
                             "28-decorrenze",
                             "28-decorrenze-modifica",
                             "28-decorrenze-en",
                             "28-decorrenze-es",
                             "28-decorrenze-po",
                             "28-decorrenze-fr",
                             "30-dati-azienda",
                             "31-dati-azienda-comuni",
                             "32-dati-azienda-comune",
                             "33-buste-paga",
                             "34-buste-paga-tipo",
                             "35-buste-paga-elenco",
                             "40-comuni",
                             "41-comuni-modifica",
                             "42-comuni-stati",
                             "50-sede-centrale",
                             "50-sede-centrale-scelta"}) {
        expectThreeKinds(folder.path(), name);
    }
}

TEST(Tour, FailsWhereAFormCanNotBeShown) {
    VABO_NEEDS(support::systemCapabilities().sourcesOfStartedPrograms);
    const support::TestWorkstation workstation;
    workstation.run(support::kCompany, "delete from AbilitazioneAccessi");
    const support::TemporaryFolder folder;
    HelperProcess tour("vabo-tour", {workstation.driveC().root().string(), folder.path().string()});
    EXPECT_NE(tour.finish(), 0) << "without users there is no login to be seen";
}

TEST(Tour, SaysHowItIsUsed) {
    HelperProcess tour("vabo-tour");
    EXPECT_EQ(tour.finish(), 2);
}

} // namespace
