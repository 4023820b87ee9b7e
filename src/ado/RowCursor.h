#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ado {

/// The position of a recordset among its rows, or among those that a filter admits. A move beyond the first or last row
/// sets BOF or EOF; a further one in that direction, and one without rows, raises 3021.
class RowCursor {
public:
    /// Shows that many rows and goes to the first.
    void showAll(std::size_t rows);
    /// Shows only these rows of the store and goes to the first.
    void showOnly(std::vector<std::uint32_t> rows);
    /// Shows one more row of the store, after all others, and goes to it.
    void added(std::size_t row);

    bool bof() const { return count_ == 0 || position_ < 0; }
    bool eof() const { return count_ == 0 || position_ >= count_; }
    bool onRow() const { return position_ >= 0 && position_ < count_; }
    long count() const { return count_; }
    /// The current row's place in the store; only to be called where there is a current row.
    std::size_t row() const { return shown(position_); }
    long position() const { return position_; }
    std::size_t rowAt(long position) const; ///< the place in the store of a shown row, from 0; raises 3021

    void first();
    void last();
    void move(long rows);
    void moveFromFirst(long rows);

private:
    std::size_t shown(long position) const {
        const auto place = static_cast<std::size_t>(position);
        return filtered_ ? shown_[place] : place;
    }
    void demandRows() const;
    void place(long position);

    bool filtered_ = false;
    std::vector<std::uint32_t> shown_; ///< places in the store, only where filtered
    long count_ = 0;
    long position_ = 0; ///< from 0; -1 before the first row, count_ after the last
};

} // namespace ado
