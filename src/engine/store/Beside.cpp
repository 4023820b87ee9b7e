#include "engine/store/Beside.h"

#include "engine/store/Idler.h"
#include "os/OfThread.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace engine {

namespace {

constexpr std::chrono::milliseconds kPiece{25};

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
            idle();
            lock.lock();
        }
        if (failure_) {
            std::rethrow_exception(std::exchange(failure_, nullptr));
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
            try {
                (*call)();
            } catch (...) {
                failure_ = std::current_exception();
            }
            lock.lock();
            call_ = nullptr;
            changed_.notify_all();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    const std::function<void()>* call_ = nullptr; ///< the one that runs
    std::exception_ptr failure_;
    bool ended_ = false;
    std::thread thread_; // declared last, since it uses the others
};

} // namespace

void runBeside(const std::function<void()>& call) {
    thread_local Beside* beside = nullptr;
    os::ofThread(beside, [] { return std::make_unique<Beside>(); }).run(call);
}

} // namespace engine
