#pragma once

#include "controls/Guard.h"
#include "controls/KeyChain.h"

#include <QWidget>

#include <string>
#include <type_traits>
#include <vector>

namespace controls {

/// A window of the program. Its life: made at first use, Load, visible, Activate each time it becomes the program's
/// active form, Unload. Its objectName is its name. What it keeps dies with its unload; a form may be unloaded from
/// its own events, it is deleted once they are over.
class Form : public QWidget {
    Q_OBJECT
public:
    explicit Form(const char* name);

    std::string Name() const { return objectName().toStdString(); }

    // For whoever hosts the forms: each runs its event behind the guard.
    void runLoad();
    void runActivate();
    void runUnload();
    bool isUnloading() const { return unloading_; }
    bool takesScreen() const { return takesScreen_; }

protected:
    virtual void Load() {}
    virtual void Activate() {}
    virtual void Unload() {}

    /// The handler of one event of a control: errors end the event with a box, and an unloaded form gets none.
    template<typename Sender, typename Owner, typename... Values, typename Handler>
    void on(Sender* sender, void (Owner::*signal)(Values...), Handler handler) {
        connect(sender, signal, this, [this, handler](Values... values) {
            run([&] {
                if constexpr (std::is_invocable_v<Handler, Values...>)
                    handler(values...);
                else
                    handler();
            });
        });
    }
    /// The order of entry: which keys end a field and what happens then.
    void chain(std::vector<KeyRow> rows);

    /// Paints at once, so that the texts can be read while a long step runs.
    void Refresh();
    void Hide();
    void UnloadMe();
    /// The help topics of the form and of each of its controls.
    void setHelpContext(int form, int controls);
    /// A window of much to show: its size comes from the screen and not from its contents, and where the user leaves it
    /// it stands at its next showing.
    void takeScreen() { takesScreen_ = true; }

    void closeEvent(QCloseEvent* event) override;

private:
    void run(const std::function<void()>& event);
    void nameForAssistiveTools();

    bool unloading_ = false;
    bool unloaded_ = false;
    bool takesScreen_ = false;
};

} // namespace controls
