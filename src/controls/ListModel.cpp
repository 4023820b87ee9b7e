#include "controls/ListModel.h"

#include "ado/Conversions.h"

namespace controls {

namespace {

int fieldIndex(ado::Recordset& rows, const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    for (int i = 0; i < rows.FieldCount(); ++i) {
        if (QString::fromStdString(rows[i].Name()).compare(wanted, Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    throw ado::Error(ado::kItemNotFound);
}

} // namespace

ListModel::ListModel(QObject* parent) : QAbstractListModel(parent) {}

void ListModel::fill(DataControl* source, const std::string& textField, const std::string& keyField) {
    beginResetModel();
    source_ = nullptr;
    endResetModel();
    if (source == nullptr || !source->hasRecordset() || !source->Recordset().IsOpen()) {
        return;
    }
    text_ = fieldIndex(source->Recordset(), textField);
    key_ = fieldIndex(source->Recordset(), keyField);
    beginResetModel();
    source_ = source;
    endResetModel();
}

ado::Recordset* ListModel::rows() const {
    const bool open = source_ != nullptr && source_->hasRecordset() && source_->Recordset().IsOpen();
    return open ? &source_->Recordset() : nullptr;
}

int ListModel::rowCount(const QModelIndex& parent) const {
    const ado::Recordset* shown = rows();
    return parent.isValid() || shown == nullptr ? 0 : static_cast<int>(std::max(0L, shown->RecordCount()));
}

std::string ListModel::read(int row, int field) const {
    const ado::Value value = rows()->ValueAt(row + 1, field);
    return value.isNull() ? std::string() : ado::toText(value);
}

QString ListModel::textAt(int row) const {
    return QString::fromStdString(read(row, text_));
}

std::string ListModel::keyAt(int row) const {
    return read(row, key_);
}

int ListModel::rowOfText(const QString& text) const {
    const std::string wanted = text.toStdString();
    const int count = rowCount();
    for (int row = 0; row < count; ++row) {
        if (read(row, text_) == wanted) {
            return row;
        }
    }
    return -1;
}

int ListModel::rowTyped(const QString& text) const {
    const int exact = rowOfText(text);
    const int count = rowCount();
    for (int row = 0; exact < 0 && row < count; ++row) {
        if (textAt(row).compare(text, Qt::CaseInsensitive) == 0) {
            return row;
        }
    }
    return exact;
}

int ListModel::rowOfKey(const std::string& key) const {
    const int count = rowCount();
    for (int row = 0; row < count; ++row) {
        if (read(row, key_) == key) {
            return row;
        }
    }
    return -1;
}

qsizetype ListModel::longest() const {
    std::size_t longest = 0;
    const int count = rowCount();
    for (int row = 0; row < count; ++row) {
        longest = std::max(longest, read(row, text_).size());
    }
    return static_cast<qsizetype>(longest);
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    try {
        return rows() == nullptr ? QVariant() : QVariant(textAt(index.row()));
    } catch (const ado::Error&) {
        return {}; // the row doesn't exist any more
    }
}

} // namespace controls
