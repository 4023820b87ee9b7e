// Where drive C lies on this system.

#include "platform/ProbedWorkstation.h"

#include <gtest/gtest.h>

using platform::probe;

TEST(DriveCPlace, IsAskedOfTheEnvironmentFirst) {
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "C:\\prove\\c"}, {"XDG_DATA_HOME", "C:\\dati"}})["drive"], "C:\\prove\\c");
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "C:/prove/./x/../c"}})["drive"], "C:\\prove\\c");
}

TEST(DriveCPlace, IsTheSystemsOwnElse) {
    EXPECT_EQ(probe({})["drive"], "C:\\");
    EXPECT_EQ(probe({{"XDG_DATA_HOME", "C:\\dati"}, {"HOME", "C:\\anna"}})["drive"], "C:\\");
}
