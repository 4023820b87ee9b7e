#pragma once

#include <QObject>

class QKeyEvent;

namespace controls {

/// Which keys and clicks count, everywhere in the program. Enter acts once for each time the key goes down: what a held
/// key repeats is dropped, so that no command and no store runs again by itself. A control that isn't on the screen
/// takes none: the second click of a quick double click still arrives when the first has hidden its form.
class UserInput : public QObject {
    Q_OBJECT
public:
    /// From the first call on, for the life of the application.
    static void watch();
    /// Whether a held key has sent this press. X tells of each repeat as a release and a press at one moment, and only
    /// where both wait in the queue does the toolkit mark them.
    static bool isRepeat(const QKeyEvent& press);
    /// A key alone, or the same one on the number pad.
    static bool isPlain(const QKeyEvent& key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace controls
