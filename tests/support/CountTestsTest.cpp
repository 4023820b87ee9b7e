// The last line of the test command: how many tests ran.

#include "support/Capabilities.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

class CountTests : public testing::Test {
protected:
    void SetUp() override { VABO_NEEDS(support::systemCapabilities().shellScripts); }
    /// Writes the results of one executable as the test framework does: a sum of all groups, then one of each.
    void put(const std::string& file, const std::string& groups) const {
        const fs::path path = build.path() / "test-results" / file;
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "<?xml version=\"1.0\"?>\n<testsuites tests=\"99\" failures=\"1\" name=\"AllTests\">\n"
                            << groups << "</testsuites>\n";
    }
    static std::string group(const std::string& tests, const std::string& skipped) {
        return R"(  <testsuite name="Some" tests=")" + tests + R"(" failures="0" disabled="0" skipped=")" + skipped +
               "\" errors=\"0\">\n    <testcase name=\"One\" status=\"run\" result=\"completed\"/>\n  </testsuite>\n";
    }
    std::string line() const {
        return support::HelperProcess(VABO_ROOT "/tools/count-tests.sh", {build.path().string()}).readAll();
    }
    support::TemporaryFolder build;
};

TEST_F(CountTests, SumsUpTheGroupsOfEachLabel) {
    put("embedded/one_test.xml", group("7", "0") + group("30", "0"));
    put("embedded/two_test.xml", group("4", "0"));
    put("wire/one_wire_test.xml", group("7", "2") + group("30", "1"));
    EXPECT_EQ(line(), "embedded: 41 tests (0 skipped), wire: 34 tests (3 skipped)\n");
}

TEST_F(CountTests, ALabelThatWasNotRunIsNotTold) {
    put("wire/one_wire_test.xml", group("7", "0"));
    EXPECT_EQ(line(), "wire: 7 tests (0 skipped)\n");
}

TEST_F(CountTests, WithoutResultsItSaysSo) {
    EXPECT_EQ(line(), "no results\n");
}

} // namespace
