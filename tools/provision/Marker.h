#pragma once

#include "platform/DriveC.h"
#include "provision/Provision.h"

namespace provision {

/// The line in `C:\vabo\provision.txt` that marks a folder as this program's work, finished or unfinished.
class Marker {
public:
    enum class State { Absent, Unfinished, Finished };

    Marker(const platform::DriveC& drive, const Plan& plan);

    /// The state of the drive. Throws Refused where it was made by another version or, if finished, by another plan.
    State read() const;
    void writeUnfinished() const;
    void writeFinished() const;

private:
    const platform::DriveC& drive_;
    std::string values_; ///< of the plan, as written in the line
};

} // namespace provision
