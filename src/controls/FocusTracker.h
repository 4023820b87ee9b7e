#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace controls {

/// Tells moves of the focus from control to control inside the program's forms. A box or another program in front is no
/// move: coming back to the same control tells nothing.
class FocusTracker : public QObject {
    Q_OBJECT
public:
    /// One for the application, which owns it.
    static FocusTracker& instance();

signals:
    void moved(QWidget* from, QWidget* to); ///< `from` is null at first

private:
    explicit FocusTracker(QObject* parent);
    void follow(QWidget* now);

    QPointer<QWidget> last_;
};

} // namespace controls
