#pragma once

#include <sys/resource.h>
#include <sys/types.h>

namespace ado::test {

/// While this object lives no file of a process can grow beyond that many bytes. Process 0 is the test itself.
class LargestFile {
public:
    LargestFile(long long process, rlim_t bytes) : process_(static_cast<pid_t>(process)) {
        ::prlimit(process_, RLIMIT_FSIZE, nullptr, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::prlimit(process_, RLIMIT_FSIZE, &limit, nullptr);
    }
    ~LargestFile() { ::prlimit(process_, RLIMIT_FSIZE, &before_, nullptr); }
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;

private:
    pid_t process_;
    rlimit before_{};
};

} // namespace ado::test
