#include "ado/Conversions.h"
#include "support/CommaLocale.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

class NumbersInALocale : public ::testing::Test {
protected:
    ~NumbersInALocale() override { regionalSettings() = before_; }

    const support::CommaLocale italian;

private:
    const RegionalSettings before_ = regionalSettings();
};

TEST_F(NumbersInALocale, AreTextsByTheSettingsAlone) {
    regionalSettings().decimalSeparator = '.';
    regionalSettings().thousandsSeparator = ',';
    EXPECT_EQ(toText(1234.5), "1234.5");
    EXPECT_EQ(toText(1.5e-20), "1.5E-20");
    EXPECT_EQ(toText(-2.5e20), "-2.5E+20");
    EXPECT_EQ(toText(1.25F), "1.25");
    EXPECT_EQ(formatFixed(1234.5, 2, true), "1,234.50");
    EXPECT_EQ(toDouble("1,234.5"), 1234.5);
}

TEST_F(NumbersInALocale, AreForTheServerWithAPoint) {
    EXPECT_EQ(plainNumber(1234567.5), "1234567.5");
    EXPECT_EQ(plainNumber(-0.25), "-0.25");
    EXPECT_EQ(plainNumber(1e-7), "0.0000001");
}

} // namespace
} // namespace ado
