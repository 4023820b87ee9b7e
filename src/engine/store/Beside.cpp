#include "engine/store/Beside.h"

#include "engine/store/Idler.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace engine {

namespace {

constexpr std::chrono::milliseconds kPiece{25};

/// A thread that runs one call at a time. It is kept for the next one, since a new thread for each would cost more than
/// most calls, and is never ended: when a process ends, some systems end its threads first, and nobody could then wait
/// for this one.
class Beside {
public:
    Beside() {
        std::thread([this] { work(); }).detach();
    }

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
    [[noreturn]] void work() {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return call_ != nullptr; });
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
};

/// The threads that wait for a call: as many as there were calls at a time.
class Waiting {
public:
    Beside& take() {
        const std::lock_guard guard(mutex_);
        if (waiting_.empty()) {
            return *new Beside;
        }
        Beside& taken = *waiting_.back();
        waiting_.pop_back();
        return taken;
    }
    void giveBack(Beside& beside) {
        const std::lock_guard guard(mutex_);
        waiting_.push_back(&beside);
    }

private:
    std::mutex mutex_;
    std::vector<Beside*> waiting_;
};

Waiting& waiting() {
    static Waiting& all = *new Waiting; // never destroyed, as its threads are never ended
    return all;
}

class Taken {
public:
    Taken() : beside_(waiting().take()) {}
    ~Taken() { waiting().giveBack(beside_); }
    Taken(const Taken&) = delete;
    Taken& operator=(const Taken&) = delete;

    Beside* operator->() const { return &beside_; }

private:
    Beside& beside_;
};

} // namespace

void runBeside(const std::function<void()>& call) {
    const Taken beside;
    beside->run(call);
}

} // namespace engine
