#pragma once

#include <string>

namespace support {

/// Makes Qt's warnings and worse fail the running test unless an ExpectedWarning takes them.
void installWarningHandler();

/// While it lives, warnings that hold `part` are expected. One that never comes fails the test.
class ExpectedWarning {
public:
    explicit ExpectedWarning(std::string part);
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;
    ~ExpectedWarning();

    /// Whether one of those alive expects this text.
    static bool takes(const std::string& text);

private:
    std::string part_;
    int seen_ = 0;
};

} // namespace support
