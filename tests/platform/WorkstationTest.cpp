#include "platform/Workstation.h"

#include "ado/Drivers.h"
#include "platform/ProbedWorkstation.h"
#include "support/Capabilities.h"
#include "support/TemporaryFolder.h"

#include <QString>
#include <QSysInfo>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using platform::Facts;
using platform::probe;

TEST(Workstation, TheTerminalIsTheHostUpToItsFirstDot) {
    EXPECT_EQ(platform::terminalName("srv-01.example.org"), "srv-01");
    EXPECT_EQ(platform::terminalName("srv-01"), "srv-01");
    EXPECT_EQ(platform::terminalName("srv-01."), "srv-01");
    EXPECT_EQ(platform::terminalName(".example.org"), "");
    EXPECT_EQ(platform::terminalName(""), "");
}

TEST(Workstation, ARelativeDriveCIsMadeAbsolute) {
    const std::string drive = probe({{"VABO_DRIVE_C", "some/c"}})["drive"];
    EXPECT_EQ(drive, (fs::current_path() / "some" / "c").string());
}

TEST(Workstation, OfARealMachineIsReadAtTheFirstQuestion) {
    Facts facts = probe({{"VABO_DRIVE_C", "/srv/c"}, {"LC_ALL", "C"}});
    EXPECT_EQ(facts["machine"], platform::terminalName(QSysInfo::machineHostName().toStdString()));
    EXPECT_EQ(facts["program"], "workstation_probe");
    EXPECT_EQ(facts["product"], "VaBo");
    EXPECT_EQ(facts["version"], VABO_VERSION);
    EXPECT_EQ(fs::path(facts["instance"]), fs::absolute("/srv/c/vabo/istanze/POSTO$sqlexpress"));
}

TEST(Workstation, RegionalSettingsAreTheSystemsAndItalianWithoutAny) {
    VABO_NEEDS(support::systemCapabilities().localeByEnvironment);
    EXPECT_EQ(probe({{"LC_ALL", "C"}})["number"], ",.");
    EXPECT_EQ(probe({{"LC_ALL", "POSIX"}})["number"], ",.");
    EXPECT_EQ(probe({{"LC_ALL", "C.UTF-8"}})["number"], ",.");
    EXPECT_EQ(probe({})["number"], ",.");
    EXPECT_EQ(probe({{"LC_ALL", "en_US.UTF-8"}})["number"], ".,");
    EXPECT_EQ(probe({{"LC_ALL", "it_IT.UTF-8"}})["number"], ",.");
    EXPECT_EQ(probe({{"LANG", "en_GB.UTF-8"}})["number"], ".,");
}

TEST(Workstation, TheDataLayerFindsItsInstancesOnTheDriveWhateverTheCase) {
    const support::TemporaryFolder folder;
    std::filesystem::create_directories(folder.path() / "Vabo" / "Istanze" / "POSTO_7$SQLEXPRESS");
    platform::Workstation workstation = platform::workstation();
    workstation.driveC = platform::DriveC(folder.path());
    platform::setWorkstation(workstation);
    platform::connectDataLayer();
    EXPECT_EQ(ado::instanceFolder("posto_7\\sqlexpress"), folder.path() / "Vabo/Istanze/POSTO_7$SQLEXPRESS");
}
