#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// The boxes that a test expects, in their order, each with its answer. While it lives it is the one who answers: a
/// box that isn't the next expected fails the test with its text and gets a safe answer (No, Cancel, nothing), so
/// that nothing ever waits; one that didn't come fails the test at the end of the script's life.
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
    /// A box as a reader of a failure wants to see it, and what to say to it.
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
