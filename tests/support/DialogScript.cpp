#include "support/DialogScript.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace support {

namespace {

constexpr const char* kYes = "yes";

std::string yesOrNothing(bool yes) {
    return yes ? kYes : "";
}

std::string inputDetails(const std::string& title, const std::string& proposed) {
    return " titled \"" + title + "\" proposing \"" + proposed + "\"";
}

std::string iconDetails(platform::Icon icon) {
    return icon == platform::Icon::Stop ? " with the stop sign" : " without a sign";
}

} // namespace

class DialogScript::Answers : public platform::Dialogs {
public:
    explicit Answers(DialogScript& script) : script_(script) {}

    void message(const std::string& text, platform::Icon icon) override {
        script_.answer({"message", text, iconDetails(icon), ""});
    }
    bool question(const std::string& text) override { return script_.answer({"question", text, "", ""}) == kYes; }
    bool confirm(const std::string& text) override { return script_.answer({"confirmation", text, "", ""}) == kYes; }
    std::string input(const std::string& prompt, const std::string& title, const std::string& proposed) override {
        return script_.answer({"input", prompt, inputDetails(title, proposed), ""});
    }
    std::string folder(const std::string& title) override { return script_.answer({"folder", title, "", ""}); }

private:
    DialogScript& script_;
};

DialogScript::DialogScript() {
    platform::setDialogs(std::make_unique<Answers>(*this));
}

DialogScript::~DialogScript() {
    platform::setDialogs(nullptr);
    for (const Box& box : expected_) {
        ADD_FAILURE() << "A box didn't come: " << box.kind << " \"" << box.text << '"' << box.details;
    }
}

void DialogScript::expectMessage(const std::string& text, std::optional<platform::Icon> icon) {
    expected_.push_back({"message", text, icon ? iconDetails(*icon) : "", ""});
}

void DialogScript::expectQuestion(const std::string& text, bool answer) {
    expected_.push_back({"question", text, "", yesOrNothing(answer)});
}

void DialogScript::expectConfirm(const std::string& text, bool answer) {
    expected_.push_back({"confirmation", text, "", yesOrNothing(answer)});
}

void DialogScript::expectInput(const std::string& prompt, const std::string& title, const std::string& proposed,
                               const std::string& answer) {
    expected_.push_back({"input", prompt, inputDetails(title, proposed), answer});
}

void DialogScript::expectFolder(const std::string& title, const std::string& path) {
    expected_.push_back({"folder", title, "", path});
}

std::string DialogScript::answer(const Box& shown) {
    shown_.push_back(shown.text);
    const bool sameKind = !expected_.empty() && expected_.front().kind == shown.kind;
    if (!sameKind) {
        ADD_FAILURE() << "Unexpected box: " << shown.kind << " \"" << shown.text << '"' << shown.details
                      << (expected_.empty()
                              ? ""
                              : "\nNext expected: " + expected_.front().kind + " \"" + expected_.front().text + '"');
        return {};
    }
    const Box expected = std::move(expected_.front());
    expected_.pop_front();
    EXPECT_EQ(shown.text, expected.text) << "in a box: " << shown.kind;
    if (!expected.details.empty()) {
        EXPECT_EQ(shown.details, expected.details) << "of the box \"" << shown.text << '"';
    }
    return shown.text == expected.text ? expected.answer : "";
}

} // namespace support
