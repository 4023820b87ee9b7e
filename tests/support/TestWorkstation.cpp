#include "support/TestWorkstation.h"

#include "ado/Drivers.h"
#include "engine/errors/StoreErrors.h"
#include "engine/store/Instance.h"
#include "engine/store/RowLocks.h"
#include "os/SystemText.h"
#include "support/AzzeraVariabili.h"
#include "support/DataSourceStore.h"
#include "support/Environment.h"
#include "support/TestedDriver.h"

#include <QDeadlineTimer>
#include <QString>

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace support {

namespace fs = std::filesystem;

namespace {

/// What a server needs to learn that a client has gone takes milliseconds.
constexpr std::chrono::seconds kLongestWait(10);
constexpr const char* kServerLogin = "UID=sa;PWD=Campione-2024;";

void makePresent(const platform::Workstation& workstation) {
    platform::setWorkstation(workstation);
    platform::connectDataLayer();
    vabo::AzzeraVariabili();
}

engine::InstanceOptions instanceOptions(const platform::DriveC& driveC) {
    return {.mapPath = [drive = driveC](std::string_view path) { return drive.real(path); }};
}

} // namespace

TestWorkstation::TestWorkstation(DriveC content) {
    if (content == DriveC::Sample) {
        copyTree(VABO_TEST_TEMPLATE, folder_.path());
    }
    makePresent(workstationOn(folder_.path()));
    useDataSourceFile(dataSourceFile());
    instance_ = ado::instanceFolder(kLocalServerName);
    if (content == DriveC::Sample && testedDriver() == TestedDriver::Wire) {
        moveServerBehindTheWire();
    }
}

void TestWorkstation::moveServerBehindTheWire() {
    const fs::path moved = server_.path() / "instance";
    fs::rename(instance_, moved);
    instance_ = moved;
    peer_ = std::make_unique<Peer>(instance_, folder_.path());
    for (const fs::directory_entry& file : fs::directory_iterator(driveC().real("C:\\vabo"))) {
        if (!file.is_regular_file()) {
            continue;
        }
        const std::string path = "C:\\vabo\\" + file.path().filename().string();
        QString text = QString::fromStdString(fileText(path).value());
        text.replace(kLocalServerName, QString::fromStdString(peer_->server()));
        if (!capabilities().integratedSecurity) {
            text.replace("ID utente=;Password=;", kServerLogin);
        }
        putFile(path, text.toStdString());
    }
}

std::string TestWorkstation::serverName() const {
    return peer_ ? peer_->server() : kLocalServerName;
}

Peer& TestWorkstation::peer() const {
    if (!peer_) {
        throw std::logic_error("The embedded driver has no server process.");
    }
    return *peer_;
}

TestWorkstation::~TestWorkstation() {
    makePresent(workstationOn(nowhere()));
    useDataSourceFile(nowhere() / "odbc.ini");
}

std::string TestWorkstation::dataSources() const {
    return dataSourceText(dataSourceFile());
}

std::filesystem::path TestWorkstation::dataSourceFile() const {
    return folder_.path() / "odbc.ini";
}

const platform::DriveC& TestWorkstation::driveC() const {
    return platform::workstation().driveC;
}

std::optional<std::string> TestWorkstation::fileText(std::string_view path) const {
    std::ifstream file(driveC().real(path), std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return os::fromSystemText(std::string(std::istreambuf_iterator<char>(file), {}));
}

void TestWorkstation::putFile(std::string_view path, std::string_view text) const {
    const fs::path place = driveC().real(path);
    fs::create_directories(place.parent_path());
    std::ofstream(place, std::ios::binary) << os::toSystemText(text);
}

void TestWorkstation::removeFile(std::string_view path) const {
    if (!fs::remove(driveC().real(path))) {
        throw std::runtime_error("no file " + std::string(path));
    }
}

std::unique_ptr<engine::Session> TestWorkstation::engineSession(const std::string& database) const {
    return engine::Session::open(engine::Instance::open(instance_, instanceOptions(driveC())),
                                 {.user = {}, .password = {}, .database = database});
}

namespace {

std::vector<TestWorkstation::Row> rowsOf(engine::Session& session, const std::string& sql) {
    using Row = TestWorkstation::Row;
    const auto batch = session.execute(sql);
    std::vector<Row> all;
    while (batch->nextResult()) {
        const int columns = static_cast<int>(batch->columns().size());
        while (const engine::ResultRow* read = batch->nextRow()) {
            Row& row = all.emplace_back();
            for (int column = 0; column < columns; ++column) {
                row.emplace_back(read->isNull(column) ? "NULL" : read->text(column));
            }
        }
    }
    return all;
}

} // namespace

std::vector<TestWorkstation::Row> TestWorkstation::rows(const std::string& database, const std::string& sql) const {
    return rowsOf(*engineSession(database), sql);
}

TestWorkstation::Row TestWorkstation::row(const std::string& database, const std::string& sql) const {
    const auto all = rows(database, sql);
    EXPECT_EQ(all.size(), 1U) << sql;
    return all.empty() ? Row{} : all.front();
}

std::string TestWorkstation::value(const std::string& database, const std::string& sql) const {
    const Row first = row(database, sql);
    return first.empty() ? std::string() : first.front();
}

std::map<std::string, std::vector<TestWorkstation::Row>> TestWorkstation::tables(const std::string& database) const {
    const auto session = engineSession(database);
    std::map<std::string, std::vector<Row>> all;
    for (const Row& table : rowsOf(*session, "select TABLE_NAME from INFORMATION_SCHEMA.TABLES")) {
        all[table.front()] = rowsOf(*session, "select * from [" + table.front() + "]");
    }
    return all;
}

void TestWorkstation::playServerVersion(int version) const {
    engine::Instance::open(instance_, {})->setVersion(version);
}

std::vector<std::pair<std::string, bool>> TestWorkstation::databaseOptions(const std::string& database) const {
    return engine::Instance::open(instance_, {})->databaseOptions(database);
}

void TestWorkstation::run(const std::string& database, const std::string& sql) const {
    rows(database, sql);
}

void TestWorkstation::drop(const std::string& database) const {
    const int inUse = engine::errors::databaseInUse(database).number();
    for (const QDeadlineTimer deadline(kLongestWait);;) {
        try {
            run("master", "DROP DATABASE [" + database + "]");
            return;
        } catch (const engine::Error& error) {
            if (error.number() != inUse || deadline.hasExpired()) {
                throw;
            }
            std::this_thread::yield();
        }
    }
}

fs::path TestWorkstation::databaseFile(const std::string& database) const {
    return engine::Instance::open(instance_, instanceOptions(driveC()))->database(database).value().file;
}

void TestWorkstation::waitUntilNoRowIsHeld(const std::string& database) const {
    const engine::RowLocks locks(databaseFile(database));
    for (const QDeadlineTimer deadline(kLongestWait); locks.anyHeldByOthers(); std::this_thread::yield()) {
        if (deadline.hasExpired()) {
            throw std::runtime_error("somebody holds a row of " + database);
        }
    }
}

} // namespace support
