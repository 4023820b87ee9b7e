#include "support/Road.h"

#include <gtest/gtest.h>

#include <vector>

using support::Road;

namespace {

/// Takes the road of a command line, and goes back to the embedded one at its end.
class Roads : public testing::Test {
protected:
    Roads() { take({}); }
    ~Roads() override { take({"--road=embedded"}); }
    static Road take(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "some_test");
        support::chooseRoad(static_cast<int>(arguments.size()), arguments.data());
        return support::road();
    }
};

TEST_F(Roads, AreTakenFromTheCommandLine) {
    EXPECT_EQ(take({}), Road::Embedded);
    EXPECT_EQ(take({"--gtest_filter=*", "--road=wire"}), Road::Wire);
    EXPECT_EQ(take({"--gtest_filter=*"}), Road::Wire) << "as long as no other is asked for";
    EXPECT_EQ(take({"--road=embedded"}), Road::Embedded);
}

TEST_F(Roads, AnUnknownOneEndsTheProcess) {
    for (const char* unknown : {"--road=", "--road=Wire", "--road=sea"})
        EXPECT_EXIT(take({unknown}), testing::ExitedWithCode(2), "No such road: --road=") << unknown;
}

TEST_F(Roads, TheEmbeddedOneOffersEverything) {
    const support::Capabilities& all = support::capabilities();
    for (const support::Capability& capability : {all.fieldsTellTheirSource, all.holdEndsAtOnceWithItsProcess,
                                                  all.nulInTexts, all.composedLocalName, all.integratedSecurity})
        EXPECT_TRUE(capability) << capability.missing;
}

TEST_F(Roads, WhatIsMissingHasAReason) {
    take({"--road=wire"});
    const support::Capability& capability = support::capabilities().composedLocalName;
    ASSERT_FALSE(capability);
    EXPECT_GT(std::string_view(capability.missing).size(), 20U);
}

} // namespace
