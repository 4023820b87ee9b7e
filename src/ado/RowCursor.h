#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ado {

/// Where a recordset stands among its rows, or among those that a filter leaves. Moves raise 3021 where the table of
/// states says so; what overshoots sets BOF or EOF.
class RowCursor {
public:
    /// All of `rows`, from the first.
    void showAll(std::size_t rows);
    /// These alone, from the first.
    void showOnly(std::vector<std::uint32_t> rows);
    /// One more row of the store, shown behind all others and current.
    void added(std::size_t row);

    bool bof() const { return count_ == 0 || position_ < 0; }
    bool eof() const { return count_ == 0 || position_ >= count_; }
    bool onRow() const { return position_ >= 0 && position_ < count_; }
    long count() const { return count_; }
    std::size_t row() const; ///< its place in the store; only where there is one
    long position() const { return position_; }
    std::size_t rowAt(long position) const; ///< the place in the store of a shown row, from 0; raises 3021

    void first();
    void last();
    void move(long rows);
    void moveFromFirst(long rows);

private:
    void demandRows() const;
    void place(long position);

    bool filtered_ = false;
    std::vector<std::uint32_t> shown_; ///< where filtered
    long count_ = 0;
    long position_ = 0; ///< from 0; -1 before the first, count behind the last
};

} // namespace ado
