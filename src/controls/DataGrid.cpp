#include "controls/DataGrid.h"

#include "ado/Conversions.h"
#include "controls/RowsInSight.h"
#include "controls/UserInput.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace controls {

namespace {

constexpr int kTwipsInAPixel = 15;

/// What the search of a row by its first letters takes.
bool isLetter(const QKeyEvent& key) {
    const bool command = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !command && !key.text().isEmpty() && key.text().at(0).isPrint();
}

} // namespace

void DataGrid::Column::setLocked(bool locked) {
    grid_->model_->column(index_).locked = locked;
}

void DataGrid::Column::setVisible(bool visible) {
    grid_->setColumnHidden(index_, !visible);
    grid_->leaveHiddenColumn();
}

void DataGrid::Column::setWidth(int twips) {
    grid_->model_->column(index_).twips = twips;
    setVisible(twips > 0);
    if (twips > 0) {
        grid_->setColumnWidth(index_, twips / kTwipsInAPixel);
    }
    grid_->shareWidth();
}

void DataGrid::Column::setCaption(const std::string& caption) {
    grid_->model_->column(index_).caption = QString::fromStdString(caption);
    grid_->model_->columnChanged(index_);
    grid_->shareWidth();
}

void DataGrid::Column::setAlignment(Qt::Alignment alignment) {
    grid_->model_->column(index_).alignment = alignment;
    grid_->model_->columnChanged(index_);
}

bool DataGrid::Column::Locked() const {
    return grid_->model_->column(index_).locked;
}

bool DataGrid::Column::Visible() const {
    return !grid_->isColumnHidden(index_);
}

int DataGrid::Column::Width() const {
    const int set = grid_->model_->column(index_).twips;
    return set > 0 ? set : grid_->columnWidth(index_) * kTwipsInAPixel;
}

std::string DataGrid::Column::Caption() const {
    return grid_->model_->column(index_).caption.toStdString();
}

std::string DataGrid::Column::Text() const {
    const ado::Value value = Value();
    return value.isNull() ? std::string() : ado::toText(value);
}

ado::Value DataGrid::Column::Value() const {
    return grid_->model_->source()->Recordset()[index_].Value();
}

DataGrid::DataGrid(QWidget* parent)
    : QTableView(parent), model_(new RecordsetModel(this)), inSight_(new RowsInSight(*this)) {
    setModel(model_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QTableView::doubleClicked, this, &DataGrid::DblClick);
    UserInput::watch();
}

void DataGrid::setDataSource(DataControl* source) {
    if (DataControl* former = model_->source()) {
        former->disconnect(this);
    }
    model_->setSource(source);
    if (source != nullptr) {
        // Connected after the model, so that the model has its rows when the grid follows.
        connect(source, &DataControl::refreshed, this, &DataGrid::showAllColumns);
        connect(source, &DataControl::refreshed, this, &DataGrid::followRecordset);
        connect(source, &DataControl::moved, this, &DataGrid::followRecordset);
    }
    showAllColumns();
    followRecordset();
}

DataGrid::Column DataGrid::Columns(int index) {
    model_->column(index);
    return {*this, index};
}

void DataGrid::lay(std::span<const ColumnLayout> layout) {
    for (int i = 0; i < ColumnCount(); ++i) {
        Columns(i).setLocked(true);
    }
    for (const ColumnLayout& row : layout) {
        Column column = Columns(row.place);
        if (row.caption != nullptr) {
            column.setCaption(row.caption);
        }
        if (row.alignment != model_->column(row.place).alignment) {
            column.setAlignment(row.alignment);
        }
        column.setWidth(row.twips);
    }
}

void DataGrid::showAllColumns() {
    for (int i = 0; i < ColumnCount(); ++i) {
        setColumnHidden(i, false);
        setColumnWidth(i, horizontalHeader()->defaultSectionSize());
    }
}

void DataGrid::followRecordset() {
    const QScopedValueRollback following(following_, true);
    const long place = position();
    const bool pastTheEnd = place < 1 && model_->rowCount() > 0 && model_->source()->Recordset().EOF();
    if (place < 1 && !pastTheEnd) {
        setCurrentIndex({});
        return;
    }
    const int row = pastTheEnd ? model_->rowCount() - 1 : static_cast<int>(place) - 1;
    if (currentIndex().row() != row) {
        setCurrentIndex(model_->index(row, visibleColumn()));
    }
}

int DataGrid::visibleColumn() const {
    int column = std::max(0, currentIndex().column());
    while (column < model_->columnCount() - 1 && isColumnHidden(column)) {
        ++column;
    }
    return column;
}

// The arrow keys don't work while the current column is hidden.
void DataGrid::leaveHiddenColumn() {
    const QScopedValueRollback following(following_, true);
    const QModelIndex current = currentIndex();
    if (current.isValid() && isColumnHidden(current.column())) {
        setCurrentIndex(model_->index(current.row(), visibleColumn()));
    }
}

void DataGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (following_ || !current.isValid() || current.row() == previous.row()) {
        return;
    }
    takeRow();
    followRecordset();
}

void DataGrid::takeRow() {
    const int row = currentIndex().row();
    DataControl* source = model_->source();
    if (row >= 0 && source->Recordset().AbsolutePosition() != row + 1) {
        source->byUser([&] { source->Recordset().setAbsolutePosition(row + 1); });
    }
}

/// The recordset's position, counted from 1; below 1 where there is no current row.
long DataGrid::position() const {
    DataControl* source = model_->source();
    const bool open = source != nullptr && source->hasRecordset() && source->Recordset().IsOpen();
    return open ? source->Recordset().AbsolutePosition() : -1;
}

void DataGrid::tellMove(long from) {
    const long now = position();
    if (now >= 1 && now != from) {
        emit RowPicked();
    }
}

// Without a current row the toolkit would search the first column, which may be hidden.
void DataGrid::keyboardSearch(const QString& letters) {
    if (!currentIndex().isValid() && model_->rowCount() > 0) {
        setCurrentIndex(model_->index(0, visibleColumn()));
    }
    QTableView::keyboardSearch(letters);
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    if (!UserInput::isRepeat(*event)) {
        emit KeyDown(event->key(), event->modifiers());
    }
    const bool onARow = state() != EditingState && currentIndex().isValid();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (onARow && enter) {
        takeRow();
        tellMove(0);
        emit Click();
        emit DblClick();
    } else if (onARow && event->key() == Qt::Key_Space && (currentIndex().flags() & Qt::ItemIsEditable) == 0) {
        takeRow();
        tellMove(0);
        emit Click();
    } else {
        const long before = position();
        QTableView::keyPressEvent(event);
        if (!isLetter(*event)) {
            tellMove(before);
        }
    }
}

void DataGrid::pickFromAfar(int row) {
    if (row >= 0) {
        setCurrentIndex(model_->index(row, visibleColumn()));
        takeRow();
        tellMove(0);
    }
}

void DataGrid::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const int row = inSight_->pressedRow(place.y());
    elsewhere_ = row != rowAt(place.y());
    pressed_ = event->button() == Qt::LeftButton && !elsewhere_;
    if (elsewhere_) {
        pickFromAfar(row);
        return;
    }
    QTableView::mousePressEvent(event);
    const bool onARow = indexAt(place).isValid();
    pressed_ = pressed_ && onARow;
    if (onARow) {
        takeRow();
        tellMove(0);
    }
}

// Moving with the button held down changes the row, too.
void DataGrid::mouseMoveEvent(QMouseEvent* event) {
    if (elsewhere_) {
        return;
    }
    const long before = position();
    QTableView::mouseMoveEvent(event);
    tellMove(before);
}

void DataGrid::mouseReleaseEvent(QMouseEvent* event) {
    elsewhere_ = false;
    QTableView::mouseReleaseEvent(event);
    const QPoint place = event->position().toPoint();
    const bool clicked = pressed_ && viewport()->rect().contains(place) && indexAt(place).isValid();
    if (event->button() == Qt::LeftButton) {
        pressed_ = false;
        if (clicked) {
            emit Click();
        }
    }
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (model_->rowCount() == 0) {
        emit DblClick();
    }
}

void DataGrid::fillWidth() {
    fillsWidth_ = true;
    shareWidth();
}

void DataGrid::shareWidth() {
    int twips = 0;
    for (int i = 0; i < ColumnCount(); ++i) {
        twips += isColumnHidden(i) ? 0 : model_->column(i).twips;
    }
    if (!fillsWidth_ || twips == 0) {
        return;
    }
    const double growth = std::max(1.0, viewport()->width() * kTwipsInAPixel / static_cast<double>(twips));
    int widest = -1;
    int owed = 0; // pixels that captions need beyond their column's share
    for (int i = 0; i < ColumnCount(); ++i) {
        if (isColumnHidden(i) || model_->column(i).twips == 0) {
            continue;
        }
        const int share = static_cast<int>(model_->column(i).twips * growth / kTwipsInAPixel);
        const int caption = horizontalHeader()->sectionSizeHint(i);
        setColumnWidth(i, std::max(share, caption));
        owed += std::max(0, caption - share);
        if (widest < 0 || columnWidth(i) > columnWidth(widest)) {
            widest = i;
        }
    }
    if (widest >= 0) {
        setColumnWidth(widest, std::max({columnWidth(widest) - owed, horizontalHeader()->sectionSizeHint(widest),
                                         model_->column(widest).twips / kTwipsInAPixel}));
    }
}

bool DataGrid::isInSight(const QSize& viewport) const {
    return currentIndex().isValid() && QRect({}, viewport).contains(visualRect(currentIndex()).center());
}

void DataGrid::resizeEvent(QResizeEvent* event) {
    const bool inSight = isInSight(event->oldSize());
    QTableView::resizeEvent(event);
    shareWidth();
    if (inSight && !isInSight(viewport()->size())) {
        const int column = horizontalScrollBar()->value();
        scrollTo(currentIndex());
        horizontalScrollBar()->setValue(column);
    }
}

// The current row is drawn paler while the grid doesn't have the focus.
void DataGrid::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
    option->state.setFlag(QStyle::State_Active, hasFocus() || state() == EditingState);
}

void DataGrid::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::MouseFocusReason) {
        inSight_->remember();
    }
    QTableView::focusInEvent(event);
    followRecordset();
}

} // namespace controls
