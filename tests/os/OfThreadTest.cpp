#include "os/OfThread.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

/// Tells what it holds when it is destroyed.
struct Note {
    explicit Note(std::vector<std::string>* heard, std::string what) : to(heard), text(std::move(what)) {}
    Note(const Note&) = delete;
    Note& operator=(const Note&) = delete;
    ~Note() { to->push_back("end of " + text); }

    std::vector<std::string>* to;
    std::string text;
};

Note& noteOfThread(std::vector<std::string>* to, const std::string& text) {
    thread_local Note* slot = nullptr;
    return os::ofThread(slot, [&] { return std::make_unique<Note>(to, text); });
}

Note& otherOfThread(std::vector<std::string>* to) {
    thread_local Note* slot = nullptr;
    return os::ofThread(slot, [&] { return std::make_unique<Note>(to, "the other"); });
}

using Heard = std::vector<std::string>;
constexpr const char* kLong = "a text that is too long to be kept in the object itself";

TEST(OfThread, AnObjectIsMadeOnceForEachThreadAndEndsWithIt) {
    for (int round = 0; round < 50; ++round) {
        Heard heard;
        std::thread([&] {
            Note& note = noteOfThread(&heard, kLong);
            EXPECT_EQ(&noteOfThread(&heard, "another"), &note);
            EXPECT_TRUE(heard.empty());
        }).join();
        EXPECT_EQ(heard, Heard{std::string("end of ") + kLong});
    }
}

TEST(OfThread, ThreadsHaveObjectsOfTheirOwn) {
    Heard heard;
    std::thread([&] {
        noteOfThread(&heard, "outer");
        std::thread([&] { noteOfThread(&heard, "inner"); }).join();
        EXPECT_EQ(heard, Heard{"end of inner"});
        EXPECT_EQ(noteOfThread(&heard, "").text, "outer");
    }).join();
    EXPECT_EQ(heard, (Heard{"end of inner", "end of outer"}));
}

TEST(OfThread, WhatWasMadeLastEndsFirst) {
    Heard heard;
    std::thread([&] {
        noteOfThread(&heard, "one");
        otherOfThread(&heard);
    }).join();
    EXPECT_EQ(heard, (Heard{"end of the other", "end of one"}));
}

TEST(OfThread, AnObjectThatCannotBeMadeIsTriedAgain) {
    Heard heard;
    std::thread([&] {
        Note* slot = nullptr;
        EXPECT_THROW(os::ofThread(slot, []() -> std::unique_ptr<Note> { throw 1; }), int);
        os::ofThread(slot, [&] { return std::make_unique<Note>(&heard, "second"); });
    }).join();
    EXPECT_EQ(heard, Heard{"end of second"});
}

} // namespace
