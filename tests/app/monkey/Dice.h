#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace monkey {

/// All choices of the monkey, from one seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : random_(seed) {}

    /// From 0 to `end` - 1.
    int below(int end) { return static_cast<int>(random_() % static_cast<std::uint64_t>(end)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int times) { return below(times) == 0; }

    template<typename Items>
    auto& oneOf(Items& items) {
        return items[random_() % static_cast<std::uint64_t>(std::size(items))];
    }

private:
    std::mt19937_64 random_;
};

} // namespace monkey
