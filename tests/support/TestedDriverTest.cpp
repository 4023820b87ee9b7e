#include "support/TestedDriver.h"

#include <gtest/gtest.h>

#include <vector>

using support::TestedDriver;

namespace {

/// Takes the driver of a command line, and goes back to the embedded one at its end.
class TestedDrivers : public testing::Test {
protected:
    TestedDrivers() { take({}); }
    ~TestedDrivers() override { take({"--driver=embedded"}); }
    static TestedDriver take(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "some_test");
        support::chooseTestedDriver(static_cast<int>(arguments.size()), arguments.data());
        return support::testedDriver();
    }
};

TEST_F(TestedDrivers, AreTakenFromTheCommandLine) {
    EXPECT_EQ(take({}), TestedDriver::Embedded);
    EXPECT_EQ(take({"--gtest_filter=*", "--driver=wire"}), TestedDriver::Wire);
    EXPECT_EQ(take({"--gtest_filter=*"}), TestedDriver::Wire) << "as long as no other is asked for";
    EXPECT_EQ(take({"--driver=embedded"}), TestedDriver::Embedded);
}

TEST_F(TestedDrivers, AnUnknownOneEndsTheProcess) {
    for (const char* unknown : {"--driver=", "--driver=Wire", "--driver=sea"}) {
        EXPECT_EXIT(take({unknown}), testing::ExitedWithCode(2), "No such driver: --driver=") << unknown;
    }
}

TEST_F(TestedDrivers, TheEmbeddedOneOffersEverything) {
    const support::Capabilities& all = support::capabilities();
    for (const support::Capability& capability : {all.fieldsTellTheirSource, all.holdEndsAtOnceWithItsProcess,
                                                  all.nulInTexts, all.composedLocalName, all.integratedSecurity}) {
        EXPECT_TRUE(capability) << capability.missing;
    }
}

TEST_F(TestedDrivers, WhatIsMissingHasAReason) {
    take({"--driver=wire"});
    const support::Capability& capability = support::capabilities().composedLocalName;
    ASSERT_FALSE(capability);
    EXPECT_GT(std::string_view(capability.missing).size(), 20U);
}

} // namespace
