#include "os/OfThread.h"
#include "os/ThreadEnds.h"

namespace os {

void atThreadEnd(void (*function)(void*), void* argument) {
    thread_local ThreadEnds ends;
    ends.all.emplace_back(function, argument);
}

} // namespace os
