#include "app/monkey/Process.h"

#include <windows.h>

#include <csignal>
#include <cstring>
#include <initializer_list>
#include <psapi.h>

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
    for (const int signal : {SIGSEGV, SIGFPE, SIGILL, SIGABRT}) {
        std::signal(signal, dieBySignal);
    }
}

void writeRaw(const char* text) {
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(std::strlen(text)), &written, nullptr);
}

std::size_t heap() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage; // what is committed for this process alone
}

int openFiles() {
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return static_cast<int>(handles);
}

} // namespace monkey
