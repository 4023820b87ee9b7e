#include "ado/PresentEvent.h"

#include "support/OneEvent.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

using support::inOneEvent;

TEST(EndOfEvent, IsReachedOnceWhenTheLoopWaitsForTheNextEvent) {
    int runs = 0;
    inOneEvent([&] {
        EXPECT_TRUE(atEndOfEvent([&] { ++runs; }));
        EXPECT_EQ(runs, 0);
    });
    EXPECT_EQ(runs, 1);
    inOneEvent([] {});
    EXPECT_EQ(runs, 1);
}

TEST(EndOfEvent, IsReachedWhereABoxIsOpenInTheEvent) {
    int runs = 0;
    inOneEvent([&] {
        EXPECT_TRUE(atEndOfEvent([&] { ++runs; }));
        inOneEvent([] {});
        EXPECT_EQ(runs, 1);
    });
    EXPECT_EQ(runs, 1);
}

TEST(EndOfEvent, IsNoneWithoutALoop) {
    int runs = 0;
    EXPECT_FALSE(atEndOfEvent([&] { ++runs; }));
    inOneEvent([] {});
    EXPECT_EQ(runs, 0);
}

} // namespace
} // namespace ado
