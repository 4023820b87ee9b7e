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

/// What a thread and the one beside it share.
struct Shared {
    std::mutex mutex;
    std::condition_variable changed;
    const std::function<void()>* call = nullptr; ///< the one that runs
    std::exception_ptr failure;
    bool ended = false;
};

void work(const std::shared_ptr<Shared>& shared) {
    std::unique_lock lock(shared->mutex);
    while (true) {
        shared->changed.wait(lock, [&] { return shared->ended || shared->call != nullptr; });
        if (shared->ended) {
            return;
        }
        const auto* call = shared->call;
        lock.unlock();
        try {
            (*call)();
        } catch (...) {
            shared->failure = std::current_exception();
        }
        lock.lock();
        shared->call = nullptr;
        shared->changed.notify_all();
    }
}

/// One thread for all calls of its owner, since a new one for each would cost more than most calls. It ends soon after
/// its owner, who can't wait for that: on one system no thread can end as long as another one is ending.
class Beside {
public:
    Beside() {
        std::thread([shared = shared_] { work(shared); }).detach();
    }
    ~Beside() {
        {
            const std::lock_guard guard(shared_->mutex);
            shared_->ended = true;
        }
        shared_->changed.notify_all();
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    void run(const std::function<void()>& call) {
        std::unique_lock lock(shared_->mutex);
        shared_->call = &call;
        shared_->changed.notify_all();
        while (!shared_->changed.wait_for(lock, kPiece, [this] { return shared_->call == nullptr; })) {
            lock.unlock();
            idle();
            lock.lock();
        }
        if (shared_->failure) {
            std::rethrow_exception(std::exchange(shared_->failure, nullptr));
        }
    }

private:
    std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
};

} // namespace

void runBeside(const std::function<void()>& call) {
    thread_local Beside* beside = nullptr;
    os::ofThread(beside, [] { return std::make_unique<Beside>(); }).run(call);
}

} // namespace engine
