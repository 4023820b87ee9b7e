#include "ado/TestServer.h"

#include "ado/Drivers.h"
#include "engine/store/Instance.h"

namespace ado::test {

namespace fs = std::filesystem;

namespace {

engine::InstanceOptions options(const fs::path& drive) {
    return {[drive](std::string_view path) { return drive / path; }};
}

} // namespace

TestServer::TestServer(support::TestedDriver driver) {
    fs::create_directories(instances());
    const auto created = engine::Instance::create(instance(), options(folder_.path()));
    created->addLogin("sa", "segreta");
    created->createDatabase("Vabodati", "", "");
    if (driver == support::TestedDriver::Wire) {
        peer_ = std::make_unique<support::Peer>(instance(), folder_.path());
    } else {
        setEmbeddedHome({[this] { return instances(); }, options(folder_.path()).mapPath});
    }
}

TestServer::~TestServer() {
    setEmbeddedHome({});
}

fs::path TestServer::instance() const {
    return instances() / "PROVA$sqlexpress";
}

std::string TestServer::connectionString(const std::string& database) const {
    const std::string server =
        peer_ ? "127.0.0.1;Port=" + std::to_string(peer_->port()) : std::string("PROVA\\sqlexpress");
    return "Driver=SQL Server;Server=" + server + ";UID=sa;PWD=segreta;DATABase=" + database;
}

void TestServer::addLogin(const std::string& user, const std::string& password) const {
    engine::Instance::open(instance(), options(folder_.path()))->addLogin(user, password);
}

} // namespace ado::test
