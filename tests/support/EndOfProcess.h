#pragma once

#include "platform/Process.h"

namespace support {

/// While it lives, the end of the process throws platform::ProcessEnded instead, and is counted.
class EndOfProcess {
public:
    EndOfProcess() {
        platform::replaceEnd([this] { ++ended_; });
    }
    EndOfProcess(const EndOfProcess&) = delete;
    EndOfProcess& operator=(const EndOfProcess&) = delete;
    ~EndOfProcess() { platform::replaceEnd({}); }

    int ended() const { return ended_; }

    /// Runs `work` and tells whether it ended the process.
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
