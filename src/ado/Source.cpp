#include "ado/Source.h"

#include "ado/Literals.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace ado {

namespace {

constexpr int kOptionTable = 2;
constexpr int kOptionUnspecified = -1;

bool isWordStart(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '#' || byte >= 0x80;
}
bool isWordPart(char c) {
    return isWordStart(c) || (c >= '0' && c <= '9') || c == '$' || c == '@';
}

std::size_t wordEnd(std::string_view text, std::size_t from) {
    while (from < text.size() && isWordPart(text[from]))
        ++from;
    return from;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const auto begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The pieces of a name with points between them, nothing where the text is more than a name.
std::optional<std::vector<std::string>> namePieces(std::string_view text) {
    std::vector<std::string> pieces;
    std::size_t at = 0;
    for (;;) {
        std::size_t end = 0;
        if (text.substr(at).starts_with('[')) {
            end = text.find(']', at);
            if (end == std::string_view::npos || end == at + 1)
                return std::nullopt;
            pieces.emplace_back(text.substr(at + 1, end - at - 1));
            ++end;
        } else {
            if (at == text.size() || !isWordStart(text[at]))
                return std::nullopt;
            end = wordEnd(text, at);
            pieces.emplace_back(text.substr(at, end - at));
        }
        if (end == text.size())
            return pieces;
        if (text[end] != '.')
            return std::nullopt;
        at = end + 1;
    }
}

std::string wholeTable(const std::vector<std::string>& pieces) {
    std::string statement = "select * from ";
    for (const std::string& piece : pieces)
        statement += (&piece == &pieces.front() ? "" : ".") + quotedName(piece);
    return statement;
}

bool isOneOf(std::string_view word, std::string_view list) {
    std::string upper = " ";
    for (const char c : word)
        upper += c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
    return list.find(upper + " ") != std::string_view::npos;
}

/// The end of a text, a quoted name or a comment that begins at `at`; `at` itself where none does.
std::size_t skipQuoted(std::string_view text, std::size_t at) {
    struct Quote {
        std::string_view open, close;
    };
    static constexpr std::array<Quote, 5> kQuotes = {
        {{"'", "'"}, {"\"", "\""}, {"[", "]"}, {"--", "\n"}, {"/*", "*/"}}};
    for (const Quote& quote : kQuotes) {
        if (!text.substr(at).starts_with(quote.open))
            continue;
        const auto end = text.find(quote.close, at + quote.open.size());
        return end == std::string_view::npos ? text.size() : end + quote.close.size();
    }
    return at;
}

} // namespace

std::string statementOf(std::string_view source, int options) {
    const std::string_view text = trimmed(source);
    if (options != kOptionTable && options != kOptionUnspecified)
        return std::string(source);
    if (const auto pieces = namePieces(text))
        return wholeTable(*pieces);
    return options == kOptionTable ? wholeTable({std::string(text)}) : std::string(source);
}

bool selectsPlainRows(std::string_view statement) {
    for (std::size_t at = 0; at < statement.size();) {
        const std::size_t behind = skipQuoted(statement, at);
        if (behind != at) {
            at = behind;
        } else if (isWordPart(statement[at])) {
            const std::size_t end = wordEnd(statement, at);
            if (isOneOf(statement.substr(at, end - at), " JOIN GROUP HAVING DISTINCT UNION "))
                return false;
            at = end;
        } else {
            ++at;
        }
    }
    return true;
}

} // namespace ado
