#include "engine/store/Host.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace engine {

std::string hostName() {
    constexpr std::size_t kLongestName = 256;
    std::array<char, kLongestName> name{};
    gethostname(name.data(), name.size() - 1);
    return name.data();
}

std::int64_t processNumber() {
    return getpid();
}

void refuseTooLargeFiles() {
    std::signal(SIGXFSZ, SIG_IGN);
}

void makeFileOfOwner(const std::filesystem::path& file) {
    constexpr mode_t kOwnerOnly = 0600;
    const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwnerOnly);
    if (descriptor >= 0) {
        close(descriptor);
    }
}

std::tm localTime(std::time_t time) {
    std::tm result{};
    localtime_r(&time, &result);
    return result;
}

} // namespace engine
