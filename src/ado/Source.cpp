#include "ado/Source.h"

#include "ado/Literals.h"
#include "ado/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace ado {

namespace {

constexpr int kOptionTable = 2;
constexpr int kOptionUnspecified = -1;

bool isWordStart(char c) {
    return isNameStart(c) || c == '#';
}
bool isWordPart(char c) {
    return isWordStart(c) || isDigit(c) || c == '$' || c == '@';
}

std::size_t wordEnd(std::string_view text, std::size_t from) {
    while (from < text.size() && isWordPart(text[from])) {
        ++from;
    }
    return from;
}

/// The parts of a name, which points separate; nothing where the text isn't just a name.
std::optional<std::vector<std::string>> namePieces(std::string_view text) {
    std::vector<std::string> pieces;
    std::size_t at = 0;
    for (;;) {
        std::size_t end = 0;
        if (text.substr(at).starts_with('[')) {
            end = text.find(']', at);
            if (end == std::string_view::npos || end == at + 1) {
                return std::nullopt;
            }
            pieces.emplace_back(text.substr(at + 1, end - at - 1));
            ++end;
        } else {
            if (at == text.size() || !isWordStart(text[at])) {
                return std::nullopt;
            }
            end = wordEnd(text, at);
            pieces.emplace_back(text.substr(at, end - at));
        }
        if (end == text.size()) {
            return pieces;
        }
        if (text[end] != '.') {
            return std::nullopt;
        }
        at = end + 1;
    }
}

std::string wholeTable(const std::vector<std::string>& pieces) {
    std::string name;
    for (const std::string& piece : pieces) {
        addPiece(name, ".", quotedName(piece));
    }
    return "select * from " + name;
}

bool isOneOf(std::string_view word, std::string_view list) {
    return list.find(" " + lowered(word) + " ") != std::string_view::npos;
}

/// The end of the text, quoted name or comment that begins at `at`; `at` itself where none begins there.
std::size_t skipQuoted(std::string_view text, std::size_t at) {
    struct Quote {
        std::string_view open, close;
    };
    static constexpr std::array<Quote, 5> kQuotes = {
        {{"'", "'"}, {"\"", "\""}, {"[", "]"}, {"--", "\n"}, {"/*", "*/"}}};
    for (const Quote& quote : kQuotes) {
        if (!text.substr(at).starts_with(quote.open)) {
            continue;
        }
        const auto end = text.find(quote.close, at + quote.open.size());
        return end == std::string_view::npos ? text.size() : end + quote.close.size();
    }
    return at;
}

} // namespace

std::string statementOf(std::string_view source, int options) {
    const std::string_view text = trimmed(source);
    if (options != kOptionTable && options != kOptionUnspecified) {
        return std::string(source);
    }
    if (const auto pieces = namePieces(text)) {
        return wholeTable(*pieces);
    }
    return options == kOptionTable ? wholeTable({std::string(text)}) : std::string(source);
}

bool selectsPlainRows(std::string_view statement) {
    for (std::size_t at = 0; at < statement.size();) {
        const std::size_t behind = skipQuoted(statement, at);
        if (behind != at) {
            at = behind;
        } else if (isWordPart(statement[at])) {
            const std::size_t end = wordEnd(statement, at);
            if (isOneOf(statement.substr(at, end - at), " join group having distinct union ")) {
                return false;
            }
            at = end;
        } else {
            ++at;
        }
    }
    return true;
}

} // namespace ado
