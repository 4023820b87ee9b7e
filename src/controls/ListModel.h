#pragma once

#include "controls/DataControl.h"

#include <QAbstractListModel>

#include <string>

namespace controls {

/// The list of a combo: one text and one key per row of a data control. They are read from its recordset when needed
/// and not copied, so that a list of many thousand rows costs nothing until it is shown.
class ListModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ListModel(QObject* parent);

    /// Shows the rows that the source has now; none for a null source. Raises error 3265 for a field that doesn't
    /// exist.
    void fill(DataControl* source, const std::string& textField, const std::string& keyField);

    QString textAt(int row) const;
    std::string keyAt(int row) const;
    /// The first row with that text or key, -1 where there is none.
    int rowOfText(const QString& text) const;
    /// The same for a text as a user types it: where none has it, the first row that differs in the case alone.
    int rowTyped(const QString& text) const;
    int rowOfKey(const std::string& key) const;
    /// The length of the longest text, in bytes.
    qsizetype longest() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    ado::Recordset* rows() const;
    std::string read(int row, int field) const;

    DataControl* source_ = nullptr;
    int text_ = 0;
    int key_ = 0;
};

} // namespace controls
