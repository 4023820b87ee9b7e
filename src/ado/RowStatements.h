#pragma once

#include "ado/Driver.h"
#include "ado/RowStore.h"

#include <optional>
#include <string>
#include <vector>

namespace ado {

/// One value for each field of a recordset, nothing where the field wasn't assigned.
using Assignments = std::vector<std::optional<Value>>;

/// The statements by which one table's rows are edited: which table, by which columns a row is found.
class RowStatements {
public:
    /// Nothing where the fields aren't the columns of one table.
    static std::optional<std::string> baseTable(const std::vector<FieldDescription>& fields);

    /// The key is the identity, else `primaryKey` where the fields have all of it, else all values.
    RowStatements(const std::vector<FieldDescription>& fields, const std::string& table,
                  const std::vector<std::string>& primaryKey);

    /// False where nothing tells one row from another: then there is no statement for it.
    bool tellsRowsApart() const { return !key_.empty(); }

    std::string insert(const Assignments& values) const;
    std::string update(const Assignments& values, const RowStore& rows, std::size_t row) const;
    /// All columns of the one row, in the order of the fields that `readColumns` gives.
    /// `hint` stands behind the table.
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
