#include "engine/text/ParserTokens.h"

#include "engine/errors/DefinitionErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/text/Parser.h"

#include <algorithm>
#include <charconv>

namespace engine {

TokenStream::TokenStream(std::string_view batch) : batch_(batch), tokens_(tokenize(batch)) {}

const Token& TokenStream::ahead(std::size_t tokens) const {
    return tokens_[std::min(at_ + tokens, tokens_.size() - 1)];
}

bool TokenStream::atWord(std::string_view word) const {
    return now().kind == Token::Kind::Identifier && sameWord(now().text, word);
}

const Token& TokenStream::consume() {
    if (atEnd()) {
        refuse();
    }
    literals_ += now().isLiteral() ? 1 : 0;
    return tokens_[at_++];
}

bool TokenStream::consumeIfWord(std::string_view word) {
    const bool found = atWord(word);
    at_ += found ? 1 : 0;
    return found;
}

void TokenStream::expectWord(std::string_view word) {
    if (!consumeIfWord(word)) {
        refuse();
    }
}

std::string TokenStream::expectName() {
    if (!now().isName()) {
        refuse();
    }
    return valueOf(consume());
}

std::string TokenStream::expectText() {
    if (!now().isText()) {
        refuse();
    }
    return valueOf(consume());
}

long long TokenStream::expectInteger() {
    const bool negative = consumeIf("-");
    if (!negative) {
        consumeIf("+");
    }
    long long number = 0;
    const std::string_view digits = now().text;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (!now().isNumber() || failure != std::errc() || end != digits.data() + digits.size()) {
        refuse();
    }
    consume();
    return negative ? -number : number;
}

void TokenStream::refuse() const {
    if (atEnd()) {
        throw errors::syntaxNear(valueOf(last()), last().position);
    }
    refuse(now());
}

void TokenStream::refuse(const Token& token) {
    if (token.kind == Token::Kind::Keyword) {
        throw errors::syntaxNearKeyword(std::string(token.text), token.position);
    }
    throw errors::syntaxNear(valueOf(token), token.position);
}

void TokenStream::refuseWord(std::string_view word, std::string_view statement) const {
    if (sameWord(now().text, word)) {
        throw errors::notSupported(std::string(statement));
    }
}

std::string TokenStream::textBetween(int begin, int end) const {
    return std::string(batch_.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
}

void TokenStream::grow() {
    if (++height_ > kTallestTree) {
        throw errors::nestedTooDeep();
    }
}

TokenStream::Level::Level(TokenStream& stream) : stream_(stream), outer_(std::exchange(stream.height_, 0)) {
    if (++stream_.depth_ > kDeepestNesting) {
        throw errors::nestedTooDeep();
    }
}

TokenStream::Level::~Level() {
    --stream_.depth_;
    stream_.height_ = std::max(outer_, stream_.height_ + 1);
}

TokenStream::Measure::~Measure() {
    stream_.height_ = std::max(outer_, stream_.height_);
}

} // namespace engine
