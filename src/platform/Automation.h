#pragma once

#include <memory>
#include <string>

namespace platform {

/// The report application as far as the console drives it. Every operation may throw.
class ReportApplication {
public:
    virtual ~ReportApplication() = default;
    virtual void OpenCurrentDatabase(const std::string& path) = 0;
    virtual void OpenReport(const std::string& report, int view) = 0;
    virtual void Maximize() = 0;
    virtual void ShowActiveReport() = 0;
    virtual void ShowApplication() = 0;
    virtual void Close() = 0;
};

class Automation {
public:
    virtual ~Automation() = default;
    /// Throws where this machine has no such application.
    virtual std::unique_ptr<ReportApplication> createObject(const std::string& progId) = 0;
};

Automation& automation();
void setAutomation(std::unique_ptr<Automation> automation);

} // namespace platform
