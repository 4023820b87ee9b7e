#include "controls/RecordsetModel.h"

#include "ado/Conversions.h"
#include "controls/PropertyError.h"

namespace controls {

RecordsetModel::RecordsetModel(QObject* parent) : QAbstractTableModel(parent) {}

void RecordsetModel::setSource(DataControl* source) {
    if (source_ != nullptr) {
        source_->disconnect(this);
    }
    source_ = source;
    if (source_ != nullptr) {
        connect(source_, &DataControl::refreshed, this, &RecordsetModel::makeColumns);
        connect(source_, &DataControl::rowsChanged, this, &RecordsetModel::showRows);
        connect(source_, &DataControl::moved, this, [this] {
            if (rowCount() > 0) {
                emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
            }
        });
        connect(source_, &QObject::destroyed, this, [this] {
            source_ = nullptr;
            makeColumns();
        });
    }
    makeColumns();
}

ado::Recordset* RecordsetModel::recordset() const {
    const bool open = source_ != nullptr && source_->hasRecordset() && source_->Recordset().IsOpen();
    return open ? &source_->Recordset() : nullptr;
}

void RecordsetModel::makeColumns() {
    beginResetModel();
    columns_.clear();
    if (ado::Recordset* rows = recordset()) {
        for (int i = 0; i < rows->FieldCount(); ++i) {
            columns_.push_back({.caption = QString::fromStdString((*rows)[i].Name())});
        }
    }
    endResetModel();
}

void RecordsetModel::showRows() {
    beginResetModel();
    endResetModel();
}

RecordsetModel::Column& RecordsetModel::column(int index) {
    if (index < 0 || index >= columnCount()) {
        throw subscriptOutOfRange();
    }
    return columns_[static_cast<std::size_t>(index)];
}

void RecordsetModel::columnChanged(int index) {
    emit headerDataChanged(Qt::Horizontal, index, index);
    if (rowCount() > 0) {
        emit dataChanged(this->index(0, index), this->index(rowCount() - 1, index));
    }
}

std::string RecordsetModel::text(int row, int column) const {
    const ado::Value value = recordset()->ValueAt(row + 1, column);
    return value.isNull() ? std::string() : ado::toText(value);
}

int RecordsetModel::rowCount(const QModelIndex& parent) const {
    const ado::Recordset* rows = recordset();
    return parent.isValid() || rows == nullptr ? 0 : static_cast<int>(std::max(0L, rows->RecordCount()));
}

int RecordsetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordsetModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || recordset() == nullptr) {
        return {};
    }
    const Column& column = columns_[static_cast<std::size_t>(index.column())];
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole) {
        return {};
    }
    try {
        return QString::fromStdString(text(index.row(), index.column()));
    } catch (const ado::Error&) {
        return {}; // the row doesn't exist any more
    }
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Column& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) {
        return column.caption;
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    }
    return {};
}

Qt::ItemFlags RecordsetModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && !columns_[static_cast<std::size_t>(index.column())].locked) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool RecordsetModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    ado::Recordset* rows = recordset();
    if (rows == nullptr || !index.isValid() || role != Qt::EditRole) {
        return false;
    }
    bool written = false;
    source_->byUser([&] {
        rows->setAbsolutePosition(index.row() + 1);
        (*rows)[index.column()] = ado::Value(value.toString().toStdString());
        rows->Update();
        written = true;
    });
    return written;
}

} // namespace controls
