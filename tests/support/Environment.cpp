#include "support/Environment.h"

#include "ado/Conversions.h"
#include "platform/Automation.h"
#include "platform/DataSources.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/RegionalSettings.h"
#include "support/DataSourceStore.h"
#include "support/Warnings.h"

#include <gtest/gtest.h>

namespace support {

namespace {

class FreshStart : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override {
        platform::useLocale(QLocale(QLocale::Italian, QLocale::Italy));
        ado::setToday({});
        platform::setDialogs(nullptr);
        platform::setFormHost(nullptr);
        platform::setAutomation(nullptr);
        platform::setDataSources(nullptr);
        useDataSourceFile(nowhere() / "odbc.ini");
        platform::setWorkstation(workstationOn(nowhere()));
        platform::connectDataLayer();
    }
};

} // namespace

void prepareProcess() {
    qputenv("TZ", "UTC");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    useDataSourceFile(nowhere() / "odbc.ini");
}

void prepareTests() {
    installWarningHandler();
    testing::UnitTest::GetInstance()->listeners().Append(new FreshStart);
}

platform::Workstation workstationOn(const std::filesystem::path& driveC) {
    return {.driveC = platform::DriveC(driveC),
            .machineName = "POSTO-7",
            .programName = "vabo",
            .productName = "VaBo",
            .legalNotice = "Copyright (c) 2026 the maintainers",
            .versionMajor = 1,
            .versionMinor = 2,
            .versionRevision = 3};
}

std::filesystem::path nowhere() {
    return "/nonexistent/drive-c";
}

} // namespace support
