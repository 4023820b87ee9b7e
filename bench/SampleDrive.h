#pragma once

// The sample workstation for one benchmark's process, set by environment variables.

#include "provision/Provision.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace bench {

/// This machine's name, cleaned as a terminal's name is.
inline std::string terminalName() {
    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    std::string terminal(host.data());
    terminal = terminal.substr(0, terminal.find('.'));
    for (char& c : terminal) {
        c = c == '-' ? '_' : c;
    }
    return terminal;
}

/// A drive C in a folder that is removed with the object. Its data sources are separate from the user's, and windows
/// are offscreen.
class SampleDrive {
public:
    explicit SampleDrive(provision::Plan plan = {})
        : folder_(std::filesystem::temp_directory_path() / ("vabo-bench-" + std::to_string(getpid()))) {
        plan.driveC = folder_;
        plan.terminal = terminalName();
        provision::layDown(plan);
        setenv("VABO_DRIVE_C", folder_.c_str(), 1);
        setenv("ODBCINI", (folder_ / "odbc.ini").c_str(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    ~SampleDrive() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    SampleDrive(const SampleDrive&) = delete;
    SampleDrive& operator=(const SampleDrive&) = delete;

private:
    std::filesystem::path folder_;
};

} // namespace bench
