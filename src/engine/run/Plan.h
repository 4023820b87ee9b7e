#pragma once

// A statement ready to run: the storage's prepared text, what is bound to it, and what its result looks like.

#include "engine/bind/BoundTree.h"
#include "engine/run/Session.h"
#include "engine/store/Sqlite.h"
#include "engine/text/Shape.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace engine {

struct Plan {
    Verb verb;
    sqlite::Statement statement;
    std::vector<bound::Parameter> parameters; ///< of `statement`, in the order of its text
    std::vector<ResultColumn> columns;

    /// Of a statement that writes.
    const TableInfo* table = nullptr;
    const ColumnInfo* identity = nullptr;    ///< of INSERT, where the table has one
    bool givesIdentity = false;              ///< the statement itself, under IDENTITY_INSERT
    std::optional<sqlite::Statement> source; ///< the SELECT of INSERT … SELECT
    std::vector<bound::Parameter> sourceParameters;
    /// Finds the rows to be written; prepared where another session holds rows.
    std::string rowsText;
    std::optional<sqlite::Statement> rows;
    std::vector<bound::Parameter> rowsParameters;

    /// The server's own tables that have to be filled before a run.
    std::vector<std::string> systemTables;
    /// Whether another run of the same shape may use it again.
    bool reusable = true;
    /// Literals that shaped the plan, by ordinal: another run must have the same.
    std::vector<std::pair<int, std::string>> fixed;
    /// Numbers whose digits give an expression its type: another run must have as many.
    std::vector<std::pair<int, DataType>> fixedDigits;

    bool writes() const { return verb != Verb::Select; }

    Plan(Verb verbOfText, sqlite::Statement prepared) : verb(verbOfText), statement(std::move(prepared)) {}
};

using PlanPtr = std::shared_ptr<Plan>;

struct Bindings {
    /// Of this run; nullptr where the statement runs with the literals it was bound with.
    const std::vector<Literal>* literals = nullptr;
    DateOrder dateOrder = DateOrder::MonthDayYear;
};

Scalar valueOf(const bound::Parameter& parameter, const Bindings& bindings);
void bindValue(sqlite::Statement& statement, int place, const Scalar& value);
/// Binds the parameters that come from literals and constants. Throws the errors of the literals' conversions.
void bindLiterals(sqlite::Statement& statement, const std::vector<bound::Parameter>& parameters,
                  const Bindings& bindings);

} // namespace engine
