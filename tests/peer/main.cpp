// A server of the wire protocol for one embedded instance, used by the tests only.

#include "engine/store/Instance.h"
#include "peer/Server.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string_view>

namespace {

/// An empty database `prova` and a login "sa", for clients that come without a sample workstation.
void makeInstance(const std::filesystem::path& folder, const std::filesystem::path& driveC) {
    const auto made =
        engine::Instance::create(folder, {[&](std::string_view path) { return driveC / std::string(path); }});
    made->addLogin("sa", "segreta");
    made->createDatabase("prova", "", "");
}

} // namespace

int main(int argc, char** argv) {
    const bool make = argc > 1 && std::string_view(argv[1]) == "--new";
    char** const arguments = argv + (make ? 2 : 1);
    const int count = argc - (make ? 2 : 1);
    if (count != 2 && count != 3) {
        std::fprintf(stderr, "usage: vabo-peer [--new] <instance folder> <drive C> [port]\n");
        return 2;
    }
    try {
        if (make) {
            makeInstance(arguments[0], arguments[1]);
        }
        peer::Server server(arguments[0], arguments[1], count == 3 ? std::atoi(arguments[2]) : 0);
        std::printf("port %d\n", server.port());
        std::fflush(stdout);
        server.serve();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vabo-peer: %s\n", error.what());
        return 1;
    }
}
