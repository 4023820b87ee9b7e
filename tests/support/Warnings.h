#pragma once

#include <string>

namespace support {

/// From now on Qt's warnings and errors fail the running test, unless an ExpectedWarning expects them.
void installWarningHandler();

/// While this object lives, warnings that contain `part` are expected. Where none comes the test fails.
class ExpectedWarning {
public:
    explicit ExpectedWarning(std::string part);
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;
    ~ExpectedWarning();

    /// Whether one of the living objects expects this text.
    static bool takes(const std::string& text);

private:
    std::string part_;
    int seen_ = 0;
};

} // namespace support
