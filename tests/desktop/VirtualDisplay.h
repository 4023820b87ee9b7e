#pragma once

#include "support/Capabilities.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <memory>
#include <string>

namespace desktop {

/// Whether this machine has the programs of a VirtualDisplay.
support::Capability virtualDisplay();

/// An X server that shows its screen to nobody, with an Italian keyboard and a window manager. It takes a free number,
/// listens on no network, and ends with this object.
class VirtualDisplay {
public:
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();

    /// For a connection, as ":4".
    const std::string& name() const { return name_; }
    /// What a program needs in its environment to open its windows here.
    std::map<std::string, std::string> environment() const;

private:
    void waitForManager() const;

    support::TemporaryFolder home_;
    support::HelperProcess server_;
    std::string name_;
    std::unique_ptr<support::HelperProcess> manager_;
};

} // namespace desktop
