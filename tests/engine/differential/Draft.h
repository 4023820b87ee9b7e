#pragma once

// The words of a statement, some of them literals that each spelling draws anew.

#include "engine/differential/Dice.h"

#include <string>
#include <vector>

namespace engine::differential {

/// Calm statements hardly ever fail in a row, wild ones mix whatever types they find.
enum class Manner { Calm, Wild };

class Draft {
public:
    enum class Slot {
        Word,
        Integer,
        Divisor,
        Decimal,
        Float,
        Text,
        NationalText,
        NumberText,
        DateText,
        Pattern,
        Small,
        Place,
        Precision,
        Style
    };

    explicit Draft(Manner manner) : manner_(manner) {}

    void word(std::string text) { pieces_.push_back({Slot::Word, std::move(text)}); }
    void slot(Slot kind) { pieces_.push_back({kind, ""}); }

    std::string spelled(Dice& dice);
    /// The spelling before with about half of its literals drawn anew.
    std::string respelled(Dice& dice);

private:
    struct Piece {
        Slot slot;
        std::string word;
    };
    std::string text() const;
    std::string drawn(Slot slot, Dice& dice) const;
    std::string drawnCalmly(Slot slot, Dice& dice) const;
    std::string drawnWildly(Slot slot, Dice& dice) const;

    Manner manner_;
    std::vector<Piece> pieces_;
};

} // namespace engine::differential
