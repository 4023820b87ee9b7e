#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace controls {

/// Emits a signal when the focus moves from one control of the program's forms to another. A message box or another
/// program in between doesn't count: coming back to the same control emits nothing.
class FocusTracker : public QObject {
    Q_OBJECT
public:
    /// The one of the application, which owns it.
    static FocusTracker& instance();

signals:
    void moved(QWidget* from, QWidget* to); ///< `from` is null the first time

private:
    explicit FocusTracker(QObject* parent);
    void follow(QWidget* now);

    QPointer<QWidget> last_;
};

} // namespace controls
