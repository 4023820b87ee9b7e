#include "ado/Drivers.h"

#include "ado/Connection.h"
#include "ado/ConnectionString.h"
#include "ado/ExpectError.h"
#include "engine/store/Instance.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

namespace ado {
namespace {

namespace fs = std::filesystem;

using test::errorOf;
using test::raises;

class Drivers : public ::testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(instances / "SEDE$sqlexpress");
        fs::create_directory(folder.path() / "fuori");
        setEmbeddedHome({[this] { return instances; }, [](std::string_view path) { return fs::path(path); }});
    }
    void TearDown() override { setEmbeddedHome({}); }

    static std::string driverOf(const std::string& text) { return driverFor(ConnectionString(text)).name(); }

    support::TemporaryFolder folder;
    fs::path instances = folder.path() / "istanze";
};

TEST_F(Drivers, AServerWithAFolderIsTheEmbeddedOne) {
    EXPECT_EQ(driverOf("Server=SEDE\\sqlexpress"), "embedded");
    EXPECT_EQ(driverOf("Driver=SQL Server;server = sede\\SQLEXPRESS ;UID=sa"), "embedded");
    EXPECT_EQ(driverOf("Provider=SQLOLEDB;Data Source=SEDE\\sqlexpress"), "embedded");
    EXPECT_EQ(instanceFolder("sede\\SqlExpress"), instances / "SEDE$sqlexpress");
    EXPECT_EQ(instanceFolder("ALTRA\\x"), instances / "ALTRA$x");
}

TEST_F(Drivers, AnyOtherServerGoesOverTheNetwork) {
    for (const char* text : {"Server=ALTRA", "Server=", "", "DATABase=x", "Server=SEDE", "Server=SEDE\\sqlexpress2"}) {
        EXPECT_EQ(driverOf(text), "odbc") << text;
    }
}

TEST_F(Drivers, AServerThatIsNotThereIsOutOfReach) {
    const auto error = errorOf([&] { Connection().Open("Server=127.0.0.1,9;UID=sa;PWD=x"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kUnspecified);
    EXPECT_EQ(error->sqlState(), "08001");
    EXPECT_EQ(error->description(), "Server does not exist or access denied.");
}

TEST_F(Drivers, NoNameLeadsOutOfTheFolderOfTheInstances) {
    using namespace std::string_literals;
    for (const std::string& server :
         {"..\\fuori"s, "../fuori"s, ".."s, "."s, "..\\..\\etc"s, "/tmp"s, "a/../../fuori"s, "x\0y"s, "\0"s, "..\0"s}) {
        const fs::path found = instanceFolder(server);
        EXPECT_EQ(found.parent_path(), instances) << server;
        EXPECT_NE(found.filename(), "..") << server;
        EXPECT_NE(found.filename(), ".") << server;
        EXPECT_EQ(found.string().find('\0'), std::string::npos) << server;
        EXPECT_NE(driverOf("Server={" + server + "}"), "embedded") << server;
    }
}

TEST_F(Drivers, AProviderThatNobodyServesIsNotFound) {
    for (const char* provider : {"Microsoft.Jet.OLEDB.4.0", "qualcosa"}) {
        const auto error = errorOf(
            [&] { Connection().Open(std::string("Provider=") + provider + ";Data Source=C:\\vabo\\Files\\a.mdb;"); });
        ASSERT_TRUE(error) << provider;
        EXPECT_EQ(error->number(), kProviderNotFound);
        EXPECT_EQ(error->description(), "Provider cannot be found. It may not be properly installed.");
    }
}

TEST_F(Drivers, AnUnknownKindOfSecurityIsRefused) {
    EXPECT_TRUE(raises(kMultipleStep, [] {
        driverOf("Provider=SQLOLEDB;Data Source=SEDE\\sqlexpress;Integrated Security=SSPIDATABase=vabodati");
    }));
    for (const char* known : {"SSPI", "sspi", "true", "Yes", "false", "no"}) {
        EXPECT_EQ(driverOf(std::string("Server=SEDE\\sqlexpress;Integrated Security=") + known), "embedded");
    }
}

TEST_F(Drivers, WithoutAHomeThereIsNoEmbeddedServer) {
    setEmbeddedHome({});
    EXPECT_EQ(driverOf("Server=SEDE\\sqlexpress"), "odbc");
}

} // namespace
} // namespace ado
