// A server of the wire protocol for one embedded instance, used by the tests only.

#include "peer/Server.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: vabo-peer <instance folder> <drive C> [port]\n");
        return 2;
    }
    try {
        peer::Server server(argv[1], argv[2], argc == 4 ? std::atoi(argv[3]) : 0);
        std::printf("port %u\n", server.port());
        std::fflush(stdout);
        server.serve();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vabo-peer: %s\n", error.what());
        return 1;
    }
}
