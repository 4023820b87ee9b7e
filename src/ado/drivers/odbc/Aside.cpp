#include "ado/drivers/odbc/Aside.h"

#include "ado/WhileWaiting.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace ado::odbc {

namespace {

constexpr std::chrono::milliseconds kPiece{50};

/// One thread for all calls of its owner, since a new one for each would cost more than most calls.
class Beside {
public:
    Beside() : thread_([this] { work(); }) {}
    ~Beside() {
        {
            const std::lock_guard guard(mutex_);
            ended_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    void run(const std::function<void()>& call) {
        std::unique_lock lock(mutex_);
        call_ = &call;
        changed_.notify_all();
        while (!changed_.wait_for(lock, kPiece, [this] { return call_ == nullptr; })) {
            lock.unlock();
            whileWaiting();
            lock.lock();
        }
    }

private:
    void work() {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return ended_ || call_ != nullptr; });
            if (ended_) {
                return;
            }
            const auto* call = call_;
            lock.unlock();
            (*call)();
            lock.lock();
            call_ = nullptr;
            changed_.notify_all();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    const std::function<void()>* call_ = nullptr; ///< the one that runs
    bool ended_ = false;
    std::thread thread_; // declared last, since it uses the others
};

} // namespace

void aside(const std::function<void()>& call) {
    if (!isWaitingUsed()) {
        call();
        return;
    }
    thread_local Beside beside;
    beside.run(call);
}

} // namespace ado::odbc
