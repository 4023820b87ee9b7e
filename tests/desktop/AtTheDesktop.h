#pragma once

#include "desktop/User.h"
#include "desktop/VirtualDisplay.h"
#include "support/Processes.h"
#include "support/TestWorkstation.h"
#include "support/TestedDriver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

/// The program itself on the sample workstation, and a user before it. The rows are read beside the program.
class AtTheDesktop : public testing::Test {
protected:
    static constexpr const char* kStart = "Tlv";
    static constexpr const char* kLogin = "Tlv - Aldane Works Software Solutions - Ver.Nr. 1.0.0";
    static constexpr const char* kConsole = "Gestione azienda";
    static constexpr const char* kTables = "Morlan";

    void SetUp() override {
        VABO_NEEDS(desktop::virtualDisplay());
        user_.emplace(std::filesystem::path(VABO_PICTURES) / support::name(support::testedDriver()));
    }

    desktop::User& user() { return user_.value(); }
    /// Starts the program, beside one that may run already.
    std::unique_ptr<support::HelperProcess> startProgram() {
        auto environment = user().display().environment();
        environment["VABO_DRIVE_C"] = workstation.driveC().root().string();
        return std::make_unique<support::HelperProcess>("vabo", std::vector<std::string>{}, environment);
    }
    /// Waits until a selection of one row and one column has that value.
    void awaitValue(const std::string& database, const std::string& sql, const std::string& expected) {
        std::string last;
        user().awaitThat(sql + " = " + expected, [&] {
            const auto rows = workstation.rows(database, sql);
            last = rows.size() == 1 ? rows.front().front() : std::to_string(rows.size()) + " rows";
            return last == expected;
        });
    }

    support::TestWorkstation workstation;

private:
    std::optional<desktop::User> user_;
};
