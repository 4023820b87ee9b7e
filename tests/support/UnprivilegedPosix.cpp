#include "support/Unprivileged.h"

#include <array>
#include <exception>
#include <grp.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace support {

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534;

void check(int result, const char* what) {
    if (result != 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

void give(const fs::path& tree) {
    check(::lchown(tree.c_str(), kNobody, kNobody), "chown");
    for (const auto& entry : fs::recursive_directory_iterator(tree)) {
        check(::lchown(entry.path().c_str(), kNobody, kNobody), "chown");
    }
}

void becomeNobody() {
    check(::setgroups(0, nullptr), "setgroups");
    check(::setgid(kNobody), "setgid");
    check(::setuid(kNobody), "setuid");
}

std::string outcome(const std::function<std::string()>& work, bool root) {
    try {
        if (root) {
            becomeNobody();
        }
        return work();
    } catch (const std::exception& error) {
        return std::string("threw: ") + error.what();
    } catch (...) {
        return "threw";
    }
}

std::string readAll(int descriptor) {
    std::string all;
    std::array<char, 4096> buffer{};
    for (ssize_t got = 0; (got = ::read(descriptor, buffer.data(), buffer.size())) > 0;) {
        all.append(buffer.data(), static_cast<std::size_t>(got));
    }
    return all;
}

} // namespace

std::string unprivileged(const fs::path& tree, const std::function<std::string()>& work) {
    const bool root = ::geteuid() == 0;
    if (root) {
        give(tree);
    }
    std::array<int, 2> ends{};
    check(::pipe(ends.data()), "pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string result = outcome(work, root);
        const bool told = ::write(ends[1], result.data(), result.size()) == static_cast<ssize_t>(result.size());
        ::_exit(told ? 0 : 1);
    }
    check(child < 0 ? -1 : 0, "fork");
    ::close(ends[1]);
    std::string result = readAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? result : "died with status " + std::to_string(status);
}

} // namespace support
