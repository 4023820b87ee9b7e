#include "ado/Error.h"
#include "platform/SystemAutomation.h"

namespace platform {

namespace {

constexpr int kCannotCreateObject = 429;

/// No application of this system can be driven.
class NoAutomation : public Automation {
public:
    std::unique_ptr<ReportApplication> createObject(const std::string& /*progId*/) override {
        throw ado::Error(kCannotCreateObject, "ActiveX component can't create object");
    }
};

} // namespace

std::unique_ptr<Automation> systemAutomation() {
    return std::make_unique<NoAutomation>();
}

} // namespace platform
