#pragma once

#include "ado/Connection.h"

#include <functional>
#include <string>
#include <utility>

namespace support {

/// Calls a function before each statement is sent. Tests use it to change the same tables in between, as another user
/// would.
class SomebodyElse {
public:
    explicit SomebodyElse(std::function<void(const std::string&)> hears) {
        ado::setStatementRecorder(std::move(hears));
    }
    SomebodyElse(const SomebodyElse&) = delete;
    SomebodyElse& operator=(const SomebodyElse&) = delete;
    ~SomebodyElse() { ado::setStatementRecorder({}); }
};

} // namespace support
