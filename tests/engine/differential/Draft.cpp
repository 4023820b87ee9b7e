#include "engine/differential/Draft.h"

#include "engine/differential/Values.h"

namespace engine::differential {

std::string Draft::spelled(Dice& dice) {
    for (Piece& piece : pieces_) {
        if (piece.slot != Slot::Word) {
            piece.word = drawn(piece.slot, dice);
        }
    }
    return text();
}

std::string Draft::respelled(Dice& dice) {
    for (Piece& piece : pieces_) {
        if (piece.slot != Slot::Word && dice.once(2)) {
            piece.word = drawn(piece.slot, dice);
        }
    }
    return text();
}

std::string Draft::text() const {
    std::string all;
    for (const Piece& piece : pieces_) {
        all += piece.word;
    }
    return all;
}

std::string Draft::drawn(Slot slot, Dice& dice) const {
    return manner_ == Manner::Calm ? drawnCalmly(slot, dice) : drawnWildly(slot, dice);
}

std::string Draft::drawnCalmly(Slot slot, Dice& dice) const {
    switch (slot) {
    case Slot::Word:
        break;
    case Slot::Integer:
        return dice.once(20) ? dice.from(kWideIntegers) : dice.from(kIntegers);
    case Slot::Divisor:
        return dice.oneOf("1", "2", "3", "7");
    case Slot::Decimal:
        return dice.once(12) ? dice.from(kWideDecimals) : dice.from(kDecimals);
    case Slot::Float:
        return dice.once(12) ? dice.from(kWideFloats) : dice.from(kFloats);
    case Slot::Text:
        return quoted(dice.from(kTexts));
    case Slot::NationalText:
        return "N" + quoted(dice.from(kTexts));
    case Slot::NumberText:
        return quoted(dice.from(kNumberTexts));
    case Slot::DateText:
        return quoted(dice.from(kDates));
    case Slot::Pattern:
        return dice.oneOf("", "N") + quoted(dice.from(kPatterns));
    case Slot::Small:
        return std::to_string(dice.below(6));
    case Slot::Place:
        return std::to_string(1 + dice.below(3));
    case Slot::Precision:
        return std::to_string(16 + dice.below(10));
    case Slot::Style:
        return dice.oneOf("101", "102", "103", "104", "112", "120");
    }
    return "";
}

std::string Draft::drawnWildly(Slot slot, Dice& dice) const {
    constexpr int kUnlikely = 14; // a literal of another kind, whose plan must be another one
    if (slot <= Slot::NumberText && dice.once(kUnlikely)) {
        return dice.oneOf("null", "-3", "7", "4000000000", "0.25", "1e1", "'5'", "N'6.5'", "''", "N''");
    }
    switch (slot) {
    case Slot::Integer:
    case Slot::Divisor:
        return dice.once(3) ? dice.digits(1, 9) : std::to_string(dice.below(5));
    case Slot::Decimal:
        if (dice.once(8)) {
            return drawnWildly(Slot::Float, dice);
        }
        // Whole numbers over those of int count among the decimals too.
        return dice.once(6) ? "3" + dice.digits(9, 20) : dice.digits(0, 4) + "." + dice.digits(1, 6);
    case Slot::Float:
        return dice.digits(1, 2) + "." + dice.digits(1, 2) + "e" + dice.digits(1, 1);
    case Slot::NumberText:
        return "'" + dice.digits(1, 3) + dice.oneOf("", ".5", ",5", "x") + "'";
    case Slot::DateText:
        return dice.once(2) ? drawnCalmly(slot, dice)
                            : quoted(dice.oneOf("2004-3-7", "07/03/2004", "1.2.2004", "", "2004-02-30", "10:30"));
    case Slot::Text:
    case Slot::NationalText:
        if (dice.once(40)) {
            const std::string mark = slot == Slot::Text ? "'" : "N'";
            return mark + std::string(static_cast<std::size_t>(3990 + dice.below(30)), 'y') + "'";
        }
        return drawnCalmly(slot, dice);
    case Slot::Precision:
        return std::to_string(9 + dice.below(30));
    default:
        return drawnCalmly(slot, dice);
    }
}

} // namespace engine::differential
