#include "os/Machine.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace os {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

fs::path home() {
    if (const std::string folder = environment("HOME"); !folder.empty()) {
        return folder;
    }
    const passwd* entry = ::getpwuid(::getuid());
    return entry == nullptr ? fs::path("/") : fs::path(entry->pw_dir);
}

} // namespace

std::string hostName() {
    constexpr std::size_t kLongestName = 256;
    std::array<char, kLongestName> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0) {
        return {};
    }
    return name.data();
}

std::int64_t processNumber() {
    return ::getpid();
}

fs::path programFile() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

std::error_code become(const fs::path& program, const std::vector<std::string>& arguments) {
    std::string name = program.filename().string();
    std::vector<std::string> copies = arguments;
    std::vector<char*> all{name.data()};
    for (std::string& argument : copies) {
        all.push_back(argument.data());
    }
    all.push_back(nullptr);
    ::execv(program.c_str(), all.data());
    return {errno, std::generic_category()};
}

fs::path driveC() {
    if (const std::string folder = environment("VABO_DRIVE_C"); !folder.empty()) {
        return fs::absolute(folder).lexically_normal();
    }
    const fs::path data = environment("XDG_DATA_HOME");
    return (data.is_absolute() ? data : home() / ".local" / "share") / "vabo" / "c";
}

std::tm localTime(std::time_t time) {
    std::tm result{};
    ::localtime_r(&time, &result);
    return result;
}

void refuseTooLargeFiles() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace os
