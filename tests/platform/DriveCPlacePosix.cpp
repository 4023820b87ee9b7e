// Where drive C lies on this system.

#include "platform/ProbedWorkstation.h"

#include <gtest/gtest.h>

using platform::probe;

TEST(DriveCPlace, IsAskedOfTheEnvironmentFirst) {
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "/srv/c"}, {"XDG_DATA_HOME", "/data"}, {"HOME", "/home/anna"}})["drive"],
              "/srv/c");
    EXPECT_EQ(probe({{"VABO_DRIVE_C", "/srv/./x/../c"}})["drive"], "/srv/c");
}

TEST(DriveCPlace, IsAmongTheUsersDataElse) {
    EXPECT_EQ(probe({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/anna"}})["drive"], "/data/vabo/c");
    EXPECT_EQ(probe({{"XDG_DATA_HOME", "not/absolute"}, {"HOME", "/home/anna"}})["drive"],
              "/home/anna/.local/share/vabo/c");
    EXPECT_EQ(probe({{"HOME", "/home/anna"}})["drive"], "/home/anna/.local/share/vabo/c");
}
