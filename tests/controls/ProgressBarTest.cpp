#include "controls/ProgressBar.h"

#include "ado/Error.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

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

} // namespace
