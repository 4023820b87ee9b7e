#pragma once

#include <QObject>

#include <string>

namespace controls {

class DataCombo;
class DataControl;

/// A combo, the data control of its list, and the key of the row picked. The key is a variable of the form, which may
/// set it, too; two pickers may share one.
class Picker : public QObject {
    Q_OBJECT
public:
    /// `textField` is the field shown, `keyField` the key, a number.
    Picker(DataCombo& combo, DataControl& list, const char* textField, const char* keyField, double& key);

    DataCombo& combo() const { return *combo_; }
    double& key() const { return *key_; }

    /// Reads the list again; the text in the field stays.
    void load(const std::string& connection, const std::string& source);
    /// `load` in two steps, where several lists are to be read before any combo is filled. In between, and where the
    /// list can't be read, the combo's list is empty.
    void read(const std::string& connection, const std::string& source);
    void fill();
    /// From now on the key Delete clears text and key, in the field and in the list of the search.
    void clearWithDelete();

signals:
    /// A row was picked and its key set. For a row whose key isn't a number a box is shown instead, and nothing is
    /// picked.
    void Picked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(int area);

    DataCombo* combo_;
    DataControl* list_;
    double* key_;
};

} // namespace controls
