#pragma once

#include "controls/Guard.h"
#include "controls/KeyChain.h"

#include <QWidget>

#include <string>
#include <type_traits>
#include <vector>

namespace controls {

/// A window of the program. It is created at first use, then come Load, showing, Activate each time it becomes the
/// program's active form, and Unload. Its objectName is its name. An unload deletes the object, so its members live
/// only from load to unload. A form may be unloaded in one of its own events; it is deleted when that is over.
class Form : public QWidget {
    Q_OBJECT
public:
    explicit Form(const char* name);

    std::string Name() const { return objectName().toStdString(); }

    // For FormRegistry: each runs the form's event under the guard.
    void runLoad();
    void runActivate();
    void runUnload();
    bool isUnloading() const { return unloading_; }
    /// Deletes it as soon as none of its events runs: an event may wait for a box, and meanwhile another one unload the
    /// form.
    void deleteWhenIdle();
    bool takesScreen() const { return takesScreen_; }

protected:
    virtual void Load() {}
    virtual void Activate() {}
    virtual void Unload() {}

    /// Connects a handler to an event of a control. An error ends the event with a box; a form gets no events once it
    /// unloads, nor while it is disabled or a box is open.
    template<typename Sender, typename Owner, typename... Values, typename Handler>
    void on(Sender* sender, void (Owner::*signal)(Values...), Handler handler) {
        connect(sender, signal, this, [this, handler](Values... values) {
            run([&] {
                if constexpr (std::is_invocable_v<Handler, Values...>) {
                    handler(values...);
                } else {
                    handler();
                }
            });
        });
    }
    /// Sets the order of entry: which keys end a field and what happens then.
    void chain(std::vector<KeyRow> rows);

    /// Paints at once, so that the texts are visible while a long step runs.
    void Refresh();
    void Hide();
    void UnloadMe();
    /// Sets the help topics of the form and of each of its controls.
    void setHelpContext(int form, int controls);
    /// For a large form: its size is taken from the screen instead of its contents, and at its next load it gets the
    /// place and size that the user left it with.
    void takeScreen() { takesScreen_ = true; }

    void closeEvent(QCloseEvent* event) override;

private:
    /// One of its events, or a step of a module that it shows.
    class Work {
    public:
        explicit Work(Form& form);
        ~Work();
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

    private:
        Form& form_;
    };

    void run(const std::function<void()>& event);
    void runUnlessUnloading(const std::function<void()>& event);
    void nameForAssistiveTools();

    bool unloading_ = false;
    bool activating_ = false;
    int works_ = 0; ///< how many of its events run, each in the one before
    bool isGone_ = false;
    bool outOfSight_ = false; ///< the system didn't show the window although it was waited for
    bool takesScreen_ = false;
};

} // namespace controls
