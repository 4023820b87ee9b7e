#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ado {

/// The rows of a selection in memory: cells of 16 bytes in one block, and their texts in another.
class RowStore {
public:
    RowStore() = default;
    explicit RowStore(const std::vector<FieldDescription>& fields);

    /// Reads all rows of the present result.
    void fetch(DriverResult& result);
    void append(const std::vector<Value>& row);
    /// `value` must have the column's type or be null.
    void replace(std::size_t row, int column, const Value& value);

    std::size_t rows() const { return columns_.empty() ? 0 : cells_.size() / columns_.size(); }
    bool isNull(std::size_t row, int column) const { return cell(row, column).kind == Kind::Null; }
    Value value(std::size_t row, int column) const;
    /// The characters of a text cell, not copied.
    std::string_view text(std::size_t row, int column) const;

private:
    enum class Kind : std::uint8_t { Null, Integer, Real, Text, Date };
    struct DayTime {
        std::int32_t day, millisecond;
    };
    struct Cell {
        union {
            std::int64_t integer; ///< decimals without their point
            double real;
            std::uint64_t offset;
            DayTime date;
        };
        std::uint32_t length = 0;
        Kind kind = Kind::Null;

        Cell() : integer(0) {}
    };
    static_assert(sizeof(Cell) == 16);

    struct Column {
        FieldType type;
        int scale;
    };

    const Cell& cell(std::size_t row, int column) const {
        return cells_[row * columns_.size() + static_cast<std::size_t>(column)];
    }
    Cell read(const DriverResult& result, int field);
    Cell textCell(std::string_view text);
    Cell toCell(const Value& value);

    std::vector<Column> columns_;
    std::vector<Cell> cells_;
    std::string texts_;
};

} // namespace ado
