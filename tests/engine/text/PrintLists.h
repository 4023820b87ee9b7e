#pragma once

#include "engine/text/Print.h"

#include <string_view>

namespace engine {

/// Collects the pieces of one list: `(head piece piece)`.
class ListText {
public:
    explicit ListText(std::string_view head) : text_("(") { text_ += head; }

    ListText& add(std::string_view piece) {
        text_ += ' ';
        text_ += piece;
        return *this;
    }
    ListText& addIf(bool condition, std::string_view piece) { return condition ? add(piece) : *this; }
    ListText& add(const ExpressionPtr& expression) { return expression ? add(print(*expression)) : *this; }
    /// A list of its own around an expression, nothing where there is none.
    ListText& add(std::string_view head, const ExpressionPtr& expression) {
        return expression ? add(ListText(head).add(expression).text()) : *this;
    }
    std::string text() const { return text_ + ")"; }

private:
    std::string text_;
};

/// Pieces joined by points.
std::string print(const Name& name);
std::string print(const SelectCore& core);
std::string print(const OrderItem& item);

} // namespace engine
