#pragma once

#include "ado/Block.h"
#include "ado/Driver.h"
#include "ado/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ado {

/// The rows of a selection in memory: cells of 8 bytes, a bit per cell that tells the nulls, and the texts. All lie in
/// blocks that stay where they are: moving them as they grow would cost more than reading the rows.
class RowStore {
public:
    RowStore() = default;
    explicit RowStore(const std::vector<FieldDescription>& fields);

    /// Reads all rows of the present result.
    void fetch(DriverResult& result);
    void append(const std::vector<Value>& row);
    /// `value` must have the column's type or be null.
    void replace(std::size_t row, int column, const Value& value);

    std::size_t rows() const { return rows_; }
    bool isNull(std::size_t row, int column) const { return hasNull(this->row(row), column); }
    Value value(std::size_t row, int column) const;
    /// The characters of a text cell, not copied; empty for a null.
    std::string_view text(std::size_t row, int column) const;

private:
    struct DayTime {
        std::int32_t day, millisecond;
    };
    /// The column's type tells which of them it is. A text is its length, four bytes, and its characters.
    union Cell {
        std::uint64_t nulls;  ///< at the begin of a row: a bit for each of 64 columns
        std::int64_t integer; ///< decimals without their point
        double real;
        const std::byte* text;
        DayTime date;
    };
    static_assert(sizeof(Cell) == 8);

    struct Column {
        FieldType type;
        bool comesAsText; ///< from the driver
        int scale;
    };

    static std::uint64_t bitOf(int column) { return std::uint64_t{1} << (static_cast<unsigned>(column) % 64); }
    std::size_t widthOfRow() const { return wordsOfNulls_ + columns_.size(); }
    std::size_t rowsOfBlock() const { return std::size_t{1} << logRowsOfBlock_; }
    Cell* row(std::size_t number) const {
        auto* cells = reinterpret_cast<Cell*>(blocks_[number >> logRowsOfBlock_].data());
        return cells + (number & (rowsOfBlock() - 1)) * widthOfRow();
    }
    Cell& cellOf(Cell* row, int column) const { return row[wordsOfNulls_ + static_cast<std::size_t>(column)]; }
    static bool hasNull(const Cell* row, int column) {
        return (row[static_cast<std::size_t>(column) / 64].nulls & bitOf(column)) != 0;
    }
    static void setNull(Cell* row, int column) { row[static_cast<std::size_t>(column) / 64].nulls |= bitOf(column); }
    /// The row behind the last one, to be written before it is counted; no cell of it is null.
    Cell* nextRow();
    /// False for a null.
    bool read(const DriverResult& result, int field, Cell& cell);
    void write(Cell* row, int column, const Value& value);
    /// Where a copy of a text lies.
    const std::byte* kept(std::string_view text);
    static std::string_view textOf(const Cell& cell);

    std::vector<Column> columns_;
    std::size_t wordsOfNulls_ = 0; ///< at the begin of each row
    unsigned logRowsOfBlock_ = 0;  ///< a power of two, since a division would cost as much as reading a cell
    std::vector<Block> blocks_;
    std::size_t rows_ = 0;
    std::vector<Block> texts_;
    std::size_t textRoom_ = 0; ///< left at the end of the last block of texts
    std::byte* nextText_ = nullptr;
};

} // namespace ado
