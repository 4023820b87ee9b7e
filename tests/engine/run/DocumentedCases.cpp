#include "engine/run/DocumentedCases.h"

#include <algorithm>

namespace engine::documented {

namespace {

constexpr Case kSettings[] = {
#include "engine/run/DocumentedSettings.inc"
};
constexpr Case kComparisons[] = {
#include "engine/run/DocumentedComparisons.inc"
};
constexpr Case kJoins[] = {
#include "engine/run/DocumentedJoins.inc"
};
constexpr Case kKeys[] = {
#include "engine/run/DocumentedKeys.inc"
};
constexpr Case kDates[] = {
#include "engine/run/DocumentedDates.inc"
};
constexpr Case kDateStyles[] = {
#include "engine/run/DocumentedDateStyles.inc"
};
constexpr Case kNulls[] = {
#include "engine/run/DocumentedNulls.inc"
};
constexpr Case kGrouping[] = {
#include "engine/run/DocumentedGrouping.inc"
};
constexpr Case kTexts[] = {
#include "engine/run/DocumentedTexts.inc"
};
constexpr Case kPatterns[] = {
#include "engine/run/DocumentedPatterns.inc"
};
constexpr Case kCatalog[] = {
#include "engine/run/DocumentedCatalog.inc"
};
constexpr Case kIntegers[] = {
#include "engine/run/DocumentedIntegers.inc"
};
constexpr Case kIdentities[] = {
#include "engine/run/DocumentedIdentities.inc"
};
constexpr Case kWrites[] = {
#include "engine/run/DocumentedWrites.inc"
};
constexpr Case kErrors[] = {
#include "engine/run/DocumentedErrors.inc"
};

constexpr Kind kKinds[] = {
    {"Settings", kSettings},     {"Comparisons", kComparisons}, {"Joins", kJoins},     {"Keys", kKeys},
    {"Dates", kDates},           {"DateStyles", kDateStyles},   {"Nulls", kNulls},     {"Grouping", kGrouping},
    {"Texts", kTexts},           {"Patterns", kPatterns},       {"Catalog", kCatalog}, {"Integers", kIntegers},
    {"Identities", kIdentities}, {"Writes", kWrites},           {"Errors", kErrors},
};

constexpr const char* kPreparations[] = {
    "CREATE TABLE voci (n int NOT NULL CONSTRAINT pk_voci PRIMARY KEY, c char(10) NULL, v varchar(10) NULL, b bit NULL)",
    "INSERT INTO voci VALUES (1, 'ab', 'ab', 1), (2, 'cd', 'xy  ', 0), (3, 'xy', NULL, NULL)",
    "CREATE TABLE righe (id int NOT NULL PRIMARY KEY, sede varchar(10) NULL, q int NULL, d datetime NULL, "
    "t nvarchar(30) NULL)",
    "INSERT INTO righe VALUES (1, 'Asti', 10, '20040307', N'uno'), (2, 'Asti', 20, '20040308', N'due'), "
    "(3, 'Bari', 30, '20050101', N'tre'), (4, 'Bari', NULL, NULL, N'quattro'), (5, NULL, 50, '20051231', NULL)",
};

} // namespace

std::span<const Kind> kinds() {
    return kKinds;
}

std::span<const char* const> preparations() {
    return kPreparations;
}

bool agrees(std::string_view said, std::string_view documented) {
    const bool numberAlone = documented.starts_with('!') && documented.find(' ') == std::string_view::npos;
    return numberAlone ? said.starts_with(std::string(documented) + " ") && said.find('\n') == std::string_view::npos
                       : said == documented;
}

std::string withoutSilentResults(std::string_view answer) {
    std::string kept;
    while (!answer.empty()) {
        const std::size_t end = std::min(answer.find('\n'), answer.size());
        const std::string_view line = answer.substr(0, end);
        answer.remove_prefix(std::min(end + 1, answer.size()));
        if (line != "-") {
            kept += std::string(line) + "\n";
        }
    }
    return kept;
}

} // namespace engine::documented
