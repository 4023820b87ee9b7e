#pragma once

#include "platform/DriveC.h"
#include "provision/Provision.h"

namespace provision {

/// The line in `C:\vabo\provision.txt` that tells our work from anybody else's, and done from half done.
class Marker {
public:
    enum class State { Absent, Unfinished, Finished };

    Marker(const platform::DriveC& drive, const Plan& plan);

    /// What stands on the drive. Throws Refused when it was made by another version or, finished, by another plan.
    State read() const;
    void writeUnfinished() const;
    void writeFinished() const;

private:
    const platform::DriveC& drive_;
    std::string values_; ///< the plan's, as they stand in the line
};

} // namespace provision
