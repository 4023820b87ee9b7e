#include "provision/Provision.h"

#include "engine/run/Session.h"
#include "engine/store/Instance.h"
#include "os/Files.h"
#include "platform/DriveC.h"
#include "provision/Companies.h"
#include "provision/Folders.h"
#include "provision/LocalFiles.h"
#include "provision/Marker.h"
#include "provision/PointerFiles.h"
#include "provision/Sql.h"

#include <algorithm>
#include <memory>

namespace provision {

namespace fs = std::filesystem;

namespace {

void check(const Plan& plan) {
    if (plan.driveC.empty()) {
        throw Refused("no folder for drive C is given");
    }
    if (plan.terminal.empty() || plan.terminal.find_first_of("\\/$; ") != std::string::npos) {
        throw Refused("'" + plan.terminal + "' can't be the name of a terminal");
    }
    if (plan.ledgerRows < 0 || plan.ledgerRows == 1) {
        throw Refused("a ledger has no rows or at least two");
    }
    if (plan.accounts < 0) {
        throw Refused("a chart can't have less than no accounts");
    }
}

std::string instanceFolder(const Plan& plan) {
    std::string server = serverName(plan.terminal);
    std::ranges::replace(server, '\\', '$');
    return std::string(folders::kInstances) + "\\" + server;
}

/// Creates folders that only the owner can access, with missing parents.
void makeFolders(const platform::DriveC& drive) {
    os::makePrivateFolders(drive.root());
    if (!drive.isFolder(folders::kRoot)) {
        drive.makeFolder(folders::kRoot);
    }
}

void removeUnfinished(const platform::DriveC& drive) {
    for (const std::string_view folder : folders::kAll) {
        fs::remove_all(drive.real(folder));
    }
}

/// Checks only that files and folders exist, since opening a database could write to its files.
void checkWhole(const platform::DriveC& drive, const Plan& plan) {
    const auto demand = [&drive](const std::string& path, bool there) {
        if (!there) {
            throw Refused(drive.real(path).string() + " is missing; remove " + drive.real(folders::kRoot).string() +
                          " to have all of it made again");
        }
    };
    for (const PointerFile& file : pointerFiles(serverName(plan.terminal))) {
        demand(file.path, drive.isFile(file.path));
    }
    demand(instanceFolder(plan), drive.isFolder(instanceFolder(plan)));
    for (const Company& company : companies()) {
        demand(dataFile(company), drive.isFile(dataFile(company)));
    }
    for (const std::string& file : localFiles()) {
        demand(file, drive.isFile(file));
    }
}

void createDatabases(engine::Session& master) {
    const std::string collation = " COLLATE Latin1_General_CI_AS";
    run(master, "CREATE DATABASE [VaBoDatiAzienda]" + collation);
    for (const Company& company : companies()) {
        const std::string name(company.database);
        run(master, "CREATE DATABASE [" + name + "] ON (NAME = N'" + name +
                        "_dat', FILENAME = " + literal(dataFile(company)) + ", FILEGROWTH = 10%)" + collation);
    }
}

void makeInstance(const platform::DriveC& drive, const Plan& plan) {
    const engine::InstanceOptions options{[&drive](std::string_view path) { return drive.real(path); }};
    const auto instance = engine::Instance::create(drive.real(instanceFolder(plan)), options);
    instance->addLogin(std::string(kServerUser), std::string(kServerPassword));
    const auto session = [&instance](std::string_view database) {
        return engine::Session::open(instance,
                                     {std::string(kServerUser), std::string(kServerPassword), std::string(database)});
    };
    createDatabases(*session(""));
    fillRegistry(*session("VaBoDatiAzienda"), serverName(plan.terminal));
    for (const Company& company : companies()) {
        fillCompany(*session(company.database), company, plan);
    }
}

/// Makes the files readable by the owner only, since they contain passwords.
void keepForOwner(const fs::path& folder) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        fs::permissions(entry.path(),
                        entry.is_directory() ? fs::perms::owner_all : fs::perms::owner_read | fs::perms::owner_write);
    }
}

} // namespace

std::string serverName(std::string_view terminal) {
    return std::string(terminal) + "\\sqlexpress";
}

Outcome layDown(const Plan& plan) {
    check(plan);
    const platform::DriveC drive(plan.driveC);
    const Marker marker(drive, plan);
    const Marker::State state = marker.read();
    if (state == Marker::State::Finished) {
        checkWhole(drive, plan);
        return Outcome::AlreadyThere;
    }
    if (state == Marker::State::Absent && drive.exists(folders::kRoot) && !fs::is_empty(drive.real(folders::kRoot))) {
        throw Refused(drive.real(folders::kRoot).string() + " was made by somebody else and is left alone");
    }

    makeFolders(drive);
    marker.writeUnfinished();
    removeUnfinished(drive);
    for (const std::string_view folder : folders::kAll) {
        drive.makeFolder(folder);
    }
    makeInstance(drive, plan);
    makeLocalFiles(drive);
    for (const PointerFile& file : pointerFiles(serverName(plan.terminal))) {
        drive.writeLine(file.path, file.line);
    }
    keepForOwner(drive.real(folders::kRoot));
    marker.writeFinished();
    return Outcome::Made;
}

} // namespace provision
