#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// The boxes that a test expects, in their order, each with its answer. While the object lives it answers all boxes, so
/// that no test waits. A box that isn't the next expected one fails the test with its text and is answered with No,
/// Cancel or nothing. An expected box that didn't come fails the test when the object is destroyed.
///
///     DialogScript script;
///     script.expectQuestion("Vuoi uscire?", true);
class DialogScript {
public:
    DialogScript();
    DialogScript(const DialogScript&) = delete;
    DialogScript& operator=(const DialogScript&) = delete;
    ~DialogScript();

    void expectMessage(const std::string& text, std::optional<platform::Icon> icon = {});
    void expectQuestion(const std::string& text, bool answer);
    void expectConfirm(const std::string& text, bool answer);
    void expectInput(const std::string& prompt, const std::string& title, const std::string& proposed,
                     const std::string& answer);
    void expectFolder(const std::string& title, const std::string& path);

    /// The texts of all boxes so far, expected or not.
    const std::vector<std::string>& shown() const { return shown_; }
    bool allShown() const { return expected_.empty(); }

private:
    /// A box as a failure shows it, and its answer.
    struct Box {
        std::string kind;
        std::string text;    ///< text, prompt or title
        std::string details; ///< title and proposed text of an input, icon of a message; empty: any
        std::string answer;  ///< "yes" for Yes and OK
    };
    class Answers;

    std::string answer(const Box& shown);

    std::deque<Box> expected_;
    std::vector<std::string> shown_;
};

} // namespace support
