#pragma once

#include "platform/Dialogs.h"

#include <memory>
#include <string>
#include <vector>

namespace support {

/// While this object lives any box may come: it keeps their texts and answers No, Cancel or nothing.
class HeardBoxes {
public:
    HeardBoxes() { platform::setDialogs(std::make_unique<Safe>(texts)); }
    HeardBoxes(const HeardBoxes&) = delete;
    HeardBoxes& operator=(const HeardBoxes&) = delete;
    ~HeardBoxes() { platform::setDialogs(nullptr); }

    std::vector<std::string> texts;

private:
    struct Safe : platform::Dialogs {
        explicit Safe(std::vector<std::string>& texts) : texts(texts) {}
        void message(const std::string& text, platform::Icon /*icon*/) override { texts.push_back(text); }
        bool question(const std::string& text) override { return refused(text); }
        bool confirm(const std::string& text) override { return refused(text); }
        std::string input(const std::string& prompt, const std::string& /*title*/,
                          const std::string& /*proposed*/) override {
            texts.push_back(prompt);
            return {};
        }
        std::string folder(const std::string& title) override {
            texts.push_back(title);
            return {};
        }
        bool refused(const std::string& text) {
            texts.push_back(text);
            return false;
        }
        std::vector<std::string>& texts;
    };
};

} // namespace support
