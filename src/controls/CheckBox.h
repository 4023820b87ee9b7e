#pragma once

#include <QCheckBox>

namespace controls {

/// A check box of the values 0 (off), 1 (on) and 2 (greyed). Click is emitted at every change, by the user or by code.
class CheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit CheckBox(QWidget* parent = nullptr);

    int Value() const;
    /// Raises error 380 for any other value. Setting the present value emits nothing.
    void setValue(int value);

signals:
    void Click();

protected:
    /// A user's click changes between 0 and 1 only.
    void nextCheckState() override;
};

} // namespace controls
