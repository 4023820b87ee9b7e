#include "PeerProcess.h"

#include "engine/store/Instance.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace fs = std::filesystem;

PeerProcess::PeerProcess(const std::string& program)
    : folder_(fs::temp_directory_path() / ("vabo-bench-wire-" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
    const auto instance = engine::Instance::create(
        folder_ / "server", {[folder = folder_](std::string_view path) { return folder / path; }});
    instance->addLogin("sa", "segreta");
    instance->createDatabase("prova", "", "");
    start(program);
}

void PeerProcess::start(const std::string& program) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe to the server");
    }
    const std::string server = (folder_ / "server").string();
    process_ = fork();
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execl(program.c_str(), program.c_str(), server.c_str(), folder_.c_str(), static_cast<char*>(nullptr));
        _exit(1);
    }
    close(ends[1]);
    FILE* said = fdopen(ends[0], "r");
    const bool told =
        said && std::fscanf(said, "port %d", &port_) == 1; // NOLINT(cert-err34-c): the line is the server's
    if (said) {
        static_cast<void>(std::fclose(said));
    }
    if (!told) {
        throw std::runtime_error(program + " tells no port");
    }
}

PeerProcess::~PeerProcess() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string PeerProcess::connectionString() const {
    return "Driver=FreeTDS;Server=127.0.0.1;Port=" + std::to_string(port_) + ";UID=sa;PWD=segreta;DATABASE=prova;";
}

} // namespace bench
