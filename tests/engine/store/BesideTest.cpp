#include "engine/store/Beside.h"

#include "engine/store/Idler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>
#include <vector>

namespace engine {
namespace {

std::thread::id besideThread() {
    std::thread::id ran;
    runBeside([&] { ran = std::this_thread::get_id(); });
    return ran;
}

TEST(Beside, RunsAllCallsOnOneThread) {
    std::vector<std::thread::id> ran;
    for (int call = 0; call < 100; ++call) {
        ran.push_back(besideThread());
    }
    EXPECT_NE(ran.front(), std::this_thread::get_id());
    EXPECT_EQ(std::count(ran.begin(), ran.end(), ran.front()), 100);
}

TEST(Beside, IsOverAsSoonAsItsCall) {
    const auto begun = std::chrono::steady_clock::now();
    for (int call = 0; call < 100; ++call) {
        besideThread();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(2)) << "a fiftieth of a second each";
}

TEST(Beside, KeepsItsThreadForTheCallsOfOthers) {
    const auto mine = besideThread();
    std::thread::id others;
    std::thread([&] { others = besideThread(); }).join();
    EXPECT_EQ(others, mine);
}

TEST(Beside, GivesBackWhatACallThrowsAndRunsTheNextOne) {
    for (int call = 0; call < 2; ++call) {
        EXPECT_THROW(runBeside([] { throw std::out_of_range("beside"); }), std::out_of_range);
        EXPECT_NE(besideThread(), std::thread::id());
    }
}

std::promise<void>* enough = nullptr;
int calls = 0;

/// The call ends only when it has run three times.
TEST(Beside, LetsTheIdlerRunMeanwhile) {
    std::promise<void> ended;
    enough = &ended;
    calls = 0;
    setIdler([]() noexcept {
        if (++calls == 3) {
            enough->set_value();
        }
    });
    std::future_status status = std::future_status::timeout;
    runBeside([&] { status = ended.get_future().wait_for(std::chrono::seconds(5)); });
    setIdler(nullptr);
    EXPECT_EQ(status, std::future_status::ready);
    EXPECT_GE(calls, 3);
}

std::thread::id inner;

TEST(Beside, RunsACallDuringAnotherOnAThreadOfItsOwn) {
    std::promise<void> ended;
    enough = &ended;
    calls = 0;
    setIdler([]() noexcept {
        if (++calls == 1) {
            inner = besideThread();
            enough->set_value();
        }
    });
    std::thread::id outer;
    std::future_status status = std::future_status::timeout;
    runBeside([&] {
        outer = std::this_thread::get_id();
        status = ended.get_future().wait_for(std::chrono::seconds(5));
    });
    setIdler(nullptr);
    EXPECT_EQ(status, std::future_status::ready);
    EXPECT_NE(inner, std::thread::id());
    EXPECT_NE(inner, outer);
    EXPECT_NE(inner, std::this_thread::get_id());
}

} // namespace
} // namespace engine
