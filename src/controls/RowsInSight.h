#pragma once

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QTableView;

namespace controls {

/// What a grid showed when a press of the mouse gave it the focus. Before the press arrives, the field that had the
/// focus may store in its LostFocus and read the list again: the user means the row that was there, which is found by
/// its first column.
class RowsInSight : public QObject {
public:
    explicit RowsInSight(QTableView& grid);

    /// To be called when a press gives the focus, ahead of what follows from it.
    void remember();
    /// The row at the height of a press that has arrived: where it is now, -1 where there was none or it is gone.
    int pressedRow(int y);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        int end; ///< the height at which the next one begins
        int number;
        QString key;
    };
    QString keyOf(int row) const;
    int find(const Row& seen) const;

    QTableView& grid_;
    std::optional<std::vector<Row>> rows_; ///< until the press arrives
};

} // namespace controls
