#include "engine/text/Keywords.h"

#include <algorithm>
#include <array>
#include <string>

namespace engine {

namespace {

/// In the order of the enumeration, which is the alphabet's.
constexpr std::array<std::string_view, 181> kWords = {"ADD",
                                                      "ALL",
                                                      "ALTER",
                                                      "AND",
                                                      "ANY",
                                                      "AS",
                                                      "ASC",
                                                      "AUTHORIZATION",
                                                      "BACKUP",
                                                      "BEGIN",
                                                      "BETWEEN",
                                                      "BREAK",
                                                      "BROWSE",
                                                      "BULK",
                                                      "BY",
                                                      "CASCADE",
                                                      "CASE",
                                                      "CHECK",
                                                      "CHECKPOINT",
                                                      "CLOSE",
                                                      "CLUSTERED",
                                                      "COALESCE",
                                                      "COLLATE",
                                                      "COLUMN",
                                                      "COMMIT",
                                                      "COMPUTE",
                                                      "CONSTRAINT",
                                                      "CONTAINS",
                                                      "CONTAINSTABLE",
                                                      "CONTINUE",
                                                      "CONVERT",
                                                      "CREATE",
                                                      "CROSS",
                                                      "CURRENT",
                                                      "CURRENT_DATE",
                                                      "CURRENT_TIME",
                                                      "CURRENT_TIMESTAMP",
                                                      "CURRENT_USER",
                                                      "CURSOR",
                                                      "DATABASE",
                                                      "DBCC",
                                                      "DEALLOCATE",
                                                      "DECLARE",
                                                      "DEFAULT",
                                                      "DELETE",
                                                      "DENY",
                                                      "DESC",
                                                      "DISK",
                                                      "DISTINCT",
                                                      "DISTRIBUTED",
                                                      "DOUBLE",
                                                      "DROP",
                                                      "DUMP",
                                                      "ELSE",
                                                      "END",
                                                      "ERRLVL",
                                                      "ESCAPE",
                                                      "EXCEPT",
                                                      "EXEC",
                                                      "EXECUTE",
                                                      "EXISTS",
                                                      "EXIT",
                                                      "EXTERNAL",
                                                      "FETCH",
                                                      "FILE",
                                                      "FILLFACTOR",
                                                      "FOR",
                                                      "FOREIGN",
                                                      "FREETEXT",
                                                      "FREETEXTTABLE",
                                                      "FROM",
                                                      "FULL",
                                                      "FUNCTION",
                                                      "GOTO",
                                                      "GRANT",
                                                      "GROUP",
                                                      "HAVING",
                                                      "HOLDLOCK",
                                                      "IDENTITY",
                                                      "IDENTITYCOL",
                                                      "IDENTITY_INSERT",
                                                      "IF",
                                                      "IN",
                                                      "INDEX",
                                                      "INNER",
                                                      "INSERT",
                                                      "INTERSECT",
                                                      "INTO",
                                                      "IS",
                                                      "JOIN",
                                                      "KEY",
                                                      "KILL",
                                                      "LEFT",
                                                      "LIKE",
                                                      "LINENO",
                                                      "LOAD",
                                                      "MERGE",
                                                      "NATIONAL",
                                                      "NOCHECK",
                                                      "NONCLUSTERED",
                                                      "NOT",
                                                      "NULL",
                                                      "NULLIF",
                                                      "OF",
                                                      "OFF",
                                                      "OFFSETS",
                                                      "ON",
                                                      "OPEN",
                                                      "OPENDATASOURCE",
                                                      "OPENQUERY",
                                                      "OPENROWSET",
                                                      "OPENXML",
                                                      "OPTION",
                                                      "OR",
                                                      "ORDER",
                                                      "OUTER",
                                                      "OVER",
                                                      "PERCENT",
                                                      "PIVOT",
                                                      "PLAN",
                                                      "PRECISION",
                                                      "PRIMARY",
                                                      "PRINT",
                                                      "PROC",
                                                      "PROCEDURE",
                                                      "PUBLIC",
                                                      "RAISERROR",
                                                      "READ",
                                                      "READTEXT",
                                                      "RECONFIGURE",
                                                      "REFERENCES",
                                                      "REPLICATION",
                                                      "RESTORE",
                                                      "RESTRICT",
                                                      "RETURN",
                                                      "REVERT",
                                                      "REVOKE",
                                                      "RIGHT",
                                                      "ROLLBACK",
                                                      "ROWCOUNT",
                                                      "ROWGUIDCOL",
                                                      "RULE",
                                                      "SAVE",
                                                      "SCHEMA",
                                                      "SECURITYAUDIT",
                                                      "SELECT",
                                                      "SESSION_USER",
                                                      "SET",
                                                      "SETUSER",
                                                      "SHUTDOWN",
                                                      "SOME",
                                                      "STATISTICS",
                                                      "SYSTEM_USER",
                                                      "TABLE",
                                                      "TABLESAMPLE",
                                                      "TEXTSIZE",
                                                      "THEN",
                                                      "TO",
                                                      "TOP",
                                                      "TRAN",
                                                      "TRANSACTION",
                                                      "TRIGGER",
                                                      "TRUNCATE",
                                                      "TRY_CONVERT",
                                                      "TSEQUAL",
                                                      "UNION",
                                                      "UNIQUE",
                                                      "UNPIVOT",
                                                      "UPDATE",
                                                      "UPDATETEXT",
                                                      "USE",
                                                      "USER",
                                                      "VALUES",
                                                      "VARYING",
                                                      "VIEW",
                                                      "WAITFOR",
                                                      "WHEN",
                                                      "WHERE",
                                                      "WHILE",
                                                      "WITH",
                                                      "WRITETEXT"};

constexpr std::size_t kLongestWord = 17;

constexpr char upperLetter(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

static_assert(std::is_sorted(kWords.begin(), kWords.end()));
static_assert(std::all_of(kWords.begin(), kWords.end(), [](auto word) { return word.size() <= kLongestWord; }));
static_assert(static_cast<std::size_t>(Keyword::Writetext) == kWords.size());

} // namespace

Keyword keywordOf(std::string_view word) {
    if (word.size() < 2 || word.size() > kLongestWord)
        return Keyword::None;
    std::array<char, kLongestWord> buffer{};
    std::transform(word.begin(), word.end(), buffer.begin(), upperLetter);
    const std::string_view capitals(buffer.data(), word.size());
    const auto* const found = std::lower_bound(kWords.begin(), kWords.end(), capitals);
    if (found == kWords.end() || *found != capitals)
        return Keyword::None;
    return static_cast<Keyword>(found - kWords.begin() + 1);
}

std::string_view textOf(Keyword keyword) {
    return keyword == Keyword::None ? std::string_view() : kWords.at(static_cast<std::size_t>(keyword) - 1);
}

bool sameWord(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return upperLetter(a) == upperLetter(b); });
}

} // namespace engine
