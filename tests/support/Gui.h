#pragma once

#include "controls/DataCombo.h"
#include "controls/FormRegistry.h"

#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace support {

/// What a user does with the forms of one test: keys and mouse on controls, by the names that the forms give them. A
/// control that doesn't exist or that a user can't reach ends the test with a list of the names that exist.
class Gui {
public:
    /// The host of the program's forms while this object lives. app::registerForms(gui.forms()) adds the real forms.
    Gui();
    Gui(const Gui&) = delete;
    Gui& operator=(const Gui&) = delete;
    ~Gui();

    controls::FormRegistry& forms() { return forms_; }
    const controls::FormRegistry& forms() const { return forms_; }

    /// The loaded form of that name. This and all functions below throw std::runtime_error where there is none.
    controls::Form& form(const std::string& name) const;
    bool isVisible(const std::string& form) const;
    /// The names of the visible forms, sorted, separated by blanks.
    std::string visibleForms() const;

    template<typename Control = QWidget>
    Control& find(const std::string& form, const std::string& control) const {
        auto* found = dynamic_cast<Control*>(&widget(form, control));
        if (found == nullptr) {
            throw std::runtime_error(form + "." + control + " is of another kind");
        }
        return *found;
    }
    /// As it is displayed, without the mark of a mnemonic.
    std::string text(const std::string& form, const std::string& label) const;
    /// The mnemonics of the visible push buttons, sorted; '-' for a button without one.
    std::string mnemonics(const std::string& form) const;
    /// "form.control" of the control with the focus, empty where none has it.
    std::string focus() const;

    /// Types keys into the control that has the focus.
    void type(const std::string& text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Types into a field, whichever control has the focus.
    void typeInto(const std::string& form, const std::string& control, const std::string& text);
    void click(const std::string& form, const std::string& control);
    /// Opens the list with the arrow key, goes to that row and presses Enter.
    void pick(const std::string& form, const std::string& combo, const std::string& row);

    /// Waits until that form has the keyboard.
    void waitForFront(const std::string& form) const;
    /// Handles events until the condition is true; fails the test where it doesn't become true in time.
    static void waitFor(const std::string& what, const std::function<bool()>& condition);
    static void handleEvents();

private:
    QWidget& widget(const std::string& form, const std::string& control) const;
    QWidget& reachable(const std::string& form, const std::string& control) const;

    controls::FormRegistry forms_;
};

} // namespace support
