#pragma once

#include "ado/Connection.h"

#include <functional>
#include <string>
#include <utility>

namespace support {

/// Hears every statement ahead of the server, as somebody does who works on the same tables meanwhile.
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
