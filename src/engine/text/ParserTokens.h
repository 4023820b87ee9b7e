#pragma once

#include "engine/text/Lexer.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace engine {

/// The tokens of a batch and the one that the parser has reached, with the steps that a grammar is written in.
class TokenStream {
protected:
    explicit TokenStream(std::string_view batch);

    const Token& now() const { return tokens_[at_]; }
    const Token& ahead(std::size_t tokens) const;
    const Token& last() const { return tokens_[at_ == 0 ? 0 : at_ - 1]; }
    bool atEnd() const { return now().kind == Token::Kind::End; }
    bool at(Keyword keyword) const { return now().is(keyword); }
    bool at(std::string_view symbol) const { return now().is(symbol); }
    /// A word that is not reserved, such as CAST.
    bool atWord(std::string_view word) const;

    const Token& consume();
    /// A keyword or a symbol.
    template<class Wanted>
    bool consumeIf(const Wanted& wanted) {
        const bool found = at(wanted);
        at_ += found ? 1 : 0;
        return found;
    }
    template<class Wanted>
    void expect(const Wanted& wanted) {
        if (!consumeIf(wanted)) {
            refuse();
        }
    }
    bool consumeIfWord(std::string_view word);
    void expectWord(std::string_view word);
    std::string expectName();
    std::string expectText();
    /// Digits with an optional sign.
    long long expectInteger();

    /// 102 or 156 at the present token, 102 at the last one where the batch ends.
    [[noreturn]] void refuse() const;
    /// 102 or 156 at a token.
    [[noreturn]] static void refuse(const Token& token);
    /// 40510 where the batch goes on with a word that a server would know here and this one doesn't.
    void refuseWord(std::string_view word, std::string_view statement) const;
    /// The token that an error noticed here is told to be near.
    const Token& nearest() const { return atEnd() ? last() : now(); }
    /// How many literals of the batch lie behind the present token.
    int literalsConsumed() const { return literals_; }
    std::string textBetween(int begin, int end) const;

    /// Counts one more operator above what the present expression holds; 191 where the tree becomes too tall.
    void grow();

    /// One level of nested selects, brackets or statements, as long as it exists; 191 where there are too many.
    class Level {
    public:
        explicit Level(TokenStream& stream);
        ~Level();
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        TokenStream& stream_;
        int outer_;
    };

    /// Measures the height of an expression apart from those parsed before it.
    class Measure {
    public:
        explicit Measure(TokenStream& stream) : stream_(stream), outer_(std::exchange(stream.height_, 0)) {}
        ~Measure();
        Measure(const Measure&) = delete;
        Measure& operator=(const Measure&) = delete;

    private:
        TokenStream& stream_;
        int outer_;
    };

private:
    std::string_view batch_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    int literals_ = 0;
    int depth_ = 0;
    int height_ = 0;
};

} // namespace engine
