#include "platform/LinkCatalogs.h"

#include "ado/Error.h"
#include "ado/LinkFile.h"
#include "engine/store/Sqlite.h"
#include "os/Paths.h"
#include "support/Capabilities.h"
#include "support/OwnerAlone.h"
#include "support/TestWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr const char* kPath = "C:\\vabo\\Files\\locale.mdb";
constexpr const char* kText = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\vabo\\Files\\locale.mdb";

class LinkCatalogs : public testing::Test {
protected:
    LinkCatalogs() { fs::create_directories(file().parent_path()); }

    fs::path file() const { return workstation.driveC().real(kPath); }
    static int errorOf(const std::string& connection) {
        try {
            platform::linkCatalogs().open(connection);
        } catch (const ado::Error& error) {
            return error.number();
        }
        return 0;
    }

    static std::string descriptionOf(const std::string& path) {
        try {
            platform::linkCatalogs().open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path);
        } catch (const ado::Error& error) {
            return error.description();
        }
        return {};
    }

    support::TestWorkstation workstation{support::TestWorkstation::DriveC::Empty};
};

TEST_F(LinkCatalogs, ListTheTablesInTheOrderOfTheFile) {
    {
        ado::LinkFile made = ado::LinkFile::create(file());
        made.add("TABLE", "zeta", ado::Null{});
        made.add("LINK", "alfa", "ODBC;a");
    }
    const auto catalog = platform::linkCatalogs().open(kText);
    EXPECT_EQ(catalog->Count(), 2);
    const auto tables = catalog->Tables();
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0]->Type(), ado::Value("TABLE"));
    EXPECT_EQ(tables[0]->Name(), ado::Value("zeta"));
    EXPECT_EQ(tables[0]->ProviderString(), ado::Value(ado::Null{}));
    EXPECT_EQ(tables[1]->ProviderString(), ado::Value("ODBC;a"));
}

TEST_F(LinkCatalogs, WriteALinkIntoTheFileAtOnce) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    const auto catalog = platform::linkCatalogs().open(kText);
    catalog->Tables().at(0)->setProviderString("ODBC;b");
    EXPECT_EQ(catalog->Tables().at(0)->ProviderString(), ado::Value("ODBC;b"));
    EXPECT_EQ(ado::LinkFile(file()).provider(1), ado::Value("ODBC;b"));
}

TEST_F(LinkCatalogs, SeeANewTableAfterARefresh) {
    ado::LinkFile made = ado::LinkFile::create(file());
    made.add("LINK", "alfa", "ODBC;a");
    const auto catalog = platform::linkCatalogs().open(kText);
    EXPECT_EQ(catalog->Count(), 1);
    made.add("LINK", "beta", "ODBC;b");
    EXPECT_EQ(catalog->Count(), 1);
    catalog->Refresh();
    EXPECT_EQ(catalog->Count(), 2);
    EXPECT_EQ(catalog->Tables().size(), 2U);
}

TEST_F(LinkCatalogs, RaiseOfATableThatHasGone) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    const auto catalog = platform::linkCatalogs().open(kText);
    const auto table = catalog->Tables().at(0);
    engine::sqlite::Connection(file(), false).run("DELETE FROM tables");
    for (const auto& use : std::vector<std::function<void()>>{[&] { table->ProviderString(); },
                                                              [&] { table->setProviderString("ODBC;b"); },
                                                              [&] { table->RefreshProperties(); }}) {
        try {
            use();
            ADD_FAILURE() << "nothing was raised";
        } catch (const ado::Error& error) {
            EXPECT_EQ(error.number(), ado::kItemNotFound);
        }
    }
}

TEST_F(LinkCatalogs, RefuseOtherProvidersAndFilesThatAreNoCatalog) {
    ado::LinkFile::create(file());
    workstation.putFile("C:\\vabo\\Files\\vuoto.mdb", "");
    EXPECT_EQ(errorOf(kText), 0);
    EXPECT_EQ(errorOf("provider=MICROSOFT.JET.OLEDB.4.0;data source=c:/VABO/files/LOCALE.MDB;"), 0);
    EXPECT_EQ(errorOf("Provider=SQLOLEDB;Data Source=C:\\vabo\\Files\\locale.mdb"), ado::kProviderNotFound);
    EXPECT_EQ(errorOf("Data Source=C:\\vabo\\Files\\locale.mdb"), ado::kProviderNotFound);
    EXPECT_EQ(errorOf(""), ado::kProviderNotFound);
    for (const char* path : {"C:\\vabo\\Files\\manca.mdb", "C:\\vabo\\Files", "C:\\vabo\\Files\\vuoto.mdb", ""}) {
        EXPECT_EQ(errorOf(std::string("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path), ado::kUnspecified)
            << path;
    }
    EXPECT_EQ(descriptionOf("C:\\vabo\\Files\\manca.mdb"), "Could not find file.");
    EXPECT_EQ(descriptionOf("C:\\vabo\\Files"), "Could not find file.");
    EXPECT_EQ(descriptionOf("C:\\vabo\\Files\\vuoto.mdb"), "Unrecognized database format.");
    EXPECT_TRUE(fs::is_empty(workstation.driveC().real("C:\\vabo\\Files\\vuoto.mdb"))) << "and is left as it is";
}

TEST_F(LinkCatalogs, AreForTheirOwnerAndLeaveNoFilesBesideThem) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    platform::linkCatalogs().open(kText)->Tables().at(0)->setProviderString("ODBC;b");
    EXPECT_TRUE(support::isForOwnerAlone(file()));
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(file().parent_path())) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(names, ElementsAre("locale.mdb"));
}

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST_F(LinkCatalogs, RefuseADatabaseOfAnotherKindWithoutTouchingIt) {
    VABO_NEEDS(support::systemCapabilities().permissionBits);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(os::utf8Of(file()).c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE altro (id INTEGER)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    fs::permissions(file(), fs::perms::group_read, fs::perm_options::add);
    const std::string before = bytesOf(file());
    EXPECT_EQ(errorOf(kText), ado::kUnspecified);
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_NE(fs::status(file()).permissions() & fs::perms::group_read, fs::perms::none);
}

TEST_F(LinkCatalogs, ThatAnInstallerLeftReadableForAllAreForTheirOwnerOnceOpened) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    fs::permissions(file(), fs::perms::group_read | fs::perms::others_read, fs::perm_options::add);
    platform::linkCatalogs().open(kText);
    EXPECT_TRUE(support::isForOwnerAlone(file()));
}

TEST_F(LinkCatalogs, ThatAnotherProgramKeepsForItselfAreRefused) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(os::utf8Of(file()).c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr),
              SQLITE_OK);
    EXPECT_EQ(errorOf(kText), ado::kUnspecified);
    sqlite3_close(other);
    EXPECT_EQ(errorOf(kText), 0);
}

TEST_F(LinkCatalogs, AreNotMadeWhereATableIsInTheFileAlready) {
    ado::LinkFile::create(file()).add("LINK", "alfa", "ODBC;a");
    EXPECT_THROW(ado::LinkFile::create(file()), ado::Error);
    EXPECT_EQ(ado::LinkFile(file()).entries().size(), 1U);
}

class NoCatalogs : public platform::LinkCatalogs {
public:
    std::unique_ptr<platform::LinkCatalog> open(const std::string& /*connection*/) override { return nullptr; }
};

TEST_F(LinkCatalogs, AreThoseThatWereSet) {
    ado::LinkFile::create(file());
    platform::setLinkCatalogs(std::make_unique<NoCatalogs>());
    EXPECT_EQ(platform::linkCatalogs().open(kText), nullptr);
    platform::setLinkCatalogs(nullptr);
    EXPECT_NE(platform::linkCatalogs().open(kText), nullptr);
}

} // namespace
