#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace controls {

/// Emits signals when the focus moves from one control of the program's forms to another. A message box or another
/// program in between doesn't count: coming back to the same control emits nothing.
///
/// A handler may move the focus on or back. A control that the focus only passed through gets no signal: a field that
/// keeps the focus because its text is wrong doesn't make the next field lose it.
class FocusTracker : public QObject {
    Q_OBJECT
public:
    /// The one of the application, which owns it.
    static FocusTracker& instance();

signals:
    void left(QWidget* control);
    void entered(QWidget* control);

private:
    explicit FocusTracker(QObject* parent);
    void follow(QWidget* now);
    void tell();
    void followInactive();

    QPointer<QWidget> last_; ///< what has been told of
    QPointer<QWidget> now_;
    bool telling_ = false;
};

} // namespace controls
