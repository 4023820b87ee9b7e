#include "support/SystemProcesses.h"

#include <csignal>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace support {

void startBound(QProcess& process, const QString& program, const QStringList& arguments) {
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.start(program, arguments);
}

void freeze(long long process) {
    ::kill(static_cast<pid_t>(process), SIGSTOP);
    siginfo_t stopped{};
    ::waitid(P_PID, static_cast<id_t>(process), &stopped, WSTOPPED | WNOWAIT);
}

void thaw(long long process) {
    ::kill(static_cast<pid_t>(process), SIGCONT);
}

void endConnections(long long /*process*/) {
    // They end with their process.
}

void dieAtOnce() {
    std::raise(SIGKILL);
    std::abort(); // not reached
}

} // namespace support
