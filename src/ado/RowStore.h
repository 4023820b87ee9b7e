#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ado {

/// The rows of a selection in memory: cells of 16 bytes, and their texts. Both lie in blocks that stay where they are:
/// moving them as they grow would cost more than reading the rows.
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
    bool isNull(std::size_t row, int column) const { return cell(row, column).kind == Kind::Null; }
    Value value(std::size_t row, int column) const;
    /// The characters of a text cell, not copied.
    std::string_view text(std::size_t row, int column) const;

private:
    static constexpr std::size_t kRowsOfBlock = 64;
    static constexpr std::size_t kTextBlock = 32'768;

    enum class Kind : std::uint8_t { Null, Integer, Real, Text, Date };
    struct DayTime {
        std::int32_t day, millisecond;
    };
    struct Cell {
        union {
            std::int64_t integer; ///< decimals without their point
            double real;
            const char* text;
            DayTime date;
        };
        std::uint32_t length;
        Kind kind;
    };
    static_assert(sizeof(Cell) == 16);

    struct Column {
        FieldType type;
        int scale;
    };

    const Cell& cell(std::size_t row, int column) const {
        return blocks_[row / kRowsOfBlock][row % kRowsOfBlock * columns_.size() + static_cast<std::size_t>(column)];
    }
    /// The cells of the row behind the last one, to be written before it is counted.
    Cell* nextRow();
    Cell read(const DriverResult& result, int field);
    Cell textCell(std::string_view text);
    Cell toCell(const Value& value);

    std::vector<Column> columns_;
    std::vector<std::unique_ptr<Cell[]>> blocks_;
    std::size_t rows_ = 0;
    std::vector<std::unique_ptr<char[]>> texts_;
    std::size_t textRoom_ = 0; ///< left at the end of the last block of texts
    char* nextText_ = nullptr;
};

} // namespace ado
