#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;

namespace controls {

/// Drops keys and clicks that must not count, everywhere in the program. Enter acts once for each time the key is
/// pressed: the repeats of a held key are dropped, so that no command and no store runs again; so are those of Space on
/// a button. A control that isn't visible gets no input: the second click of a double click may arrive after the first
/// has hidden the form. The Enter that picks in a list isn't one in the field that gets the focus.
///
/// A press that moves the focus may open a box, in the LostFocus of the field before, and the mouse is then released
/// over the box. The control gets the release behind its press: a button is clicked, and doesn't stay down.
///
/// A button's mnemonic sets the focus to the button, as a click does, so that the field that had it gets its LostFocus.
class UserInput : public QObject {
    Q_OBJECT
public:
    /// Starts this with the first call, for the life of the application.
    static void watch();
    /// Whether a held key has sent this press. X sends each repeat as a release and a press with the same time, and the
    /// toolkit marks them as repeats only where both are in its queue.
    static bool isRepeat(const QKeyEvent& press);
    /// A key alone, or the same one on the number pad.
    static bool isPlain(const QKeyEvent& key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    void releaseBehind(QWidget& control, const QMouseEvent& press);

    QPointer<QWidget> pressed_; ///< will get its release
};

} // namespace controls
