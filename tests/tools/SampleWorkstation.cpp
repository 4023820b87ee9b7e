#include "tools/SampleWorkstation.h"

#include "engine/store/Instance.h"
#include "platform/DriveC.h"
#include "provision/Sql.h"

SampleWorkstation::SampleWorkstation(long ledgerRows, long accounts) : ledgerRows_(ledgerRows), accounts_(accounts) {
    provision::layDown(plan());
}

const SampleWorkstation& SampleWorkstation::shared() {
    static const SampleWorkstation sample;
    return sample;
}

provision::Plan SampleWorkstation::plan() const {
    return {folder_.path(), "POSTO_7", ledgerRows_, accounts_};
}

std::unique_ptr<engine::Session> openSession(const std::filesystem::path& driveC, std::string_view database,
                                             std::string_view password) {
    const platform::DriveC drive(driveC);
    const engine::InstanceOptions options{[drive](std::string_view path) { return drive.real(path); }};
    return engine::Session::open(engine::Instance::open(drive.real("C:\\vabo\\istanze\\POSTO_7$sqlexpress"), options),
                                 {std::string(provision::kServerUser), std::string(password), std::string(database)});
}

std::unique_ptr<engine::Session> SampleWorkstation::session(std::string_view database) const {
    return openSession(folder_.path(), database);
}

std::int64_t SampleWorkstation::number(std::string_view database, const std::string& select) const {
    return provision::integers(*session(database), select).at(0);
}

std::string SampleWorkstation::text(std::string_view database, const std::string& select) const {
    return provision::texts(*session(database), select).at(0);
}

std::vector<std::string> SampleWorkstation::texts(std::string_view database, const std::string& select) const {
    return provision::texts(*session(database), select);
}
