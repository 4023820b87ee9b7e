#include "os/Paths.h"
#include "platform/AutomationObject.h"
#include "platform/SystemAutomation.h"
#include "platform/Workstation.h"

namespace platform {

namespace {

/// The application doesn't know of a folder that stands for the drive.
std::string systemPath(const std::string& path) {
    try {
        return os::utf8Of(workstation().driveC.real(path));
    } catch (const FileError&) {
        return path; // of another drive
    }
}

class ReportProgram : public ReportApplication {
public:
    explicit ReportProgram(const std::string& progId) : program_(progId) {}

    void OpenCurrentDatabase(const std::string& path) override {
        program_.call("OpenCurrentDatabase", {systemPath(path)});
    }
    void OpenReport(const std::string& report, int view) override {
        program_.object("DoCmd").call("OpenReport", {report, view});
    }
    void Maximize() override { program_.object("DoCmd").call("Maximize"); }
    void ShowActiveReport() override { program_.object("Screen").object("ActiveReport").put("Visible", true); }
    void ShowApplication() override { program_.put("Visible", true); }
    void Close() override { program_.call("Close"); }

private:
    AutomationObject program_;
};

class SystemAutomation : public Automation {
public:
    std::unique_ptr<ReportApplication> createObject(const std::string& progId) override {
        return std::make_unique<ReportProgram>(progId);
    }
};

} // namespace

std::unique_ptr<Automation> systemAutomation() {
    return std::make_unique<SystemAutomation>();
}

} // namespace platform
