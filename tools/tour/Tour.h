#pragma once

#include "controls/FormRegistry.h"

#include <filesystem>
#include <string>

namespace tour {

/// A walk through the forms of the program, and the folder that its pictures go to.
class Tour {
public:
    /// `suffix` ends the name of every picture of this walk.
    Tour(controls::FormRegistry& forms, std::filesystem::path folder, std::string suffix);

    /// Leaves the picture of a window. Throws std::runtime_error where it isn't on the screen or can't be written.
    void take(const std::string& name, QWidget& window);
    void take(const std::string& name, const char* form);

    controls::FormRegistry& forms() { return forms_; }
    /// A loaded form, or a control on it. They throw std::runtime_error.
    controls::Form& form(const char* name);
    QWidget& control(const char* form, const char* name);
    void show(const char* form);
    /// Keys as a user types them, to the control.
    static void type(QWidget& control, const std::string& text);
    static void press(QWidget& control, Qt::Key key);
    static void settle();

private:
    controls::FormRegistry& forms_;
    std::filesystem::path folder_;
    std::string suffix_;
};

/// The tabs of the general tables console, opened from the company console.
void generalTables(Tour& tour);
/// The two locks, opened from that console, on their way and after it.
void locks(Tour& tour);

/// Every form of the program, in the order in which a user meets them. A new form adds its page here.
void walk(Tour& tour);

} // namespace tour
