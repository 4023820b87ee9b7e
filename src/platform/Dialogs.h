#pragma once

#include <memory>
#include <optional>
#include <string>

namespace platform {

enum class Icon { None, Stop };

/// All message, question, input and folder boxes. `controls` implements them with windows, tests with a script. Texts
/// are shown as they are, line breaks included; an empty title means the application's name.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void message(const std::string& text, Icon icon = Icon::None) = 0;
    virtual bool question(const std::string& text) = 0; ///< Yes and No
    virtual bool confirm(const std::string& text) = 0;  ///< OK and Cancel
    /// The text typed; empty after Cancel, too.
    virtual std::string input(const std::string& prompt, const std::string& title, const std::string& proposed) = 0;
    /// The path of a folder; empty where none was chosen.
    virtual std::string folder(const std::string& title) = 0;
};

Dialogs& dialogs();
void setDialogs(std::unique_ptr<Dialogs> dialogs);

} // namespace platform
