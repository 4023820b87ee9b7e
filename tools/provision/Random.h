#pragma once

#include <cstdint>

namespace provision {

/// Random numbers (splitmix64) that are the same on every machine and with every library.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        std::uint64_t mixed = (state_ += 0x9E3779B97F4A7C15U);
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    /// 0 to bound - 1.
    std::int64_t below(std::int64_t bound) {
        return static_cast<std::int64_t>(next() % static_cast<std::uint64_t>(bound));
    }

    bool oneIn(std::int64_t times) { return below(times) == 0; }

    template<typename List>
    const auto& among(const List& list) {
        return list[static_cast<std::size_t>(below(static_cast<std::int64_t>(list.size())))];
    }

private:
    std::uint64_t state_;
};

} // namespace provision
