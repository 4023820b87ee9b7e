#include "engine/store/Instance.h"

#include "engine/ExpectError.h"
#include "engine/store/RowLocks.h"
#include "engine/store/Sqlite.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

namespace engine {
namespace {

namespace fs = std::filesystem;

class AnInstance : public testing::Test {
protected:
    /// `C:\a\b` lies under the folder `c`.
    InstanceOptions options() const {
        return {[drive = folder.path() / "c"](std::string_view path) {
            std::string local(path.substr(path.find(':') + 1));
            std::replace(local.begin(), local.end(), '\\', '/');
            return drive / fs::path(local).relative_path();
        }};
    }

    Instance::Option option(const Instance& of, const std::string& name) {
        const auto all = of.options();
        return *std::find_if(all.begin(), all.end(), [&](const Instance::Option& o) { return o.name == name; });
    }

    bool databaseOption(const std::string& name) {
        const auto all = instance->databaseOptions("X");
        return std::find_if(all.begin(), all.end(), [&](const auto& o) { return o.first == name; })->second;
    }

    support::TemporaryFolder folder;
    fs::path home = folder.path() / "istanze" / "server$SQLEXPRESS";
    std::shared_ptr<Instance> instance = Instance::create(home, options());
};

TEST_F(AnInstance, BelongsToItsOwner) {
    EXPECT_TRUE(support::isForOwnerAlone(home));
    EXPECT_TRUE(support::isForOwnerAlone(home / "instance.db"));
    const DatabaseEntry made = instance->createDatabase("X", "", "");
    EXPECT_TRUE(support::isForOwnerAlone(made.file));
}

TEST_F(AnInstance, ThatIsMissingCannotBeOpened) {
    EXPECT_THROW(Instance::open(folder.path() / "nowhere", options()), fs::filesystem_error);
    fs::create_directory(folder.path() / "empty");
    EXPECT_THROW(Instance::open(folder.path() / "empty", options()), fs::filesystem_error);
    EXPECT_FALSE(fs::exists(folder.path() / "empty" / "instance.db"));
}

TEST_F(AnInstance, HasTheServersOwnDatabases) {
    const std::vector<DatabaseEntry> all = instance->databases();
    ASSERT_EQ(all.size(), 4U);
    const char* names[] = {"master", "tempdb", "model", "msdb"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(all[i].id, static_cast<int>(i) + 1);
        EXPECT_EQ(all[i].name, names[i]);
        EXPECT_EQ(all[i].created.size(), std::string("2004-03-07 10:11:12.000").size());
        sqlite::Connection connection(all[i].file, false);
        connection.run("CREATE TABLE t (a)");
    }
}

TEST_F(AnInstance, MakesADatabaseUnderABareNameInItself) {
    const DatabaseEntry made =
        instance->createDatabase("VaBoDatiAzienda", "VaBoDatiAzienda.mdf", "VaBoDatiAzienda.ldf");
    EXPECT_EQ(made.id, 5);
    EXPECT_EQ(made.file, home / "VaBoDatiAzienda.mdf");
    EXPECT_EQ(made.serverPath, (home / "VaBoDatiAzienda.mdf").string());
    ASSERT_TRUE(instance->database("vabodatiazienda"));
    EXPECT_EQ(instance->database("vabodatiazienda")->name, "VaBoDatiAzienda");
    sqlite::Connection(made.file, false).run("CREATE TABLE t (a)");
}

TEST_F(AnInstance, MakesADatabaseWhereTheServersPathLies) {
    fs::create_directories(folder.path() / "c" / "vabo" / "sedi");
    const std::string path = "C:\\vabo\\sedi\\X.mdf";
    const DatabaseEntry made = instance->createDatabase("X", path, "C:\\vabo\\sedi\\X.ldf");
    EXPECT_EQ(made.file, folder.path() / "c" / "vabo" / "sedi" / "X.mdf");
    EXPECT_EQ(made.serverPath, path);
    EXPECT_TRUE(fs::exists(made.file));
    EXPECT_EQ(instance->mapPath(path), made.file);
}

TEST_F(AnInstance, MakesUpAFileNameWhereNoneIsGiven) {
    EXPECT_EQ(instance->createDatabase("X", "", "").file, home / "X.mdf");
    EXPECT_EQ(instance->createDatabase("a/b\\c", "", "").file, home / "a_b_c.mdf");
}

TEST_F(AnInstance, RefusesAFolderThatIsMissing) {
    const std::string error = "5133 Directory lookup for the file \"C:\\vabo\\sedi\\X.mdf\" failed with the operating "
                              "system error 2(The system cannot find the file specified.).";
    EXPECT_EQ(errorOf([&] { instance->createDatabase("X", "C:\\vabo\\sedi\\X.mdf", ""); }), error);
    EXPECT_FALSE(instance->database("X"));
    EXPECT_FALSE(fs::exists(folder.path() / "c"));
    EXPECT_EQ(errorNumberOf([&] { instance->createDatabase("X", "X.mdf", "C:\\vabo\\X.ldf"); }), 5133);
    EXPECT_FALSE(fs::exists(home / "X.mdf"));
}

TEST_F(AnInstance, RefusesANameItKnows) {
    instance->createDatabase("VaBoDatiTemp", "", "");
    EXPECT_EQ(errorOf([&] { instance->createDatabase("VABODATITEMP ", "other.mdf", ""); }),
              "1801 Database 'VABODATITEMP ' already exists. Choose a different database name.");
    EXPECT_EQ(errorNumberOf([&] { instance->createDatabase("Master", "", ""); }), 1801);
    EXPECT_FALSE(fs::exists(home / "other.mdf"));
}

TEST_F(AnInstance, RefusesAFileThatIsThere) {
    std::ofstream(home / "X.mdf") << "mine";
    EXPECT_EQ(errorOf([&] { instance->createDatabase("X", "X.mdf", ""); }),
              "5170 Cannot create file 'X.mdf' because it already exists. Change the file path or the file name, and "
              "retry the operation.");
    instance->createDatabase("A", "A.mdf", "");
    EXPECT_EQ(errorNumberOf([&] { instance->createDatabase("B", "A.mdf", ""); }), 5170);
}

TEST_F(AnInstance, TakesTheEmptyFileThatAKilledProcessLeft) {
    { std::ofstream left(home / "X.mdf"); }
    EXPECT_EQ(instance->createDatabase("X", "X.mdf", "").id, 5);
}

TEST_F(AnInstance, MakesADatabaseWhereAKilledDropLeftItsLog) {
    for (const char* left : {"X.mdf-wal", "X.mdf-shm"}) {
        std::ofstream(home / left) << "of the dropped one";
    }
    const DatabaseEntry entry = instance->createDatabase("X", "X.mdf", "");
    sqlite::Connection opened(entry.file, false);
    sqlite::Statement tables(opened, "SELECT count(*) FROM sqlite_master");
    ASSERT_TRUE(tables.step());
    EXPECT_EQ(tables.integer(0), 0);
}

TEST_F(AnInstance, CanBeCopiedElsewhere) {
    fs::create_directories(folder.path() / "c" / "vabo");
    instance->createDatabase("Inside", "Inside.mdf", "");
    instance->createDatabase("Outside", "C:\\vabo\\Outside.mdf", "");
    instance.reset();
    const fs::path copy = folder.path() / "copy";
    support::copyTree(home, copy);
    const auto moved = Instance::open(copy, {[](std::string_view) { return fs::path("/elsewhere/Outside.mdf"); }});
    EXPECT_EQ(moved->database("Inside")->file, copy / "Inside.mdf");
    EXPECT_EQ(moved->database("Outside")->file, "/elsewhere/Outside.mdf");
    EXPECT_EQ(moved->database("Outside")->serverPath, "C:\\vabo\\Outside.mdf");
}

TEST_F(AnInstance, IsSharedByWhoeverOpensIt) {
    const auto second = Instance::open(home, options());
    instance->createDatabase("X", "", "");
    EXPECT_TRUE(second->database("X"));
    EXPECT_EQ(errorNumberOf([&] { second->createDatabase("x", "", ""); }), 1801);
    const auto third = Instance::create(home, options());
    EXPECT_EQ(third->databases().size(), 5U);
}

TEST_F(AnInstance, DropsADatabaseWithItsFiles) {
    const DatabaseEntry made = instance->createDatabase("X", "", "");
    sqlite::Connection(made.file, false).run("CREATE TABLE t (a)");
    { RowLocks locks(made.file); }
    instance->setDatabaseOption("X", "read only", true);
    instance->dropDatabase("x");
    EXPECT_FALSE(instance->database("X"));
    for (const auto& entry : fs::directory_iterator(home)) {
        EXPECT_THAT(entry.path().filename().string(), testing::Not(testing::StartsWith("X.")));
    }
    EXPECT_EQ(instance->createDatabase("X", "", "").id, 5);
    EXPECT_FALSE(databaseOption("read only"));
}

TEST_F(AnInstance, RefusesToDropWhatIsMissingInUseOrItsOwn) {
    EXPECT_EQ(errorOf([&] { instance->dropDatabase("X"); }),
              "3701 Cannot drop the database 'X', because it does not exist or you do not have permission.");
    EXPECT_EQ(errorOf([&] { instance->dropDatabase("MASTER"); }),
              "3708 Cannot drop the database 'master' because it is a system database.");
    const DatabaseEntry made = instance->createDatabase("X", "", "");
    {
        RowLocks user(made.file);
        EXPECT_EQ(errorOf([&] { instance->dropDatabase("X"); }),
                  "3702 Cannot drop database \"X\" because it is currently in use.");
        EXPECT_TRUE(fs::exists(made.file));
    }
    instance->dropDatabase("X");
}

TEST_F(AnInstance, ReusesTheLowestFreeNumber) {
    instance->createDatabase("A", "", "");
    instance->createDatabase("B", "", "");
    instance->dropDatabase("A");
    EXPECT_EQ(instance->createDatabase("C", "", "").id, 5);
    EXPECT_EQ(instance->createDatabase("D", "", "").id, 7);
}

TEST_F(AnInstance, RunsWhatWasConfiguredOnlyAfterReconfigure) {
    instance->configure("query timeout", 0);
    EXPECT_EQ(option(*instance, "remote query timeout (s)").configured, 0);
    EXPECT_EQ(option(*instance, "remote query timeout (s)").running, 600);
    instance->reconfigure();
    EXPECT_EQ(option(*instance, "remote query timeout (s)").running, 0);
    EXPECT_EQ(option(*Instance::open(home, options()), "remote query timeout (s)").running, 0);
}

TEST_F(AnInstance, HidesAdvancedOptionsUntilTheyAreShown) {
    const std::string name = "min memory per query (KB)";
    EXPECT_EQ(errorOf([&] { instance->configure(name, 10240); }),
              "15123 The configuration option 'min memory per query (KB)' does not exist, or it may be an advanced "
              "option.");
    instance->configure("show advanced options", 1);
    EXPECT_EQ(errorNumberOf([&] { instance->configure(name, 10240); }), 15123);
    instance->reconfigure();
    instance->configure(name, 10240);
    instance->configure("show advanced options", 0);
    instance->reconfigure();
    EXPECT_EQ(option(*instance, name).running, 10240);
    EXPECT_EQ(option(*instance, name).minimum, 512);
    EXPECT_EQ(errorNumberOf([&] { instance->configure(name, 1024); }), 15123);
}

TEST_F(AnInstance, RefusesValuesOutsideTheRangeOfAnOption) {
    EXPECT_EQ(errorOf([&] { instance->configure("nested triggers", 2); }),
              "15129 '2' is not a valid value for configuration option 'nested triggers'.");
    EXPECT_EQ(option(*instance, "nested triggers").configured, 1);
}

TEST_F(AnInstance, KeepsTheOptionsOfADatabase) {
    instance->createDatabase("X", "", "");
    EXPECT_FALSE(databaseOption("autoclose"));
    instance->setDatabaseOption("x", "autoclose", true);
    instance->setDatabaseOption("X", "trunc. log", true);
    instance->setDatabaseOption("X", "auto create statistics", false);
    EXPECT_TRUE(databaseOption("autoclose"));
    EXPECT_TRUE(databaseOption("trunc. log on chkpt."));
    EXPECT_FALSE(databaseOption("auto create statistics"));
    instance->setDatabaseOption("X", "autoclose", false);
    EXPECT_FALSE(databaseOption("autoclose"));
    const std::string missing = "15010 The database 'Y' does not exist. Use sp_helpdb to show available databases.";
    EXPECT_EQ(errorOf([&] { instance->setDatabaseOption("Y", "autoclose", true); }), missing);
    EXPECT_EQ(errorOf([&] { instance->databaseOptions("Y"); }), missing);
}

TEST_F(AnInstance, KnowsNobodyByATextThatIsNoPassword) {
    instance->addLogin("sa", "Segreto");
    EXPECT_FALSE(instance->authenticates("sa", std::string(100'000, 'x')));
    EXPECT_FALSE(instance->authenticates("sa", std::string("Segreto\0x", 9)));
    EXPECT_TRUE(instance->authenticates("sa", "Segreto"));
}

TEST_F(AnInstance, KnowsAPasswordThatItHasProvedForItsOwnLoginAloneAndUntilItChanges) {
    instance->addLogin("sa", "Segreto");
    instance->addLogin("rossi", "Altro");
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(instance->authenticates("sa", "Segreto"));
        EXPECT_FALSE(instance->authenticates("rossi", "Segreto"));
        EXPECT_FALSE(instance->authenticates("sa", "Altro"));
    }
    Instance::open(home, options())->addLogin("sa", "Nuovo");
    EXPECT_FALSE(instance->authenticates("sa", "Segreto"));
    EXPECT_TRUE(instance->authenticates("sa", "Nuovo"));
}

TEST_F(AnInstance, KnowsItsLogins) {
    instance->addLogin("sa", "S\u00e8greto");
    EXPECT_TRUE(instance->authenticates("SA", "S\u00e8greto"));
    EXPECT_FALSE(instance->authenticates("sa", "s\u00e8greto"));
    EXPECT_FALSE(instance->authenticates("sa", ""));
    EXPECT_FALSE(instance->authenticates("altro", ""));
    instance->addLogin("Sa", "");
    EXPECT_TRUE(instance->authenticates("sa", ""));
    EXPECT_FALSE(instance->authenticates("sa", "S\u00e8greto"));
}

TEST_F(AnInstance, DoesNotKeepPasswordsThemselves) {
    instance->addLogin("sa", "SegretoInChiaro");
    instance.reset();
    for (const auto& entry : fs::directory_iterator(home)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string content(std::istreambuf_iterator<char>(file), {});
        EXPECT_EQ(content.find("SegretoInChiaro"), std::string::npos) << entry.path();
    }
}

} // namespace
} // namespace engine
