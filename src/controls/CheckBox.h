#pragma once

#include <QCheckBox>

namespace controls {

/// A box of the values 0 (off), 1 (on) and 2 (greyed). Click tells every change, by the user or by code.
class CheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit CheckBox(QWidget* parent = nullptr);

    int Value() const;
    /// Error 380 for any other value. The value it has already fires nothing.
    void setValue(int value);

signals:
    void Click();

protected:
    /// The user never greys it.
    void nextCheckState() override;
};

} // namespace controls
