#include "kit/StampaReportAccess.h"

#include "platform/Automation.h"
#include "support/DialogScript.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Journal {
    std::vector<std::string> calls;
    std::string failing; ///< the call that fails, empty for none

    void note(const std::string& call) {
        calls.push_back(call);
        if (!failing.empty() && call.starts_with(failing)) {
            throw std::runtime_error(failing);
        }
    }
};

class Application : public platform::ReportApplication {
public:
    explicit Application(Journal& journal) : journal_(journal) {}
    ~Application() override { journal_.calls.emplace_back("released"); }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void OpenCurrentDatabase(const std::string& path) override { journal_.note("OpenCurrentDatabase " + path); }
    void OpenReport(const std::string& report, int view) override {
        journal_.note("OpenReport " + report + " " + std::to_string(view));
    }
    void Maximize() override { journal_.note("Maximize"); }
    void ShowActiveReport() override { journal_.note("ShowActiveReport"); }
    void ShowApplication() override { journal_.note("ShowApplication"); }
    void Close() override { journal_.note("Close"); }

private:
    Journal& journal_;
};

class Machine : public platform::Automation {
public:
    explicit Machine(Journal& journal) : journal_(journal) {}
    std::unique_ptr<platform::ReportApplication> createObject(const std::string& progId) override {
        journal_.note("createObject " + progId);
        return std::make_unique<Application>(journal_);
    }

private:
    Journal& journal_;
};

const std::vector<std::string> kAllSteps = {"createObject Access.Application",
                                            "OpenCurrentDatabase C:\\Vabo\\Files\\stampe.mdb",
                                            "OpenReport Bilancio 2",
                                            "Maximize",
                                            "ShowActiveReport",
                                            "ShowApplication",
                                            "Close",
                                            "released"};

std::vector<std::string> callsOfAPrint(const std::string& failing) {
    support::DialogScript noBox;
    Journal journal{.calls = {}, .failing = failing};
    platform::setAutomation(std::make_unique<Machine>(journal));
    vabo::StampaReportAccess("C:\\Vabo\\Files\\stampe.mdb", "Bilancio", 2);
    platform::setAutomation(nullptr);
    return journal.calls;
}

TEST(StampaReportAccess, DrivesTheApplicationStepByStep) {
    EXPECT_EQ(callsOfAPrint(""), kAllSteps);
}

class FailingStep : public testing::TestWithParam<const char*> {};

TEST_P(FailingStep, IsSkippedAndTheNextOnesRun) {
    EXPECT_EQ(callsOfAPrint(GetParam()), kAllSteps);
}

INSTANTIATE_TEST_SUITE_P(StampaReportAccess, FailingStep,
                         testing::Values("OpenCurrentDatabase", "OpenReport", "Maximize", "ShowActiveReport",
                                         "ShowApplication", "Close"));

TEST(StampaReportAccess, AMachineWithoutTheApplicationShowsAndReportsNothing) {
    EXPECT_EQ(callsOfAPrint("createObject"), std::vector<std::string>{"createObject Access.Application"});
}

TEST(StampaReportAccess, TheMachineAsItStandsHasNoSuchApplication) {
    support::DialogScript noBox;
    EXPECT_NO_THROW(vabo::StampaReportAccess("C:\\x.mdb", "x", 0));
}

} // namespace
