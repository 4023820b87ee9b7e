#include "engine/text/Keywords.h"

#include "engine/values/Ascii.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

struct Word {
    std::string_view text;
    Keyword keyword;
};

/// In the order of the alphabet.
constexpr auto kWords = std::to_array<Word>({
    {"ADD", Keyword::Add},
    {"ALL", Keyword::All},
    {"ALTER", Keyword::Alter},
    {"AND", Keyword::And},
    {"AS", Keyword::As},
    {"ASC", Keyword::Asc},
    {"BEGIN", Keyword::Begin},
    {"BETWEEN", Keyword::Between},
    {"BY", Keyword::By},
    {"CASE", Keyword::Case},
    {"CHECK", Keyword::Check},
    {"CLUSTERED", Keyword::Clustered},
    {"COALESCE", Keyword::Coalesce},
    {"COLLATE", Keyword::Collate},
    {"CONSTRAINT", Keyword::Constraint},
    {"CONVERT", Keyword::Convert},
    {"CREATE", Keyword::Create},
    {"CROSS", Keyword::Cross},
    {"CURRENT_TIMESTAMP", Keyword::CurrentTimestamp},
    {"CURRENT_USER", Keyword::CurrentUser},
    {"DATABASE", Keyword::Database},
    {"DEFAULT", Keyword::Default},
    {"DELETE", Keyword::Delete},
    {"DESC", Keyword::Desc},
    {"DISTINCT", Keyword::Distinct},
    {"DROP", Keyword::Drop},
    {"ELSE", Keyword::Else},
    {"END", Keyword::End},
    {"ESCAPE", Keyword::Escape},
    {"EXISTS", Keyword::Exists},
    {"FROM", Keyword::From},
    {"FULL", Keyword::Full},
    {"GROUP", Keyword::Group},
    {"HAVING", Keyword::Having},
    {"HOLDLOCK", Keyword::Holdlock},
    {"IDENTITY", Keyword::Identity},
    {"IDENTITY_INSERT", Keyword::IdentityInsert},
    {"IF", Keyword::If},
    {"IN", Keyword::In},
    {"INDEX", Keyword::Index},
    {"INNER", Keyword::Inner},
    {"INSERT", Keyword::Insert},
    {"INTO", Keyword::Into},
    {"IS", Keyword::Is},
    {"JOIN", Keyword::Join},
    {"KEY", Keyword::Key},
    {"LEFT", Keyword::Left},
    {"LIKE", Keyword::Like},
    {"NOCHECK", Keyword::Nocheck},
    {"NONCLUSTERED", Keyword::Nonclustered},
    {"NOT", Keyword::Not},
    {"NULL", Keyword::Null},
    {"NULLIF", Keyword::Nullif},
    {"OFF", Keyword::Off},
    {"ON", Keyword::On},
    {"OR", Keyword::Or},
    {"ORDER", Keyword::Order},
    {"OUTER", Keyword::Outer},
    {"PRIMARY", Keyword::Primary},
    {"PRINT", Keyword::Print},
    {"RECONFIGURE", Keyword::Reconfigure},
    {"RIGHT", Keyword::Right},
    {"ROLLBACK", Keyword::Rollback},
    {"ROWCOUNT", Keyword::Rowcount},
    {"SELECT", Keyword::Select},
    {"SESSION_USER", Keyword::SessionUser},
    {"SET", Keyword::Set},
    {"STATISTICS", Keyword::Statistics},
    {"SYSTEM_USER", Keyword::SystemUser},
    {"TABLE", Keyword::Table},
    {"TEXTSIZE", Keyword::Textsize},
    {"THEN", Keyword::Then},
    {"TOP", Keyword::Top},
    {"TRAN", Keyword::Tran},
    {"TRANSACTION", Keyword::Transaction},
    {"TRUNCATE", Keyword::Truncate},
    {"UNION", Keyword::Union},
    {"UNIQUE", Keyword::Unique},
    {"UPDATE", Keyword::Update},
    {"USE", Keyword::Use},
    {"USER", Keyword::User},
    {"VALUES", Keyword::Values},
    {"WHEN", Keyword::When},
    {"WHERE", Keyword::Where},
    {"WITH", Keyword::With},
});

/// Those that the grammar has no use for, in the same order.
constexpr auto kReserved = std::to_array<std::string_view>({"ANY",
                                                            "AUTHORIZATION",
                                                            "BACKUP",
                                                            "BREAK",
                                                            "BROWSE",
                                                            "BULK",
                                                            "CASCADE",
                                                            "CHECKPOINT",
                                                            "CLOSE",
                                                            "COLUMN",
                                                            "COMMIT",
                                                            "COMPUTE",
                                                            "CONTAINS",
                                                            "CONTAINSTABLE",
                                                            "CONTINUE",
                                                            "CURRENT",
                                                            "CURRENT_DATE",
                                                            "CURRENT_TIME",
                                                            "CURSOR",
                                                            "DBCC",
                                                            "DEALLOCATE",
                                                            "DECLARE",
                                                            "DENY",
                                                            "DISK",
                                                            "DISTRIBUTED",
                                                            "DOUBLE",
                                                            "DUMP",
                                                            "ERRLVL",
                                                            "EXCEPT",
                                                            "EXEC",
                                                            "EXECUTE",
                                                            "EXIT",
                                                            "EXTERNAL",
                                                            "FETCH",
                                                            "FILE",
                                                            "FILLFACTOR",
                                                            "FOR",
                                                            "FOREIGN",
                                                            "FREETEXT",
                                                            "FREETEXTTABLE",
                                                            "FUNCTION",
                                                            "GOTO",
                                                            "GRANT",
                                                            "IDENTITYCOL",
                                                            "INTERSECT",
                                                            "KILL",
                                                            "LINENO",
                                                            "LOAD",
                                                            "MERGE",
                                                            "NATIONAL",
                                                            "OF",
                                                            "OFFSETS",
                                                            "OPEN",
                                                            "OPENDATASOURCE",
                                                            "OPENQUERY",
                                                            "OPENROWSET",
                                                            "OPENXML",
                                                            "OPTION",
                                                            "OVER",
                                                            "PERCENT",
                                                            "PIVOT",
                                                            "PLAN",
                                                            "PRECISION",
                                                            "PROC",
                                                            "PROCEDURE",
                                                            "PUBLIC",
                                                            "RAISERROR",
                                                            "READ",
                                                            "READTEXT",
                                                            "REFERENCES",
                                                            "REPLICATION",
                                                            "RESTORE",
                                                            "RESTRICT",
                                                            "RETURN",
                                                            "REVERT",
                                                            "REVOKE",
                                                            "ROWGUIDCOL",
                                                            "RULE",
                                                            "SAVE",
                                                            "SCHEMA",
                                                            "SECURITYAUDIT",
                                                            "SETUSER",
                                                            "SHUTDOWN",
                                                            "SOME",
                                                            "TABLESAMPLE",
                                                            "TO",
                                                            "TRIGGER",
                                                            "TRY_CONVERT",
                                                            "TSEQUAL",
                                                            "UNPIVOT",
                                                            "UPDATETEXT",
                                                            "VARYING",
                                                            "VIEW",
                                                            "WAITFOR",
                                                            "WHILE",
                                                            "WRITETEXT"});

constexpr std::size_t kLongestWord = 17;

static_assert(std::is_sorted(kWords.begin(), kWords.end(),
                             [](const Word& left, const Word& right) { return left.text < right.text; }));
static_assert(std::is_sorted(kReserved.begin(), kReserved.end()));
static_assert(std::all_of(kWords.begin(), kWords.end(),
                          [](const Word& word) { return word.text.size() <= kLongestWord; }));

} // namespace

Keyword keywordOf(std::string_view word) {
    if (word.size() < 2 || word.size() > kLongestWord) {
        return Keyword::None;
    }
    std::array<char, kLongestWord> buffer{};
    std::transform(word.begin(), word.end(), buffer.begin(), capital);
    const std::string_view wanted(buffer.data(), word.size());
    const auto found = std::lower_bound(kWords.begin(), kWords.end(), wanted,
                                        [](const Word& one, std::string_view text) { return one.text < text; });
    if (found != kWords.end() && found->text == wanted) {
        return found->keyword;
    }
    return std::binary_search(kReserved.begin(), kReserved.end(), wanted) ? Keyword::Reserved : Keyword::None;
}

bool sameWord(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return capital(a) == capital(b); });
}

} // namespace engine
