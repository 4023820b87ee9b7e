#pragma once

#include <memory>

namespace os {

/// Calls the function with that argument when the present thread ends, or the process where it is the main one. What
/// was asked for last is called first.
void atThreadEnd(void (*function)(void*), void* argument);

/// The object of the present thread, made at its first use and destroyed with the thread. `slot` is a thread_local
/// pointer: an object of a thread that has a destructor can't be thread_local itself, since the compiler of one system
/// frees its memory first and destroys it then.
template<typename T, typename Make>
T& ofThread(T*& slot, Make&& make) {
    if (slot == nullptr) {
        std::unique_ptr<T> made = make();
        atThreadEnd([](void* object) { delete static_cast<T*>(object); }, made.get());
        slot = made.release();
    }
    return *slot;
}

} // namespace os
