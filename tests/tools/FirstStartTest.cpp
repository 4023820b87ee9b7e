#include "start/FirstStart.h"

#include "support/DialogScript.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace fs = std::filesystem;
using support::TestWorkstation;

namespace {

class FirstStart : public testing::Test {
protected:
    fs::path vabo() const { return workstation.driveC().root() / "vabo"; }
    std::string offer() const {
        return "Questa postazione non è ancora configurata: manca il file che indica il server,\n" +
               (vabo() / "IndirizzoServer.txt").string() +
               "\n\nPreparare una postazione di prova, con un server proprio e due aziende "
               "di esempio?\n\nSi entra con il nome utente amministratore e la password primavera.";
    }

    const TestWorkstation workstation{TestWorkstation::DriveC::Empty};
    support::DialogScript script;
};

} // namespace

TEST_F(FirstStart, YesLaysTheSampleDownOnDriveC) {
    ASSERT_FALSE(start::isSetUp());
    script.expectQuestion(offer(), true);
    EXPECT_TRUE(start::setUp());
    EXPECT_TRUE(start::isSetUp());
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NomeServer.txt"), "POSTO_7\\sqlexpress\r\n");
    EXPECT_EQ(workstation.value("VaBoDatiAurora", "select PaswUtente from AbilitazioneAccessi where NomeUtente = "
                                                  "'amministratore'"),
              "primavera");
}

TEST_F(FirstStart, NoLeavesDriveCAsItIs) {
    script.expectQuestion(offer(), false);
    EXPECT_FALSE(start::setUp());
    EXPECT_TRUE(fs::is_empty(workstation.driveC().root()));
    EXPECT_FALSE(start::isSetUp());
}

TEST_F(FirstStart, AnInterruptedSampleIsOfferedAndMadeAgain) {
    workstation.putFile("C:\\vabo\\provision.txt",
                        "vabo-provision 1, unfinished: --terminal POSTO_7 --ledger 20000 --accounts 0\r\n");
    ASSERT_FALSE(start::isSetUp());
    script.expectQuestion(offer(), true);
    EXPECT_TRUE(start::setUp());
    EXPECT_TRUE(start::isSetUp());
}

TEST_F(FirstStart, AFolderOfSomebodyElseIsLeftAloneAndThatIsSaid) {
    workstation.putFile("C:\\vabo\\NomeServer.txt", "ALTRO\r\n");
    script.expectQuestion(offer(), true);
    script.expectMessage(vabo().string() + " was made by somebody else and is left alone", platform::Icon::Stop);
    EXPECT_FALSE(start::setUp());
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NomeServer.txt"), "ALTRO\r\n");
    EXPECT_FALSE(start::isSetUp());
}

TEST_F(FirstStart, AWorkstationWithTheServersAddressIsSetUp) {
    workstation.putFile("C:\\Vabo\\indirizzoserver.txt", "Driver=SQL Server;Server=s;UID=u;PWD=p;\r\n");
    EXPECT_TRUE(start::isSetUp());
}

TEST_F(FirstStart, AConsoleThatDoesNotStartIsNamedWithTheSystemsReason) {
    script.expectMessage("Il programma non si avvia: /opt/vabo/vabo\n" +
                             std::make_error_code(std::errc::permission_denied).message(),
                         platform::Icon::Stop);
    start::tellNotStarted("/opt/vabo/vabo", std::make_error_code(std::errc::permission_denied));
}
