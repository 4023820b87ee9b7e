#include "controls/CheckBox.h"

#include "ado/Error.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Box {
    Box() {
        QObject::connect(&box, &controls::CheckBox::Click, [this] { ++clicks; });
    }
    controls::CheckBox box;
    int clicks = 0;
};

TEST(CheckBox, StartsOff) {
    EXPECT_EQ(controls::CheckBox().Value(), 0);
}

TEST(CheckBox, AnotherValueInCodeFiresClick) {
    Box box;
    for (const int value : {1, 2, 0, 2, 1, 0}) {
        box.clicks = 0;
        box.box.setValue(value);
        EXPECT_EQ(box.box.Value(), value);
        EXPECT_EQ(box.clicks, 1) << value;
    }
}

TEST(CheckBox, TheSameValueInCodeFiresNothing) {
    Box box;
    for (const int value : {0, 1, 2}) {
        box.box.setValue(value);
        box.clicks = 0;
        box.box.setValue(value);
        EXPECT_EQ(box.clicks, 0) << value;
    }
}

TEST(CheckBox, TheUserSwitchesItOnAndOffAndNeverGreysIt) {
    Box box;
    box.box.show();
    QTest::keyClick(&box.box, Qt::Key_Space);
    EXPECT_EQ(box.box.Value(), 1);
    QTest::keyClick(&box.box, Qt::Key_Space);
    EXPECT_EQ(box.box.Value(), 0);
    EXPECT_EQ(box.clicks, 2);
}

TEST(CheckBox, AGreyedBoxIsSwitchedOffByTheUser) {
    Box box;
    box.box.setValue(2);
    box.box.show();
    QTest::keyClick(&box.box, Qt::Key_Space);
    EXPECT_EQ(box.box.Value(), 0);
}

TEST(CheckBox, OtherValuesAreRefused) {
    Box box;
    box.box.setValue(1);
    box.clicks = 0;
    for (const int value : {-1, 3, 100}) {
        try {
            box.box.setValue(value);
            ADD_FAILURE() << value << " was taken";
        } catch (const ado::Error& error) {
            EXPECT_EQ(error.number(), 380);
            EXPECT_EQ(error.description(), "Invalid property value");
        }
    }
    EXPECT_EQ(box.box.Value(), 1);
    EXPECT_EQ(box.clicks, 0);
}

} // namespace
