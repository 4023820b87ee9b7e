#include "support/SystemProcesses.h"

#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <tlhelp32.h>
#include <type_traits>

namespace support {

namespace {

struct Closed {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, Closed>;

/// A job of this process and of those that it starts. The system ends all of them when its last handle is closed, which
/// is with this process.
void joinJob() {
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits) == 0 ||
        AssignProcessToJobObject(job, GetCurrentProcess()) == 0) {
        throw std::runtime_error("Processes can't be bound to this one's end.");
    }
}

template<typename Visit>
void visitThreads(long long process, Visit visit) {
    const Handle all(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 thread{};
    thread.dwSize = sizeof thread;
    for (BOOL found = Thread32First(all.get(), &thread); found != 0; found = Thread32Next(all.get(), &thread)) {
        if (thread.th32OwnerProcessID == static_cast<DWORD>(process)) {
            const Handle opened(OpenThread(THREAD_SUSPEND_RESUME, FALSE, thread.th32ThreadID));
            if (opened) {
                visit(opened.get());
            }
        }
    }
}

} // namespace

void startBound(QProcess& process, const QString& program, const QStringList& arguments) {
    static const bool joined = (joinJob(), true);
    Q_UNUSED(joined);
    process.start(program, arguments);
}

void freeze(long long process) {
    visitThreads(process, [](HANDLE thread) { SuspendThread(thread); });
}

void thaw(long long process) {
    visitThreads(process, [](HANDLE thread) { ResumeThread(thread); });
}

// Wine may leave a connection open whose end a killed process was waiting for.
void endConnections(long long process) {
    constexpr std::uintptr_t kLastHandle = 2048;
    constexpr int kBothWays = 2; // SD_BOTH, which the header of the sockets of today has
    WSADATA version{};
    WSAStartup(MAKEWORD(2, 2), &version);
    const Handle other(OpenProcess(PROCESS_DUP_HANDLE, FALSE, static_cast<DWORD>(process)));
    freeze(process);
    for (std::uintptr_t number = 4; number <= kLastHandle; number += 4) {
        HANDLE copy = nullptr;
        if (DuplicateHandle(other.get(), reinterpret_cast<HANDLE>(number), GetCurrentProcess(), &copy, 0, FALSE,
                            DUPLICATE_SAME_ACCESS) != 0) {
            shutdown(reinterpret_cast<SOCKET>(copy), kBothWays); // an error where it is no socket
            CloseHandle(copy);
        }
    }
    WSACleanup();
}

void dieAtOnce() {
    constexpr UINT kCode = 9;
    TerminateProcess(GetCurrentProcess(), kCode);
    std::abort(); // not reached
}

} // namespace support
