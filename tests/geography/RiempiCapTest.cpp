#include "geography/RiempiCap.h"

#include <gtest/gtest.h>

namespace {

using vabo::RiempiCap;

TEST(RiempiCap, ACodeThatLostItsZerosGetsThemBack) {
    EXPECT_EQ(RiempiCap("1", "1"), "00001");
    EXPECT_EQ(RiempiCap("12", "12"), "00012");
    EXPECT_EQ(RiempiCap("100", "100"), "00100");
    EXPECT_EQ(RiempiCap("6100", "6100"), "06100");
}

TEST(RiempiCap, AnEmptyFieldBecomesFiveZeros) {
    EXPECT_EQ(RiempiCap("", ""), "00000");
    EXPECT_EQ(RiempiCap("", "00100"), "00000");
}

TEST(RiempiCap, FiveCharactersAndMoreStay) {
    EXPECT_EQ(RiempiCap("00184", "100"), "00184");
    EXPECT_EQ(RiempiCap("001845", "1"), "001845");
}

TEST(RiempiCap, TheZerosAreCountedByTheFieldNotByTheCode) {
    EXPECT_EQ(RiempiCap("001", "100"), "00100");
    EXPECT_EQ(RiempiCap("12", "61001"), "00061001");
}

TEST(RiempiCap, AFieldThatIsStillShortIsFilledAgain) {
    EXPECT_EQ(RiempiCap("1", ""), "0");
}

} // namespace
