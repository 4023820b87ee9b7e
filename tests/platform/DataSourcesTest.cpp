#include "platform/DataSources.h"

#include "ado/drivers/odbc/OdbcDriverName.h"
#include "support/Capabilities.h"
#include "support/DataSourceStore.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using platform::dataSources;
using platform::DataSources;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Entry = std::map<std::string, std::string>;

constexpr const char* kDriver = "SQL Server";

/// A file of data sources for one test.
class DataSourcesTest : public testing::Test {
protected:
    DataSourcesTest() { support::useDataSourceFile(file); }

    void put(const std::string& text) const { support::putDataSources(file, text); }
    /// Puts those of other programs, and returns how they stand.
    std::string putOthers() const {
        put("[Magazzino]\nDriver=Altro\nServer=a;b\nNota=x = y\n\n[ODBC]\nTrace=0\n\n");
        return text();
    }
    std::string text() const { return support::dataSourceText(file); }
    /// The lines below each heading, as programs read such a file.
    std::map<std::string, Entry> entries() const {
        std::map<std::string, Entry> all;
        std::string name;
        std::istringstream lines(text());
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with('[')) {
                all[name = line.substr(1, line.find(']') - 1)];
            } else if (const auto equal = line.find('='); equal != std::string::npos) {
                all[name][line.substr(0, equal)] = line.substr(equal + 1);
            }
        }
        return all;
    }
    Entry entry(const std::string& name) const {
        const auto all = entries();
        const auto found = all.find(name);
        return found == all.end() ? Entry{} : found->second;
    }
    /// These values, with those that an entry of the server's driver holds besides.
    static Entry withDriver(Entry values) {
        const std::string driver = ado::odbc::resolveDriver(kDriver, ado::odbc::registeredDrivers());
        values["Driver"] = driver;
        std::istringstream settings(ado::odbc::driverSettings(driver));
        for (std::string setting; std::getline(settings, setting, ';');) {
            values[setting.substr(0, setting.find('='))] = setting.substr(setting.find('=') + 1);
        }
        return values;
    }
    static void enter(const std::string& name, const std::string& attributes = "Server=uno") {
        dataSources().registerDatabase(name, kDriver, true, attributes);
    }
    static std::int32_t configure(std::int16_t request, std::string attributes, const std::string& driver = kDriver) {
        std::ranges::replace(attributes, '|', '\0');
        return dataSources().configure(request, driver, attributes);
    }

    support::TemporaryFolder folder;
    fs::path file = folder.path() / "odbc.ini";
};

TEST_F(DataSourcesTest, AnEntryHasAllThatAnyProgramNeedsToConnectByItsName) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    enter("Tlv_server", "Description=Dati Aurora\rOemToAnsi=No\rSERVER=10.0.0.7,1444\rDatabase=VaBoDatiAurora");
    EXPECT_EQ(entry("Tlv_server"), withDriver({{"Description", "Dati Aurora"},
                                               {"OemToAnsi", "No"},
                                               {"SERVER", "10.0.0.7,1444"},
                                               {"Database", "VaBoDatiAurora"}}));
}

TEST_F(DataSourcesTest, TheNamesComeInTheirOrder) {
    VABO_NEEDS(support::systemCapabilities().storedSourcesAreFound);
    enter("Tlv_Temp");
    enter("Tlv_Azienda");
    const auto names = dataSources().names();
    ASSERT_GE(names.size(), 2U) << "those of the machine follow";
    EXPECT_EQ(names[0], "Tlv_Temp");
    EXPECT_EQ(names[1], "Tlv_Azienda");
    EXPECT_EQ(dataSources().names(), names) << "a second reading begins at the first name";
}

TEST_F(DataSourcesTest, AMachineWhoseFileIsNowhereHasNoneOfTheUsersNames) {
    VABO_NEEDS(support::systemCapabilities().storedSourcesAreFound);
    enter("Tlv_Temp");
    EXPECT_THAT(dataSources().names(), Contains("Tlv_Temp"));
    support::useDataSourceFile(support::nowhere() / "odbc.ini");
    EXPECT_THAT(dataSources().names(), Not(Contains("Tlv_Temp")));
}

TEST_F(DataSourcesTest, AnExistingEntryGetsTheNewValuesWhateverItsCase) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    enter("Tlv_server", "Server=uno\rDatabase=prima");
    enter("Tlv_Server", "SERVER=due");
    const auto all = entries();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all.begin()->first, "Tlv_server");
    EXPECT_EQ(entry("Tlv_server"), withDriver({{"SERVER", "due"}, {"Database", "prima"}}));
}

TEST_F(DataSourcesTest, EntriesOfOtherProgramsStayAsTheyAre) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    const std::string others = putOthers();
    enter("Tlv_server");
    EXPECT_TRUE(text().starts_with(others)) << text();
    EXPECT_EQ(entry("Tlv_server"), withDriver({{"Server", "uno"}}));
}

TEST_F(DataSourcesTest, AddingMakesAWholeEntry) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    EXPECT_EQ(configure(DataSources::kAdd, "DSN=Tlv_Temp|Description=Dati|SERVER=uno|DBQ=VaBoDatiTemp|"), 1);
    EXPECT_EQ(entry("Tlv_Temp"), withDriver({{"Description", "Dati"}, {"SERVER", "uno"}, {"DBQ", "VaBoDatiTemp"}}));
    EXPECT_EQ(configure(DataSources::kAdd, "DSN=Tlv_Temp|SERVER=due|"), 1) << "one that is there";
    EXPECT_EQ(entry("Tlv_Temp")["SERVER"], "due");
}

TEST_F(DataSourcesTest, ConfiguringNeedsAnEntry) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    const std::string others = putOthers();
    EXPECT_EQ(configure(DataSources::kConfigure, "DSN=Tlv_Temp|SERVER=uno|"), 0);
    EXPECT_EQ(configure(DataSources::kConfigure, "DSN=ODBC|SERVER=uno|"), 0) << "no data source";
    EXPECT_EQ(text(), others);
    enter("Tlv_Temp");
    EXPECT_EQ(configure(DataSources::kConfigure, "DSN=Tlv_Temp|SERVER=due|"), 1);
    EXPECT_EQ(entry("Tlv_Temp"), withDriver({{"SERVER", "due"}}));
}

TEST_F(DataSourcesTest, AnyOtherRequestAnUnknownDriverAndAMissingNameDoNothing) {
    const std::string others = putOthers();
    for (const std::int16_t request : std::initializer_list<std::int16_t>{0, 3, 4}) {
        EXPECT_EQ(configure(request, "DSN=Magazzino|SERVER=uno|"), 0) << request;
    }
    EXPECT_EQ(configure(DataSources::kAdd, "DSN=Tlv_Temp|", "Microsoft Access Driver (*.mdb)"), 0);
    EXPECT_EQ(configure(DataSources::kAdd, "DSN=Tlv_Temp|", ""), 0);
    EXPECT_EQ(configure(DataSources::kAdd, "SERVER=uno|"), 0);
    EXPECT_THROW(dataSources().registerDatabase("Tlv_Temp", "Nessuno", true, "Server=uno"), std::runtime_error);
    EXPECT_EQ(text(), others);
}

TEST_F(DataSourcesTest, NamesThatOdbcRefusesAreRefused) {
    const std::string others = putOthers();
    for (const std::string name : {"",     " ",
                                   "a[b",  "a]b",
                                   "a{b",  "a}b",
                                   "a(b",  "a)b",
                                   "a,b",  "a;b",
                                   "a?b",  "a*b",
                                   "a=b",  "a!b",
                                   "a@b",  "a\\b",
                                   "a\nb", "a\rb",
                                   "a\tb", " a",
                                   "a ",   "012345678901234567890123456789012"}) {
        EXPECT_THROW(enter(name), std::runtime_error) << name;
        EXPECT_EQ(configure(DataSources::kAdd, "DSN=" + name + "|"), 0) << name;
        EXPECT_EQ(text(), others) << name;
    }
    EXPECT_NO_THROW(enter("01234567890123456789012345678901"));
}

TEST_F(DataSourcesTest, NoValueLeavesItsLine) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    const struct {
        const char* value;
        const char* stored;
    } cases[] = {
        {"Dati\n[Magazzino]\nServer=x", "Dati [Magazzino] Server=x"},
        {"[Magazzino]", "[Magazzino]"},
        {"a;b#c", "a;b#c"},
        {"#a", "#a"},
        {"a = b", "a = b"},
        {"\n", ""},
        {" \tDati ", "Dati"},
        {"Dati\rDriver=libmia.so\rSERVER", "Dati"},
        {"Dati\r[Magazzino]\rDSN=Magazzino\r=\r", "Dati"},
        {"Società \"È\" 'x' {y}", "Società \"È\" 'x' {y}"},
    };
    const std::string others = putOthers();
    for (const auto& one : cases) {
        enter("Tlv_server", "Server=uno\rDescription=" + std::string(one.value));
        EXPECT_EQ(entry("Tlv_server"), withDriver({{"Server", "uno"}, {"Description", one.stored}})) << one.value;
        EXPECT_TRUE(text().starts_with(others)) << text();
    }
}

TEST_F(DataSourcesTest, AValueTooLongForALineIsRefusedWhole) {
    const std::string others = putOthers();
    const std::string longest(999 - std::string("Description=\n").size(), 'x');
    EXPECT_THROW(enter("Tlv_server", "Server=uno\rDescription=" + longest + "x"), std::runtime_error);
    EXPECT_EQ(text(), others);
    enter("Tlv_server", "Server=uno\rDescription=" + longest);
    enter("Tlv_Temp");
    EXPECT_EQ(entry("Tlv_server")["Description"], longest);
    EXPECT_EQ(entries().size(), 4U);
}

TEST_F(DataSourcesTest, WhatStandsAlreadyIsNotWritten) {
    VABO_NEEDS(support::systemCapabilities().dataSourcesInAFile);
    put("# mine\n" + putOthers());
    enter("Tlv_server", "Server= uno \rDescription=\rDatabase=uno\n");
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(file, before);
    enter("Tlv_server", "Server= uno \rDescription=\rDatabase=uno\n");
    EXPECT_EQ(configure(DataSources::kConfigure, "DSN=TLV_SERVER|SERVER=uno|"), 1);
    EXPECT_EQ(fs::last_write_time(file), before);
}

TEST_F(DataSourcesTest, WhatOtherProgramsDoToTheFileIsSeenAtOnce) {
    VABO_NEEDS(support::systemCapabilities().installerStoresDrivers);
    enter("Tlv_server", "Server=uno");
    enter("Tlv_server", "Server=uno"); // which only reads
    std::string changed = text();
    changed.replace(changed.find("uno"), 3, "due");
    put(changed);
    enter("Tlv_server", "Server=uno");
    EXPECT_EQ(entry("Tlv_server")["Server"], "uno");
    put("");
    EXPECT_EQ(configure(DataSources::kConfigure, "DSN=Tlv_server|SERVER=uno|"), 0);
    enter("Tlv_server", "Server=uno");
    EXPECT_EQ(entry("Tlv_server"), withDriver({{"Server", "uno"}}));
}

TEST_F(DataSourcesTest, PermissionsAndLinksOfTheFileStay) {
    VABO_NEEDS(support::systemCapabilities().dataSourcesInAFile);
    const fs::path link = folder.path() / "link.ini";
    putOthers();
    fs::permissions(file, fs::perms(0640));
    fs::create_symlink(file, link);
    support::useDataSourceFile(link);
    enter("Tlv_server");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    EXPECT_EQ(entry("Tlv_server"), withDriver({{"Server", "uno"}}));
}

TEST_F(DataSourcesTest, NothingButTheFileIsLeftBehind) {
    VABO_NEEDS(support::systemCapabilities().dataSourcesInAFile);
    enter("Tlv_server");
    std::vector<std::string> left;
    for (const auto& each : fs::directory_iterator(folder.path())) {
        left.push_back(each.path().filename().string());
    }
    EXPECT_THAT(left, ElementsAre("odbc.ini"));
}

TEST_F(DataSourcesTest, AFileThatCantBeKeptIsAFailure) {
    VABO_NEEDS(support::systemCapabilities().dataSourcesInAFile);
    // The library would use the second path for its file of drivers.
    for (const fs::path& place : {support::nowhere() / "odbc.ini", folder.path() / "odbcinst" / "odbc.ini"}) {
        support::useDataSourceFile(place);
        EXPECT_THROW(enter("Tlv_server"), std::runtime_error) << place;
        EXPECT_EQ(configure(DataSources::kAdd, "DSN=Tlv_server|"), 0) << place;
        EXPECT_EQ(configure(DataSources::kConfigure, "DSN=Tlv_server|"), 0) << place;
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

} // namespace
