#pragma once

// What a server answers to a statement, as its documentation has it: a row for each, run on every connection.

#include <span>
#include <string>
#include <string_view>

namespace engine::documented {

struct Case {
    const char* statement;
    /// As `shown` of SessionFixture.h writes it; of an error its number may stand alone: `!8120`.
    const char* answer;
    const char* page; ///< of the documentation, or "a refusal of ours"
};

/// The cases of one kind build on each other: they run in their order in one session.
struct Kind {
    const char* name;
    std::span<const Case> cases;
};

std::span<const Kind> kinds();

/// Makes the tables that the cases of a kind begin with.
std::span<const char* const> preparations();

/// Whether an answer is the documented one.
bool agrees(std::string_view said, std::string_view documented);
/// An answer without the lines of statements that neither give nor write rows, for a connection that doesn't tell them.
std::string withoutSilentResults(std::string_view answer);

} // namespace engine::documented
