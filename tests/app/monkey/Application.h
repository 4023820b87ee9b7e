#pragma once

#include <QApplication>

namespace monkey {

/// Where a handler ends the process, only that handler is left: the toolkit can't be passed by exceptions.
class Application : public QApplication {
    Q_OBJECT
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Whether a handler has ended the process since the last call.
    static bool takeEnd();
};

} // namespace monkey
