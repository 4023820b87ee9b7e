#include "support/LargestFile.h"

#include <sys/resource.h>
#include <sys/types.h>

namespace support {

class LargestFile::Limit {
public:
    Limit(pid_t process, rlim_t bytes) : process_(process) {
        ::prlimit(process_, RLIMIT_FSIZE, nullptr, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::prlimit(process_, RLIMIT_FSIZE, &limit, nullptr);
    }
    ~Limit() { ::prlimit(process_, RLIMIT_FSIZE, &before_, nullptr); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    pid_t process_;
    rlimit before_{};
};

LargestFile::LargestFile(long long process, std::uint64_t bytes)
    : limit_(std::make_unique<Limit>(static_cast<pid_t>(process), bytes)) {}

LargestFile::~LargestFile() = default;

} // namespace support
