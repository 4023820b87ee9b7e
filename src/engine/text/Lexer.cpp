#include "engine/text/Lexer.h"

#include "engine/errors/TextErrors.h"
#include "engine/values/Ascii.h"
#include "engine/values/Collation.h"
#include "engine/values/DataType.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace engine {

namespace {

bool isHexDigit(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

bool startsName(char c) {
    return isLetter(c) || c == '_' || c == '#' || c == '@';
}

bool continuesName(char c) {
    return startsName(c) || isDigit(c) || c == '$';
}

bool fitsInt(std::string_view digits) {
    constexpr std::string_view kLargest = "2147483647";
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits.size() != kLargest.size() ? digits.size() < kLargest.size() : digits <= kLargest;
}

/// Whether the widest decimal holds it; zeros in front don't count.
bool fitsDecimal(std::string_view number) {
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return std::count_if(number.begin(), number.end(), isDigit) <= kWidestDecimal;
}

bool fitsFloat(std::string_view number) {
    long double value = 0; // wide enough to tell a number that is too large from one that is too small
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    return read.ec == std::errc::result_out_of_range ? number.find('-') != std::string_view::npos
                                                     : std::isfinite(static_cast<double>(value));
}

constexpr std::array<std::string_view, 6> kLongSymbols = {"<>", "!=", "<=", ">=", "!<", "!>"};
constexpr std::string_view kSymbols = "()+-*/%=<>,.;";

class Lexer {
public:
    explicit Lexer(std::string_view batch) : batch_(batch) {}

    std::vector<Token> run() {
        tokens_.reserve(batch_.size() / 4 + 2);
        for (skipBlanks(); at_ < batch_.size(); skipBlanks()) {
            next();
        }
        add(Token::Kind::End, at_);
        return std::move(tokens_);
    }

private:
    char look(std::size_t ahead = 0) const { return at_ + ahead < batch_.size() ? batch_[at_ + ahead] : '\0'; }
    bool looksLike(std::string_view text) const { return batch_.substr(at_, text.size()) == text; }

    Token& add(Token::Kind kind, std::size_t begin) {
        Token token;
        token.kind = kind;
        token.text = batch_.substr(begin, at_ - begin);
        token.position = static_cast<int>(begin);
        if (token.isLiteral()) {
            token.literal = literals_++;
        }
        return tokens_.emplace_back(token);
    }

    void skipBlanks() {
        while (at_ < batch_.size()) {
            if (isBlank(look())) {
                ++at_;
            } else if (looksLike("--")) {
                at_ = std::min(batch_.find('\n', at_), batch_.size());
            } else if (looksLike("/*")) {
                skipComment();
            } else {
                return;
            }
        }
    }

    void skipComment() {
        const std::size_t begin = at_;
        int depth = 0;
        do {
            if (at_ >= batch_.size()) {
                throw errors::unclosedComment(static_cast<int>(begin));
            }
            const bool opens = looksLike("/*");
            const bool closes = looksLike("*/");
            depth += opens ? 1 : closes ? -1 : 0;
            at_ += opens || closes ? 2 : 1;
        } while (depth > 0);
    }

    void next() {
        const std::size_t begin = at_;
        const char c = look();
        if ((c == 'N' || c == 'n') && look(1) == '\'') {
            ++at_;
            quoted(Token::Kind::NationalText, begin, '\'');
        } else if (c == '\'') {
            quoted(Token::Kind::Text, begin, '\'');
        } else if (c == '"') {
            quotedName(begin, '"');
        } else if (c == '[') {
            quotedName(begin, ']');
        } else if (isDigit(c) || (c == '.' && isDigit(look(1)))) {
            number(begin);
        } else if (startsName(c)) {
            word(begin);
        } else {
            symbol(begin);
        }
    }

    void quoted(Token::Kind kind, std::size_t begin, char close) {
        const std::size_t inside = ++at_;
        for (;; at_ += 2) {
            at_ = batch_.find(close, at_);
            if (at_ == std::string_view::npos) {
                throw errors::unclosedQuote(std::string(batch_.substr(inside)), static_cast<int>(begin));
            }
            if (look(1) != close) {
                break;
            }
        }
        ++at_;
        add(kind, begin);
    }

    void quotedName(std::size_t begin, char close) {
        quoted(Token::Kind::QuotedName, begin, close);
        const std::string name = valueOf(tokens_.back());
        if (name.empty()) {
            throw errors::emptyName(static_cast<int>(begin));
        }
        if (name.find('\0') != std::string::npos) {
            throw errors::syntaxNear(name.c_str(), static_cast<int>(begin));
        }
        refuseLongName(name, begin);
    }

    void digits() {
        while (isDigit(look())) {
            ++at_;
        }
    }

    void number(std::size_t begin) {
        if (look() == '0' && (look(1) == 'x' || look(1) == 'X')) {
            at_ += 2;
            while (isHexDigit(look())) {
                ++at_;
            }
            add(Token::Kind::Hexadecimal, begin);
            return;
        }
        auto kind = Token::Kind::Integer;
        digits();
        if (look() == '.') {
            kind = Token::Kind::Decimal;
            ++at_;
            digits();
        }
        if (look() == 'e' || look() == 'E') {
            kind = Token::Kind::Float;
            ++at_;
            if (look() == '+' || look() == '-') {
                ++at_;
            }
            digits();
        }
        const std::string_view written = batch_.substr(begin, at_ - begin);
        if (kind == Token::Kind::Float ? !fitsFloat(written) : !fitsDecimal(written)) {
            throw kind == Token::Kind::Float ? errors::floatOutOfRange(std::string(written), static_cast<int>(begin))
                                             : errors::numberTooLong(static_cast<int>(begin));
        }
        if (kind == Token::Kind::Integer && !fitsInt(written)) {
            kind = Token::Kind::Decimal;
        }
        add(kind, begin);
    }

    void word(std::size_t begin) {
        while (continuesName(look())) {
            ++at_;
        }
        const auto text = batch_.substr(begin, at_ - begin);
        refuseLongName(text, begin);
        if (text.starts_with("@@")) {
            add(Token::Kind::ServerVariable, begin);
        } else if (text.starts_with('@')) {
            add(Token::Kind::Variable, begin);
        } else {
            const Keyword keyword = keywordOf(text);
            add(keyword == Keyword::None ? Token::Kind::Identifier : Token::Kind::Keyword, begin).keyword = keyword;
        }
    }

    static void refuseLongName(std::string_view name, std::size_t begin) {
        const auto start = leftOf(name, kLongestName);
        if (start.size() < name.size()) {
            throw errors::identifierTooLong(std::string(start), static_cast<int>(begin));
        }
    }

    void symbol(std::size_t begin) {
        for (const auto longSymbol : kLongSymbols) {
            if (looksLike(longSymbol)) {
                at_ += longSymbol.size();
                add(Token::Kind::Symbol, begin);
                return;
            }
        }
        if (kSymbols.find(look()) == std::string_view::npos) {
            throw errors::syntaxNear(std::string(look() == '\0' ? 0 : 1, look()), static_cast<int>(begin));
        }
        ++at_;
        add(Token::Kind::Symbol, begin);
    }

    std::string_view batch_;
    std::size_t at_ = 0;
    int literals_ = 0;
    std::vector<Token> tokens_;
};

} // namespace

std::string valueOf(const Token& token) {
    std::string_view text = token.text;
    if (token.kind == Token::Kind::NationalText) {
        text.remove_prefix(1);
    }
    if (!token.isText() && token.kind != Token::Kind::QuotedName) {
        return std::string(text);
    }
    const char close = text.back();
    text = text.substr(1, text.size() - 2);
    std::string value;
    value.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        value += text[i];
        if (text[i] == close) {
            ++i;
        }
    }
    return value;
}

std::vector<Token> tokenize(std::string_view batch) {
    return Lexer(batch).run();
}

} // namespace engine
