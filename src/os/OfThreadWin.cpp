#include "os/OfThread.h"

#include <windows.h>

#include <pthread.h>
#include <utility>
#include <vector>

namespace os {

namespace {

struct Ends {
    std::vector<std::pair<void (*)(void*), void*>> all;

    ~Ends() {
        while (!all.empty()) {
            const auto [function, argument] = all.back();
            all.pop_back();
            function(argument);
        }
    }
};

const DWORD mainThread = GetCurrentThreadId();
Ends endsOfMain;

void endThread(void* ends) {
    delete static_cast<Ends*>(ends);
}

Ends& endsOfThread() {
    if (GetCurrentThreadId() == mainThread) { // whose end comes when the other threads are gone already
        return endsOfMain;
    }
    // The threads of the standard library are those of this one. The system's own slots call back under a lock.
    static const pthread_key_t slot = [] {
        pthread_key_t made{};
        pthread_key_create(&made, endThread);
        return made;
    }();
    auto* ends = static_cast<Ends*>(pthread_getspecific(slot));
    if (ends == nullptr) {
        ends = new Ends;
        pthread_setspecific(slot, ends);
    }
    return *ends;
}

} // namespace

void atThreadEnd(void (*function)(void*), void* argument) {
    endsOfThread().all.emplace_back(function, argument);
}

} // namespace os
