#pragma once

// Random choices that a seed repeats.

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace engine::differential {

class Dice {
public:
    explicit Dice(std::uint32_t seed) : random_(seed) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    bool once(int in) { return below(in) == 0; }

    template<class... Choices>
    std::string oneOf(Choices... choices) {
        const std::string_view all[] = {choices...};
        return std::string(all[below(static_cast<int>(sizeof...(choices)))]);
    }
    template<class List>
    std::string from(const List& list) {
        return std::string(list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))]);
    }

    std::string digits(int least, int most) {
        std::string result;
        for (int left = least + below(most - least + 1); left > 0; --left) {
            result += static_cast<char>('0' + below(10));
        }
        return result;
    }

private:
    std::mt19937 random_;
};

} // namespace engine::differential
