#pragma once

#include "ado/WhileWaiting.h"
#include "locks/Avanzamento.h"

#include <algorithm>
#include <chrono>

namespace bench {

/// Draws as the forms of the locks do: when a pass begins, and otherwise at most twenty times a second, between two
/// rows and while a statement waits. It draws nothing, and tells the longest time without a drawing.
class DrawnLock : public vabo::Avanzamento {
public:
    void Porta(double /*part*/) override { draw(); }
    void Comincia(long /*steps*/) override { draw(); }
    void Avanza() override { drawNowAndThen(); }
    void drawNowAndThen() {
        constexpr std::chrono::milliseconds kPause{50};
        if (Clock::now() - last_ >= kPause) {
            draw();
        }
    }
    void draw() {
        const auto now = Clock::now();
        longest_ = std::max(longest_, now - last_);
        last_ = now;
    }
    double longestMilliseconds() const { return std::chrono::duration<double, std::milli>(longest_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point last_ = Clock::now();
    Clock::duration longest_{};
};

/// Runs a lock, which gets the drawing; the longest time without one in milliseconds. `alsoWhileWaiting`: as the forms
/// do; otherwise only between two statements.
template<typename Lock>
double longestWithoutDrawing(bool alsoWhileWaiting, Lock&& lock) {
    DrawnLock drawn;
    const ado::WhileWaiting waiting(alsoWhileWaiting ? std::function<void()>([&] { drawn.drawNowAndThen(); })
                                                     : std::function<void()>());
    lock(drawn);
    drawn.draw();
    return drawn.longestMilliseconds();
}

} // namespace bench
