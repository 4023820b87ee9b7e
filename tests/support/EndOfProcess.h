#pragma once

#include "platform/Process.h"

namespace support {

/// While this object lives, TerminaProcesso throws platform::ProcessEnded instead of ending the process, and is
/// counted.
class EndOfProcess {
public:
    EndOfProcess() {
        platform::replaceEnd([this] { ++ended_; });
    }
    EndOfProcess(const EndOfProcess&) = delete;
    EndOfProcess& operator=(const EndOfProcess&) = delete;
    ~EndOfProcess() { platform::replaceEnd({}); }

    int ended() const { return ended_; }

    /// Runs `work` and returns whether it ended the process.
    template<typename Work>
    bool endedBy(Work&& work) {
        try {
            work();
        } catch (const platform::ProcessEnded&) {
            return true;
        }
        return false;
    }

private:
    int ended_ = 0;
};

} // namespace support
