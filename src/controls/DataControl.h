#pragma once

#include "ado/Recordset.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace controls {

/// The source of the lists and grids of a form: a connection text, a record source, and the recordset that Refresh
/// makes of them. Never visible.
class DataControl : public QWidget {
    Q_OBJECT
public:
    explicit DataControl(QWidget* parent = nullptr);
    ~DataControl() override;

    std::string ConnectionString;
    std::string RecordSource;

    /// Takes both texts and refreshes.
    void load(const std::string& connection, const std::string& source);
    /// Closes and opens anew: a new recordset, unfiltered, on its first row. What fails raises and leaves none.
    void Refresh();
    /// Error 91 before the first Refresh and after one that failed.
    ado::Recordset& Recordset();
    bool hasRecordset() const { return recordset_ != nullptr; }

    /// What a user does in a control that is bound to this one. An error becomes the signal Error.
    void byUser(const std::function<void()>& act);

signals:
    void Error(int number, const QString& description);
    void refreshed();   ///< another recordset, or none
    void rowsChanged(); ///< other rows: a filter, an added row
    void moved();       ///< another current row, or other values in it

private:
    void follow();

    std::unique_ptr<ado::Recordset> recordset_;
    std::string filter_;
    long count_ = 0;
};

} // namespace controls
