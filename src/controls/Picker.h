#pragma once

#include <QObject>

#include <string>

namespace controls {

class DataCombo;
class DataControl;

/// A combo over a list of its own, and the key of what was picked in it. The key is the form's: two pickers may share
/// one, and a form sets it as it likes.
class Picker : public QObject {
    Q_OBJECT
public:
    /// The list's fields: what is shown, and the key, a number.
    Picker(DataCombo& combo, DataControl& list, const char* textField, const char* keyField, double& key);

    DataCombo& combo() const { return *combo_; }
    double& key() const { return *key_; }

    /// Reads the list anew; the text stays.
    void load(const std::string& connection, const std::string& source);
    /// From here on Delete, in the text and in the list that opens while one types, empties text and key.
    void clearWithDelete();

signals:
    /// A pick in the list; the key is that row's. A row whose key isn't a number is told in a box, and picks nothing.
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
