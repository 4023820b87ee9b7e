#pragma once

#include <string>

namespace support {

/// As long as it lives the process has the Italian locale, with a decimal comma, which the window system sets on most
/// users' workstations. Throws std::runtime_error where it can't be set.
class CommaLocale {
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::string before_;
};

} // namespace support
