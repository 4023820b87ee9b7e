#include "controls/ProgressBar.h"

#include "ado/Error.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

void advance(controls::ProgressBar& bar, double step) {
    bar.setValue(bar.advanced(bar.Value(), step));
}

TEST(ProgressBar, ShowsWhatIsFromZeroToAHundred) {
    controls::ProgressBar bar;
    EXPECT_EQ(bar.QProgressBar::value(), 0);
    for (const double value : {0.0, 0.4, 33.5, 99.6, 100.0}) {
        bar.setValue(value);
        EXPECT_EQ(bar.Value(), value);
        EXPECT_EQ(bar.QProgressBar::value(), std::lround(value));
    }
}

TEST(ProgressBar, RefusesWhatIsOutsideAndStaysAsItWas) {
    controls::ProgressBar bar;
    bar.setValue(50);
    for (const double value : {-0.001, 100.001, 1e9, -1e9, std::nan("")}) {
        try {
            bar.setValue(value);
            ADD_FAILURE() << value << " was taken";
        } catch (const ado::Error& error) {
            EXPECT_EQ(error.number(), 380);
            EXPECT_EQ(error.description(), "Invalid property value");
        }
        EXPECT_EQ(bar.Value(), 50);
        EXPECT_EQ(bar.QProgressBar::value(), 50);
    }
}

TEST(ProgressBar, AStepThatWouldReachTheEndBeginsAgainAtZero) {
    controls::ProgressBar bar;
    EXPECT_EQ(bar.Max(), 100);
    for (const double value : {25.0, 50.0, 75.0, 0.0, 25.0}) {
        advance(bar, 25);
        EXPECT_EQ(bar.Value(), value);
        EXPECT_EQ(bar.QProgressBar::value(), value);
    }
    advance(bar, 75.001);
    EXPECT_EQ(bar.Value(), 0);
}

TEST(ProgressBar, StepsAreAddedInSinglePrecision) {
    controls::ProgressBar bar;
    advance(bar, 0.1);
    EXPECT_EQ(bar.Value(), static_cast<double>(0.1F));
    EXPECT_NE(bar.Value(), 0.1);
    bar.setValue(99);
    advance(bar, 0.99999999);
    EXPECT_EQ(bar.Value(), 0) << "in single precision this is the end";
}

TEST(ProgressBar, ManySmallStepsStayInsideTheBar) {
    controls::ProgressBar bar;
    const double step = bar.Max() / 3001;
    int turns = 0;
    for (int i = 0; i < 10000; ++i) {
        const double before = bar.Value();
        advance(bar, step);
        turns += bar.Value() < before ? 1 : 0;
        ASSERT_LT(bar.Value(), bar.Max());
    }
    EXPECT_EQ(turns, 3);
}

} // namespace
