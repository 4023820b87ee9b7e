#pragma once

#include "ado/Driver.h"
#include "ado/RowStore.h"

#include <optional>
#include <string>
#include <vector>

namespace ado {

/// One value for each field of a recordset; none where the field wasn't assigned.
using Assignments = std::vector<std::optional<Value>>;

/// The statements that edit the rows of one table, and the key columns that find a row.
class RowStatements {
public:
    /// The table of the fields; none where they don't belong to exactly one.
    static std::optional<std::string> baseTable(const std::vector<FieldDescription>& fields);

    /// The key is the identity; else `primaryKey`, where the fields include all of it; else all values that can be
    /// compared.
    RowStatements(const std::vector<FieldDescription>& fields, const std::string& table,
                  const std::vector<std::string>& primaryKey);

    /// False where there is no key, so that rows can't be edited.
    bool tellsRowsApart() const { return !key_.empty(); }

    std::string insert(const Assignments& values) const;
    std::string update(const Assignments& values, const RowStore& rows, std::size_t row) const;
    /// Reads the row's columns in the order of `readColumns`. `hint` follows the table.
    std::string select(const RowStore& rows, std::size_t row, const std::string& hint) const;
    const std::vector<int>& readColumns() const { return readColumns_; }

private:
    std::string where(const RowStore& rows, std::size_t row) const;

    const std::vector<FieldDescription>& fields_;
    std::string table_;
    std::vector<int> key_;
    std::vector<int> readColumns_;
};

} // namespace ado
