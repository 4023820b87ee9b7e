#include "os/OfThread.h"
#include "os/ThreadEnds.h"

#include <windows.h>

#include <pthread.h>

namespace os {

namespace {

const DWORD mainThread = GetCurrentThreadId();
ThreadEnds endsOfMain;

void endThread(void* ends) {
    delete static_cast<ThreadEnds*>(ends);
}

ThreadEnds& endsOfThread() {
    if (GetCurrentThreadId() == mainThread) { // whose end comes when the other threads are gone already
        return endsOfMain;
    }
    // The threads of the standard library are those of this one. The system's own slots call back under a lock.
    static const pthread_key_t slot = [] {
        pthread_key_t made{};
        pthread_key_create(&made, endThread);
        return made;
    }();
    auto* ends = static_cast<ThreadEnds*>(pthread_getspecific(slot));
    if (ends == nullptr) {
        ends = new ThreadEnds;
        pthread_setspecific(slot, ends);
    }
    return *ends;
}

} // namespace

void atThreadEnd(void (*function)(void*), void* argument) {
    endsOfThread().all.emplace_back(function, argument);
}

} // namespace os
