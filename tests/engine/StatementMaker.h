#pragma once

// Random statements, each in two spellings: the same words, about half of the literals different.

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// Draws statements over `t (id int, i int, b bigint, d decimal(9,3), m money, f float, v varchar(20), n nvarchar(20),
/// w datetime)`. Most are sound; those that aren't must be refused in the same way under both spellings.
class StatementMaker {
public:
    explicit StatementMaker(std::uint32_t seed) : random_(seed) {}

    struct Pair {
        std::string first, second;
    };
    Pair make();

private:
    enum class Slot {
        Word,
        Integer,
        Decimal,
        Float,
        Text,
        NationalText,
        DateText,
        NumberText,
        Small,
        Place,
        Precision,
        Style
    };
    struct Piece {
        Slot slot;
        std::string word;
    };

    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    bool once(int in) { return below(in) == 0; }
    template<class... Choices>
    std::string oneOf(Choices... choices) {
        const std::string_view all[] = {choices...};
        return std::string(all[below(static_cast<int>(sizeof...(choices)))]);
    }

    void word(std::string text) { pieces_.push_back({Slot::Word, std::move(text)}); }
    void slot(Slot kind) { pieces_.push_back({kind, ""}); }
    template<class Item>
    void list(int count, Item item, const char* between = ", ") {
        for (int i = 0; i < count; ++i) {
            word(i == 0 ? "" : between);
            item();
        }
    }

    void statement();
    void select(int items);
    void number(int depth);
    void text(int depth);
    void date(int depth);
    void value(int depth);
    void aggregate();
    void condition(int depth);
    void type();
    std::string drawn(Slot kind);
    std::string digits(int least, int most);

    std::mt19937 random_;
    std::vector<Piece> pieces_;
    bool row_ = true; ///< columns may stand here
};

} // namespace engine
