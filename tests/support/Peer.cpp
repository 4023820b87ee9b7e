#include "support/Peer.h"

#include "os/Paths.h"

#include <stdexcept>
#include <utility>

namespace support {

Peer::Peer(std::filesystem::path instance, std::filesystem::path driveC)
    : instance_(std::move(instance)), driveC_(std::move(driveC)) {
    start(0);
}

void Peer::start(int port) {
    process_ = std::make_unique<HelperProcess>(
        "vabo-peer", std::vector<std::string>{os::utf8Of(instance_), os::utf8Of(driveC_), std::to_string(port)});
    const std::string line = process_->readLine().value_or("nothing");
    if (!line.starts_with("port ")) {
        throw std::runtime_error("The peer says: " + line);
    }
    port_ = std::stoi(line.substr(5));
}

} // namespace support
