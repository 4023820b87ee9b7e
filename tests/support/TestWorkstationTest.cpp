#include "support/TestWorkstation.h"

#include "ado/Conversions.h"
#include "ado/Drivers.h"
#include "ado/Recordset.h"
#include "state/variabili.h"
#include "support/Environment.h"
#include "support/TestedDriver.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using support::TestWorkstation;

TEST(TestWorkstation, HasTheSampleOnItsDriveC) {
    const TestWorkstation workstation;
    EXPECT_TRUE(workstation.driveC().isFile("C:\\vabo\\IndirizzoServer.txt"));
    EXPECT_TRUE(workstation.driveC().isFolder("C:\\vabo\\sedi"));
    EXPECT_EQ(workstation.row(support::kControlDatabase, "select count(*) from link_programma"),
              TestWorkstation::Row{"2"});
    EXPECT_NE(workstation.value(support::kCompany, "select count(*) from partitadoppia"), "0");
    EXPECT_NE(workstation.value(support::kOtherCompany, "select count(*) from AbilitazioneAccessi"), "0");
}

TEST(TestWorkstation, IsTheProgramsOwn) {
    const TestWorkstation workstation;
    EXPECT_EQ(platform::workstation().machineName, "POSTO-7");
    EXPECT_EQ(platform::workstation().programName, "vabo");
    ado::Connection connection;
    connection.Open(platform::workstation().driveC.firstLine("C:\\vabo\\IndirizzoServer.txt") +
                    "DATABase=" + support::kCompany);
    ado::Recordset rows;
    rows.Open("select count(*) as n from stati", connection);
    EXPECT_EQ(std::to_string(ado::toLong(rows["n"])),
              workstation.value(support::kCompany, "select count(*) from stati"));
}

TEST(TestWorkstation, ReachesItsServerByTheDriverOfTheRun) {
    const TestWorkstation workstation;
    const char* expected = support::testedDriver() == support::TestedDriver::Wire ? "odbc" : "embedded";
    for (const char* file : {"C:\\vabo\\IndirizzoServer.txt", "C:\\vabo\\Leggi_ServerLocal.txt"}) {
        const std::string text = workstation.driveC().firstLine(file);
        EXPECT_STREQ(ado::driverFor(ado::ConnectionString(text)).name(), expected) << file;
        EXPECT_NO_THROW(ado::Connection().Open(text)) << file;
    }
    EXPECT_EQ(workstation.driveC().firstLine("C:\\vabo\\NomeServer.txt"), workstation.serverName());
    EXPECT_EQ(workstation.driveC().firstLine("C:\\vabo\\NomeServerLocal.txt"), workstation.serverName());
}

TEST(TestWorkstation, OverTheWireNoFileNamesTheEmbeddedServer) {
    const TestWorkstation workstation;
    const bool embedded = support::testedDriver() == support::TestedDriver::Embedded;
    EXPECT_EQ(fs::is_directory(ado::instanceFolder(support::kLocalServerName)), embedded);
    int naming = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(workstation.driveC().real("C:\\vabo"))) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const auto text = workstation.fileText("C:\\vabo\\" + entry.path().filename().string());
        naming += text->find(support::kLocalServerName) != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(naming > 0, embedded);
}

TEST(TestWorkstation, IsNewForEveryTest) {
    {
        const TestWorkstation first;
        first.run(support::kCompany, "delete from Comuni");
        EXPECT_EQ(first.value(support::kCompany, "select count(*) from Comuni"), "0");
        first.putFile("C:\\vabo\\x.txt", "x");
    }
    const TestWorkstation second;
    EXPECT_NE(second.value(support::kCompany, "select count(*) from Comuni"), "0");
    EXPECT_EQ(second.fileText("C:\\vabo\\x.txt"), std::nullopt);
}

TEST(TestWorkstation, CanBeEmpty) {
    const TestWorkstation workstation(TestWorkstation::DriveC::Empty);
    EXPECT_TRUE(fs::is_empty(workstation.driveC().root()));
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServer.txt"), std::nullopt);
    workstation.putFile("C:\\vabo\\NomeServer.txt", "a\nb");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NOMESERVER.txt"), "a\nb");
}

TEST(TestWorkstation, StartsWithTheGlobalsAtZeroAndLeavesNothingBehind) {
    vabo::NomeAzienda = "left over";
    fs::path root;
    {
        const TestWorkstation workstation;
        EXPECT_EQ(vabo::NomeAzienda, "");
        vabo::NomeAzienda = "taken up";
        root = workstation.driveC().root();
    }
    EXPECT_EQ(vabo::NomeAzienda, "");
    EXPECT_FALSE(fs::exists(root));
    EXPECT_EQ(platform::workstation().driveC.root(), support::nowhere());
}

TEST(TestWorkstation, NullsAndSeveralRowsAreRead) {
    const TestWorkstation workstation;
    workstation.run(support::kCompany, "create table Prova (id int, Testo nvarchar(9) null)");
    workstation.run(support::kCompany, "insert into Prova values (1, N'città'), (2, NULL)");
    const std::vector<TestWorkstation::Row> rows{{"1", "città"}, {"2", "NULL"}};
    EXPECT_EQ(workstation.rows(support::kCompany, "select id, Testo from Prova order by id"), rows);
}
