#pragma once

#include "controls/RecordsetModel.h"

#include <QTableView>

#include <span>

namespace controls {

class RowsInSight;

/// One row of a grid's layout.
struct ColumnLayout {
    int place;           ///< of the column, counted from 0
    const char* caption; ///< null keeps the field's name
    int twips;           ///< 15 to a pixel; 0 hides the column
    Qt::Alignment alignment = Qt::AlignLeft;
};

/// A grid of the rows of a data control. Its current row is the recordset's; only where that is past its end the grid
/// is on its last row, which a click or Enter then makes current. Each refresh of the source resets the columns: every
/// field is visible, has its own name as caption and can be edited.
class DataGrid : public QTableView {
    Q_OBJECT
public:
    /// One column, by its place counted from 0.
    class Column {
    public:
        void setLocked(bool locked);
        void setVisible(bool visible);
        void setWidth(int twips); ///< 15 to a pixel; 0 hides it
        void setCaption(const std::string& caption);
        void setAlignment(Qt::Alignment alignment);

        bool Locked() const;
        bool Visible() const;
        int Width() const;
        std::string Caption() const;
        /// The text of the current row. Raises error 3021 where there is none.
        std::string Text() const;
        ado::Value Value() const;

    private:
        friend class DataGrid;
        Column(DataGrid& grid, int index) : grid_(&grid), index_(index) {}
        DataGrid* grid_;
        int index_;
    };

    explicit DataGrid(QWidget* parent = nullptr);

    void setDataSource(DataControl* source);
    int ColumnCount() const { return model_->columnCount(); }
    /// Raises error 9 for a column that doesn't exist.
    Column Columns(int index);
    /// Locks every column and sets those of the layout; the others stay as they are. Raises error 9 for a column that
    /// doesn't exist, after setting the ones before it.
    void lay(std::span<const ColumnLayout> layout);
    /// From now on columns that were given a width grow in proportion where the grid is wider than their sum, and none
    /// is narrower than its caption.
    void fillWidth();

signals:
    void DblClick(); ///< a double click or Enter on a row, or a double click on a grid without rows
    void Click();    ///< of the left button on a row, Enter, or Space in a locked column
    /// The user has gone to a row, which is current now: to another one, or by a press, Enter or Space to the same. Not
    /// emitted for moves in code, nor while typed letters search a row. Where the list is read again while a press
    /// gives the grid the focus, it is the row that the user saw, or none where that is gone.
    void RowPicked();
    /// A key was pressed; emitted once, however long it is held, and before the grid handles the key.
    void KeyDown(int key, Qt::KeyboardModifiers modifiers);

protected:
    void keyboardSearch(const QString& letters) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followRecordset();
    void takeRow();
    long position() const;
    void tellMove(long from);
    void pickFromAfar(int row);
    bool isInSight(const QSize& viewport) const;
    int visibleColumn() const;
    void leaveHiddenColumn();
    void showAllColumns();
    void shareWidth();

    RecordsetModel* model_;
    RowsInSight* inSight_;
    bool elsewhere_ = false; ///< the row that was pressed isn't where the mouse is
    bool following_ = false;
    bool pressed_ = false; ///< the left button was pressed on the grid and not yet released
    bool fillsWidth_ = false;
};

} // namespace controls
