#include "platform/Workstation.h"

#include "ado/Drivers.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <QSysInfo>

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace {

using Environment = std::map<std::string, std::string>;
using Facts = std::map<std::string, std::string>;

/// The output of the probe when it is started with this environment.
Facts probe(Environment environment) {
    for (const char* name : {"VABO_DRIVE_C", "XDG_DATA_HOME", "LC_ALL", "LANG", "LC_NUMERIC", "LANGUAGE"}) {
        environment.try_emplace(name, "");
    }
    support::HelperProcess helper("workstation_probe", {}, environment);
    std::istringstream lines(helper.readAll());
    Facts facts;
    for (std::string line; std::getline(lines, line);) {
        facts[line.substr(0, line.find(' '))] = line.substr(line.find(' ') + 1);
    }
    return facts;
}

} // namespace

TEST(Workstation, TheTerminalIsTheHostUpToItsFirstDot) {
    EXPECT_EQ(platform::terminalName("srv-01.example.org"), "srv-01");
    EXPECT_EQ(platform::terminalName("srv-01"), "srv-01");
    EXPECT_EQ(platform::terminalName("srv-01."), "srv-01");
    EXPECT_EQ(platform::terminalName(".example.org"), "");
    EXPECT_EQ(platform::terminalName(""), "");
}

TEST(Workstation, DriveCIsAskedOfTheEnvironmentFirst) {
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "/srv/c"}, {"XDG_DATA_HOME", "/data"}, {"HOME", "/home/anna"}})["drive"],
              "/srv/c");
    EXPECT_EQ(probe({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/anna"}})["drive"], "/data/vabo/c");
    EXPECT_EQ(probe({{"XDG_DATA_HOME", "not/absolute"}, {"HOME", "/home/anna"}})["drive"],
              "/home/anna/.local/share/vabo/c");
    EXPECT_EQ(probe({{"HOME", "/home/anna"}})["drive"], "/home/anna/.local/share/vabo/c");
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "/srv/./x/../c"}})["drive"], "/srv/c");
}

TEST(Workstation, ARelativeDriveCIsMadeAbsolute) {
    const std::string drive = probe({{"VABO_DRIVE_C", "some/c"}})["drive"];
    EXPECT_EQ(drive, (std::filesystem::current_path() / "some/c").string());
}

TEST(Workstation, OfARealMachineIsReadAtTheFirstQuestion) {
    Facts facts = probe({{"VABO_DRIVE_C", "/srv/c"}, {"LC_ALL", "C"}});
    EXPECT_EQ(facts["machine"], platform::terminalName(QSysInfo::machineHostName().toStdString()));
    EXPECT_EQ(facts["program"], "workstation_probe");
    EXPECT_EQ(facts["product"], "VaBo");
    EXPECT_EQ(facts["version"], VABO_VERSION);
    EXPECT_EQ(facts["instance"], "/srv/c/vabo/istanze/POSTO$sqlexpress");
}

TEST(Workstation, RegionalSettingsAreTheSystemsAndItalianWithoutAny) {
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
