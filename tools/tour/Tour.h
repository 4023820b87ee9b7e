#pragma once

#include "controls/FormRegistry.h"

#include <filesystem>
#include <functional>
#include <string>

namespace tour {

/// A walk through the forms of the program, which saves their pictures in a folder.
class Tour {
public:
    /// `suffix` ends the name of every picture of this walk.
    Tour(controls::FormRegistry& forms, std::filesystem::path folder, std::string suffix);

    /// Saves the picture of a window. Throws std::runtime_error where the window isn't visible or the file can't be
    /// written.
    void take(const std::string& name, QWidget& window);
    void take(const std::string& name, const char* form);

    controls::FormRegistry& forms() { return forms_; }
    /// A loaded form, or a control on it. Both throw std::runtime_error where there is none.
    controls::Form& form(const char* name);
    QWidget& control(const char* form, const char* name);
    void show(const char* form);
    /// Sends keys to the control as a user types them.
    static void type(QWidget& control, const std::string& text);
    static void press(QWidget& control, Qt::Key key);
    static void settle();
    /// Calls `act` as soon as something waits in a loop of its own, as a box does. A box that is only being shown gets
    /// events on some systems, and wouldn't notice that it was closed by one. Nothing is called once `context` is gone.
    static void onceWaiting(QObject& context, const std::function<void()>& act);

private:
    controls::FormRegistry& forms_;
    std::filesystem::path folder_;
    std::string suffix_;
};

/// The tabs of the general tables console, opened from the company console.
void generalTables(Tour& tour);
/// The two locks, opened from that console, on their way and after it.
void locks(Tour& tour);

/// The accounts of pay slips, opened from that console: of the first type and of another one, and a list of accounts.
void payroll(Tour& tour);

/// The VAT sections, without and with one picked.
void vatSections(Tour& tour);
/// The company's data, the towns among which its own is picked, and the address that it fills.
void companyData(Tour& tour);

/// The states and the municipalities, without and with one picked, and their lists.
void geography(Tour& tour);

/// The payment terms and their commencement rules, empty and with one picked, and in every language.
void paymentTerms(Tour& tour);

/// The users, one of them picked, and with all rights ticked.
void users(Tour& tour);

/// The headquarters, and the folder on the server with the boxes that ask for it.
void setup(Tour& tour);

/// Every form of the program, in the order in which a user meets them. A new form adds its page here.
void walk(Tour& tour);

} // namespace tour
