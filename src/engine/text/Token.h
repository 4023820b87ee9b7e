#pragma once

#include "engine/text/Keywords.h"

#include <string>
#include <string_view>

namespace engine {

/// One token. Its text is a piece of the batch, which must outlive it.
struct Token {
    enum class Kind : std::uint8_t {
        Identifier,
        QuotedName, ///< [name] or "name", text with its quotes
        Keyword,
        Variable,       ///< @name
        ServerVariable, ///< @@name
        Integer,        ///< fits into 32 bits
        Decimal,        ///< with a point, or an integer beyond 32 bits
        Float,          ///< with an exponent
        Hexadecimal,
        Text,         ///< 'text', with its quotes
        NationalText, ///< N'text', with letter and quotes
        Symbol,
        End
    };

    Kind kind = Kind::End;
    Keyword keyword = Keyword::None;
    std::string_view text;
    int position = 0; ///< byte offset in the batch
    int literal = -1; ///< ordinal among the literals of the batch, -1 for every other token

    bool isName() const { return kind == Kind::Identifier || kind == Kind::QuotedName; }
    bool isText() const { return kind == Kind::Text || kind == Kind::NationalText; }
    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Decimal || kind == Kind::Float; }
    bool isLiteral() const { return isText() || isNumber(); }
    bool is(Keyword word) const { return keyword == word; }
    bool is(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
    int end() const { return position + static_cast<int>(text.size()); }
};

/// What a token means: a name or a text without its quotes (doubled ones made single), anything else as written.
std::string valueOf(const Token& token);

} // namespace engine
