#include "os/OfThread.h"

#include <windows.h>

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

void NTAPI endThread(void* ends) {
    delete static_cast<Ends*>(ends);
}

Ends& endsOfThread() {
    if (GetCurrentThreadId() == mainThread) { // whose end comes when the other threads are gone already
        return endsOfMain;
    }
    static const DWORD slot = FlsAlloc(endThread);
    auto* ends = static_cast<Ends*>(FlsGetValue(slot));
    if (ends == nullptr) {
        ends = new Ends;
        FlsSetValue(slot, ends);
    }
    return *ends;
}

} // namespace

void atThreadEnd(void (*function)(void*), void* argument) {
    endsOfThread().all.emplace_back(function, argument);
}

} // namespace os
