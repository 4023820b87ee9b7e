#pragma once

#include "platform/Dialogs.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// While this object lives any box may come: it keeps their texts and answers No, Cancel or nothing, or to all
/// questions Yes and OK.
class HeardBoxes {
public:
    enum class Answer { No, Yes };

    explicit HeardBoxes(Answer answer = Answer::No, std::string folder = {}) {
        platform::setDialogs(std::make_unique<Heard>(texts, answer, std::move(folder)));
    }
    HeardBoxes(const HeardBoxes&) = delete;
    HeardBoxes& operator=(const HeardBoxes&) = delete;
    ~HeardBoxes() { platform::setDialogs(nullptr); }

    std::vector<std::string> texts;

private:
    struct Heard : platform::Dialogs {
        Heard(std::vector<std::string>& texts, Answer answer, std::string folder)
            : texts(texts), answer(answer), chosen(std::move(folder)) {}
        void message(const std::string& text, platform::Icon /*icon*/) override { texts.push_back(text); }
        bool question(const std::string& text) override { return answered(text); }
        bool confirm(const std::string& text) override { return answered(text); }
        std::string input(const std::string& prompt, const std::string& /*title*/,
                          const std::string& /*proposed*/) override {
            texts.push_back(prompt);
            return {};
        }
        std::string folder(const std::string& title) override {
            texts.push_back(title);
            return chosen;
        }
        bool answered(const std::string& text) {
            texts.push_back(text);
            return answer == Answer::Yes;
        }
        std::vector<std::string>& texts;
        Answer answer;
        std::string chosen;
    };
};

} // namespace support
