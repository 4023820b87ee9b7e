#include "desktop/User.h"

#include "desktop/Picture.h"
#include "desktop/Waiting.h"

#include <QScopedValueRollback>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <utility>

namespace desktop {

namespace {

/// The title of every box of the program.
constexpr const char* kBox = "VaBo";

} // namespace

User::User(std::filesystem::path pictures) : pictures_(std::move(pictures)) {}

void User::type(std::u32string_view text) {
    keyboard_.type(text);
    awaitHandled();
}

void User::press(std::string_view key, int times) {
    for (int i = 0; i < times; ++i) {
        keyboard_.press(key);
        awaitHandled();
    }
}

void User::enter(std::initializer_list<std::u32string_view> texts) {
    for (const std::u32string_view text : texts) {
        type(text);
        press("Return");
    }
}

void User::ahead(long long process, const std::function<void()>& keys) {
    const auto stopped = static_cast<pid_t>(process);
    ::kill(stopped, SIGSTOP);
    {
        const QScopedValueRollback blind(ahead_, true);
        keys();
    }
    ::kill(stopped, SIGCONT);
    awaitHandled();
}

void User::awaitWindow(const std::string& title) {
    awaitThat("the window \"" + title + "\"", [&] { return windows_.active().title == title; });
}

void User::answerBox(std::string_view key) {
    awaitThat("a box", [&] {
        const Window window = windows_.active();
        const bool another = window.title == kBox && window.id != lastBox_;
        lastBox_ = another ? window.id : lastBox_;
        return another;
    });
    look("box");
    press(key);
    awaitThat("the end of the box", [&] { return windows_.active().id != lastBox_; });
}

void User::awaitOnlyHidden(const std::string& title) {
    awaitThat("a screen without windows", [&] { return windows_.all().empty(); });
    const Window hidden = windows_.hidden(title);
    if (hidden.id == XCB_NONE || !windows_.answers(hidden.id) || !windows_.answers(hidden.id)) {
        giveUp("an answer of the hidden window \"" + title + "\"");
    }
}

void User::awaitThat(const std::string& what, const std::function<bool()>& condition) {
    if (!within(kPatience, condition)) {
        giveUp(what);
    }
}

void User::awaitHandled() {
    const Window window = windows_.active();
    if (!ahead_ && window.id != XCB_NONE && !windows_.waitUntilHandled(window.id)) {
        giveUp("an answer of the window \"" + window.title + "\"");
    }
}

QImage User::look(const std::string& name) {
    awaitHandled();
    QImage seen = picture(x_);
    constexpr int kDigits = 2;
    const QString number = QString::number(++looks_).rightJustified(kDigits, QLatin1Char('0'));
    writePicture(seen, fileOf(number.toStdString() + "-" + name));
    return seen;
}

void User::awaitSight(const QImage& before) {
    awaitThat("what the screen showed before", [&] { return picture(x_) == before; });
}

void User::giveUp(const std::string& what) const {
    const auto file = fileOf("failure");
    writePicture(picture(x_), file);
    std::string story = "Not in time: " + what + ". The keys go to \"" + windows_.active().title + "\". Windows:";
    for (const Window& window : windows_.all()) {
        story += " \"" + window.title + "\"";
    }
    throw std::runtime_error(story + ". The screen: " + file.string());
}

std::filesystem::path User::fileOf(const std::string& name) const {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    return pictures_ / (test == nullptr ? "" : test->name()) / (name + ".png");
}

} // namespace desktop
