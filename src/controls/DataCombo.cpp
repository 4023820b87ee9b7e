#include "controls/DataCombo.h"

#include "ado/Conversions.h"
#include "controls/FocusTracker.h"

#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include <algorithm>

namespace controls {

namespace {

constexpr int kVisibleRows = 16;
constexpr int kPopupPadding = 24;

std::string shown(const ado::Value& value) {
    return value.isNull() ? std::string() : ado::toText(value);
}

int fieldIndex(ado::Recordset& rows, const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    for (int i = 0; i < rows.FieldCount(); ++i)
        if (QString::fromStdString(rows[i].Name()).compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
    throw ado::Error(ado::kItemNotFound);
}

} // namespace

DataCombo::DataCombo(QWidget* parent) : QComboBox(parent), list_(new QStringListModel(this)) {
    auto* view = new QListView(this);
    view->setUniformItemSizes(true);
    setView(view);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(kVisibleRows);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setModel(list_);
    auto* search = new QCompleter(list_, this);
    search->setCaseSensitivity(Qt::CaseInsensitive);
    search->setFilterMode(Qt::MatchContains);
    search->setMaxVisibleItems(kVisibleRows);
    setCompleter(search);
    lineEdit()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, &DataCombo::picked);
    connect(&FocusTracker::instance(), &FocusTracker::moved, this, &DataCombo::followFocus);
}

void DataCombo::setRowSource(DataControl* source) {
    if (source_ != nullptr)
        source_->disconnect(this);
    source_ = source;
    if (source_ != nullptr) {
        const auto refill = [this] { source_->byUser([this] { ReFill(); }); };
        connect(source_, &DataControl::refreshed, this, refill);
        connect(source_, &DataControl::rowsChanged, this, refill);
        connect(source_, &QObject::destroyed, this, [this] { source_ = nullptr; });
    }
}

void DataCombo::ReFill() {
    QStringList texts;
    std::vector<std::string> keys;
    if (source_ != nullptr && source_->hasRecordset() && source_->Recordset().IsOpen() && !ListField.empty()) {
        ado::Recordset& rows = source_->Recordset();
        const int text = fieldIndex(rows, ListField);
        const int key = fieldIndex(rows, BoundColumn.empty() ? ListField : BoundColumn);
        const long count = rows.RecordCount();
        for (long row = 1; row <= count; ++row) {
            texts.append(QString::fromStdString(shown(rows.ValueAt(row, text))));
            keys.push_back(shown(rows.ValueAt(row, key)));
        }
    }
    const QString text = currentText();
    pickedRow_ = -1;
    keys_ = std::move(keys);
    list_->setStringList(texts);
    setCurrentIndex(-1);
    setEditText(text);
}

void DataCombo::setText(const std::string& text) {
    pickedRow_ = -1;
    setCurrentIndex(-1);
    setEditText(QString::fromStdString(text));
}

std::string DataCombo::BoundText() const {
    const QStringList texts = list_->stringList();
    qsizetype row = pickedRow_;
    if (row < 0 || row >= texts.size() || texts[row] != currentText())
        row = texts.indexOf(currentText());
    return row < 0 ? std::string() : keys_[static_cast<std::size_t>(row)];
}

void DataCombo::setBoundText(const std::string& key) {
    const auto found = std::find(keys_.begin(), keys_.end(), key);
    if (found == keys_.end()) {
        setText({});
        return;
    }
    pickedRow_ = static_cast<int>(found - keys_.begin());
    setCurrentIndex(pickedRow_);
}

void DataCombo::picked(int row) {
    // Leaving the field with a text that stands in the list isn't a pick.
    if (leaving_)
        return;
    pickedRow_ = row;
    emit Click(List);
}

void DataCombo::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore(); // an Enter in the text belongs to the form
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        showPopup(); // no row is picked unseen
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void DataCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void DataCombo::mousePressEvent(QMouseEvent* event) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const auto part = style()->hitTestComplexControl(QStyle::CC_ComboBox, &option, event->position().toPoint(), this);
    emit Click(part == QStyle::SC_ComboBoxArrow ? Button : Edit);
    QComboBox::mousePressEvent(event);
}

void DataCombo::focusOutEvent(QFocusEvent* event) {
    const QScopedValueRollback leaving(leaving_, true);
    QComboBox::focusOutEvent(event);
}

void DataCombo::showPopup() {
    widenPopup();
    QComboBox::showPopup();
}

void DataCombo::widenPopup() {
    const QFontMetrics metrics(view()->font());
    int widest = 0;
    for (const QString& text : list_->stringList())
        widest = std::max(widest, metrics.horizontalAdvance(text));
    const int wanted = widest + kPopupPadding + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width() / 2));
}

bool DataCombo::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress)
        emit Click(Edit);
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease && selectAtRelease_) {
        selectAtRelease_ = false;
        lineEdit()->selectAll();
    }
    return QComboBox::eventFilter(watched, event);
}

void DataCombo::followFocus(QWidget* from, QWidget* to) {
    if (to == this) {
        lineEdit()->selectAll();
        selectAtRelease_ = QApplication::mouseButtons() != Qt::NoButton;
        emit GotFocus();
    } else if (from == this) {
        emit LostFocus();
    }
}

} // namespace controls
