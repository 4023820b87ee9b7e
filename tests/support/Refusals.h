#pragma once

#include "ado/Driver.h"

#include <memory>
#include <string>
#include <vector>

namespace support {

/// A driver in front of the program's own, which counts what the program asks of a server (logins, statements, row
/// holds, the reading of keys) and of its local files, and refuses some of it instead of passing it on. It counts for
/// connections and files opened while this object lives.
class Refusals {
public:
    enum class Lasting { Once, FromThere };
    static constexpr const char* kRefusal = "Rifiutata per prova";

    Refusals();
    Refusals(const Refusals&) = delete;
    Refusals& operator=(const Refusals&) = delete;
    ~Refusals();

    /// Counts from zero again, and refuses the request at that place, counted from 1; none for 0.
    void begin(int place = 0, Lasting lasting = Lasting::Once);
    void end() { begin(); }
    /// What was asked since `begin`.
    const std::vector<std::string>& asked() const;

private:
    class Counter;
    class Wrapper;
    std::shared_ptr<Counter> counter_;
    std::unique_ptr<Wrapper> wrapper_;
};

} // namespace support
