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

/// What a user does at the forms of one test: keys and mouse at controls that are named as the forms name them. A
/// control that isn't there, or that a user couldn't reach, ends the test with the names that there are.
class Gui {
public:
    /// The host of the program's forms while it lives. The real forms: app::registerForms(gui.forms()).
    Gui();
    Gui(const Gui&) = delete;
    Gui& operator=(const Gui&) = delete;
    ~Gui();

    controls::FormRegistry& forms() { return forms_; }

    /// The loaded form of that name. Throws std::runtime_error, as all that follow.
    controls::Form& form(const std::string& name) const;
    bool isVisible(const std::string& form) const;
    /// The names of the visible forms, in order, one blank between them.
    std::string visibleForms() const;

    template<typename Control = QWidget>
    Control& find(const std::string& form, const std::string& control) const {
        auto* found = dynamic_cast<Control*>(&widget(form, control));
        if (found == nullptr) {
            throw std::runtime_error(form + "." + control + " is of another kind");
        }
        return *found;
    }
    /// As it is seen: without the mark of a mnemonic.
    std::string text(const std::string& form, const std::string& label) const;
    /// The mnemonics of the push buttons that are to be seen, sorted; '-' for a button without one.
    std::string mnemonics(const std::string& form) const;
    /// "form.control" that has the focus, empty where none has.
    std::string focus() const;

    /// Keys to whatever has the focus: the keyboard alone.
    void type(const std::string& text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Into a field, whatever has the focus.
    void typeInto(const std::string& form, const std::string& control, const std::string& text);
    void click(const std::string& form, const std::string& control);
    /// Opens the list with the arrow key, goes to that row and takes it with Enter.
    void pick(const std::string& form, const std::string& combo, const std::string& row);

    /// Until that form is the one that the keyboard reaches.
    void waitForFront(const std::string& form) const;
    /// Lets events be handled until the condition holds; fails the test when it never does.
    static void waitFor(const std::string& what, const std::function<bool()>& condition);
    static void handleEvents();

private:
    QWidget& widget(const std::string& form, const std::string& control) const;
    QWidget& reachable(const std::string& form, const std::string& control) const;

    controls::FormRegistry forms_;
};

} // namespace support
