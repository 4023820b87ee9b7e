#pragma once

#include "controls/RecordsetModel.h"

#include <QTableView>

#include <span>

namespace controls {

/// One row of a grid's layout.
struct ColumnLayout {
    int place;           ///< from 0
    const char* caption; ///< null keeps the field's name
    int twips;           ///< 15 to a pixel; 0 hides the column
    Qt::Alignment alignment = Qt::AlignLeft;
};

/// A grid over the rows of a data control. Its current row and the recordset's are one; only past the end it stands on
/// its last row, which a click or Enter then makes current. Each refresh of the source makes the columns anew: every
/// field visible, under its own name, open to edits.
class DataGrid : public QTableView {
    Q_OBJECT
public:
    /// One column, by its place from 0.
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
        /// What the current row shows. Error 3021 without one.
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
    /// Error 9 for a column that isn't there.
    Column Columns(int index);
    /// Locks every column and sets those of the layout; the others keep what they have. Error 9 for a column that isn't
    /// there, with the rows of the layout ahead of it set.
    void lay(std::span<const ColumnLayout> layout);
    /// Columns of a layout grow in proportion where the grid is wider than they are together, and none is narrower than
    /// its caption.
    void fillWidth();

signals:
    void DblClick(); ///< or Enter, on a row; a double click on a grid without rows as well
    void Click();    ///< of the left button, on a row or beside the rows; or Space in a locked column
    /// The user has gone to a row, which is current now: to another one, or to the same with a press or Space. No move
    /// in code tells this.
    void RowPicked();
    /// A key goes down, once however long it is held, before the grid does its own with it.
    void KeyDown(int key, Qt::KeyboardModifiers modifiers);

protected:
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
    bool isInSight(const QSize& viewport) const;
    int visibleColumn() const;
    void leaveHiddenColumn();
    void showAllColumns();
    void shareWidth();

    RecordsetModel* model_;
    bool following_ = false;
    bool pressed_ = false; ///< the left button went down here and hasn't come up
    bool fillsWidth_ = false;
};

} // namespace controls
