#include "ado/RowCursor.h"

#include "ado/Error.h"

#include <algorithm>
#include <utility>

namespace ado {

void RowCursor::showAll(std::size_t rows) {
    filtered_ = false;
    shown_.clear();
    count_ = static_cast<long>(rows);
    position_ = 0;
}

void RowCursor::showOnly(std::vector<std::uint32_t> rows) {
    filtered_ = true;
    shown_ = std::move(rows);
    count_ = static_cast<long>(shown_.size());
    position_ = 0;
}

void RowCursor::added(std::size_t row) {
    if (filtered_) {
        shown_.push_back(static_cast<std::uint32_t>(row));
    }
    position_ = count_++;
}

std::size_t RowCursor::rowAt(long position) const {
    if (position < 0 || position >= count_) {
        throw Error(kNoCurrentRecord);
    }
    return shown(position);
}

void RowCursor::first() {
    moveFromFirst(0);
}
void RowCursor::last() {
    moveFromFirst(count_ - 1);
}

void RowCursor::move(long rows) {
    const bool leavesBackwards = bof() && rows <= 0;
    const bool leavesForwards = eof() && rows >= 0;
    if (leavesBackwards || leavesForwards) {
        throw Error(kNoCurrentRecord);
    }
    place(position_ + std::clamp(rows, -count_ - 1, count_ + 1));
}

void RowCursor::moveFromFirst(long rows) {
    demandRows();
    place(rows);
}

void RowCursor::demandRows() const {
    if (count_ == 0) {
        throw Error(kNoCurrentRecord);
    }
}

void RowCursor::place(long position) {
    position_ = std::clamp(position, -1L, count_);
}

} // namespace ado
