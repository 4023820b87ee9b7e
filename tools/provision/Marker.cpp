#include "provision/Marker.h"

#include "provision/Folders.h"

namespace provision {

namespace {

constexpr std::string_view kFile = "C:\\vabo\\provision.txt";
constexpr std::string_view kUnfinished = "vabo-provision 1, unfinished: ";
constexpr std::string_view kFinished = "vabo-provision 1, finished: ";

} // namespace

Marker::Marker(const platform::DriveC& drive, const Plan& plan)
    : drive_(drive),
      values_("--terminal " + plan.terminal + " --ledger " + std::to_string(plan.ledgerRows) + " --accounts " +
              std::to_string(plan.accounts)) {}

Marker::State Marker::read() const {
    if (!drive_.isFile(kFile)) {
        return State::Absent;
    }
    const std::string line = drive_.firstLine(kFile);
    if (line.starts_with(kUnfinished)) {
        return State::Unfinished;
    }
    if (!line.starts_with(kFinished)) {
        throw Refused(drive_.real(kFile).string() + " was not written by this version of the program");
    }
    const std::string made = line.substr(kFinished.size());
    if (made != values_) {
        throw Refused(drive_.real(folders::kRoot).string() + " was laid down with other values: " + made);
    }
    return State::Finished;
}

void Marker::writeUnfinished() const {
    drive_.writeLine(kFile, std::string(kUnfinished) + values_);
}

void Marker::writeFinished() const {
    drive_.writeLine(kFile, std::string(kFinished) + values_);
}

} // namespace provision
