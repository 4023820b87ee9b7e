#include "app/monkey/Process.h"

#include <csignal>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <unistd.h>

// Only a process with a sanitizer has these.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer's own names
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();
// NOLINTEND(bugprone-reserved-identifier)

namespace monkey {

namespace {

void (*lastWords)() = nullptr;

void dieBySignal(int signal) {
    lastWords();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void callAtDeath(void (*function)()) {
    lastWords = function;
    if (&__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(function);
    } else {
        for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
            std::signal(signal, dieBySignal);
        }
    }
    std::signal(SIGABRT, dieBySignal);
}

void writeRaw(const char* text) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text, std::strlen(text));
}

std::size_t heap() {
    if (&__sanitizer_get_current_allocated_bytes != nullptr) {
        return __sanitizer_get_current_allocated_bytes();
    }
    const struct mallinfo2 all = ::mallinfo2();
    return all.uordblks + all.hblkhd;
}

int openFiles() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<int>(std::distance(begin(all), end(all)));
}

} // namespace monkey
