#pragma once

// What a session answers to a statement, and whether two answers are the same.

#include "engine/run/Session.h"

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine::differential {

struct Answer {
    using Row = std::vector<std::optional<std::string>>;

    std::vector<ResultColumn> columns;
    std::vector<Row> rows;
    std::int64_t affected = -1;
    int error = 0; ///< 0: none
    std::string errorText;

    bool refused() const { return error != 0; }
    /// The statement was accepted and a value of some row refused: which rows are looked at is the plan's choice.
    bool refusedInARow() const;
    bool refusedAsDouble() const;
    /// An error of the engine or its storage.
    bool broken() const;

    /// Names, types, rows in their order, and the error: all that a client is told.
    std::string told() const;
    /// The rows as a text. Where not `exactly`, texts that compare as equal are the same.
    std::string rowsTold(bool inOrder, bool exactly = false) const;
};

Answer ask(Session& session, std::string_view statement);

} // namespace engine::differential
