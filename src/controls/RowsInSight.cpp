#include "controls/RowsInSight.h"

#include <QApplication>
#include <QEvent>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace controls {

RowsInSight::RowsInSight(QTableView& grid) : QObject(&grid), grid_(grid) {}

void RowsInSight::remember() {
    rows_.emplace();
    const int height = grid_.viewport()->height();
    const int count = grid_.model()->rowCount();
    for (int row = std::max(0, grid_.rowAt(0)); row < count && grid_.rowViewportPosition(row) < height; ++row) {
        rows_->push_back({grid_.rowViewportPosition(row) + grid_.rowHeight(row), row, keyOf(row)});
    }
    qApp->installEventFilter(this);
}

// The press that gave the focus may have been beside the rows, on a header or a scroll bar.
bool RowsInSight::eventFilter(QObject* watched, QEvent* event) {
    const auto* control = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonPress && control != nullptr && control->window() == grid_.window()) {
        qApp->removeEventFilter(this);
        if (control != grid_.viewport()) {
            rows_.reset();
        }
    }
    return false;
}

int RowsInSight::pressedRow(int y) {
    const auto rows = std::exchange(rows_, std::nullopt);
    if (!rows) {
        return grid_.rowAt(y);
    }
    for (const Row& row : *rows) {
        if (y < row.end) {
            return find(row);
        }
    }
    return -1;
}

QString RowsInSight::keyOf(int row) const {
    return grid_.model()->index(row, 0).data().toString();
}

int RowsInSight::find(const Row& seen) const {
    const int count = grid_.model()->rowCount();
    if (seen.number < count && keyOf(seen.number) == seen.key) {
        return seen.number;
    }
    for (int row = 0; row < count; ++row) {
        if (keyOf(row) == seen.key) {
            return row;
        }
    }
    return -1;
}

} // namespace controls
