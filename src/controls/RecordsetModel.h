#pragma once

#include "controls/DataControl.h"

#include <QAbstractTableModel>

#include <vector>

namespace controls {

/// The rows of a data control for a grid. They are read from its recordset without copying and without moving its
/// current row.
class RecordsetModel : public QAbstractTableModel {
    Q_OBJECT
public:
    struct Column {
        QString caption;
        Qt::Alignment alignment = Qt::AlignLeft;
        bool locked = false;
        int twips = 0; ///< as last set; 0 where it hasn't been set
    };

    explicit RecordsetModel(QObject* parent);

    void setSource(DataControl* source);
    DataControl* source() const { return source_; }
    /// Raises error 9 for a column that doesn't exist.
    Column& column(int index);
    /// To be called after a caption or an alignment has changed.
    void columnChanged(int index);
    std::string text(int row, int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    ado::Recordset* recordset() const;
    void makeColumns();
    void showRows();

    DataControl* source_ = nullptr;
    std::vector<Column> columns_;
};

} // namespace controls
