#pragma once

#include "ado/Recordset.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace controls {

/// The source of lists and grids of a form: a connection text, a record source, and the recordset that Refresh opens
/// with them. Never visible.
class DataControl : public QWidget {
    Q_OBJECT
public:
    explicit DataControl(QWidget* parent = nullptr);
    ~DataControl() override;

    std::string ConnectionString;
    std::string RecordSource;

    /// Sets both texts and refreshes.
    void load(const std::string& connection, const std::string& source);
    /// Closes the recordset and opens a new one, unfiltered, on its first row. Where that fails it raises, and there is
    /// no recordset.
    void Refresh();
    /// Raises error 91 before the first Refresh and after one that failed.
    ado::Recordset& Recordset();
    bool hasRecordset() const { return recordset_ != nullptr; }

    /// Runs what a user does in a control bound to this one. An error is emitted as the signal Error.
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
