#include "controls/CheckBox.h"

#include "ado/Error.h"
#include "controls/RoomyStyle.h"

#include <QImage>
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

/// As the program's style draws it.
QImage drawn(int value, bool enabled = true) {
    controls::RoomyStyle style;
    controls::CheckBox box;
    box.setStyle(&style);
    box.setEnabled(enabled);
    box.setValue(value);
    box.resize(box.sizeHint());
    return box.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
}

TEST(CheckBox, AGreyedOneIsDrawnWithTheSameTickInAPalerColour) {
    const QImage empty = drawn(0), ticked = drawn(1), greyed = drawn(2);
    int ink = 0, greyInk = 0;
    for (int y = 0; y < empty.height(); ++y) {
        for (int x = 0; x < empty.width(); ++x) {
            const int ground = empty.pixelColor(x, y).lightness();
            const int black = ground - ticked.pixelColor(x, y).lightness();
            const int grey = ground - greyed.pixelColor(x, y).lightness();
            EXPECT_EQ(black > 0, grey > 0) << x << "," << y;
            EXPECT_LE(grey, black) << x << "," << y;
            ink += black;
            greyInk += grey;
        }
    }
    EXPECT_GT(greyInk, 0);
    EXPECT_LT(greyInk, ink);
}

TEST(CheckBox, DisabledOnesHaveTheSameTickWhetherTickedOrGreyed) {
    EXPECT_EQ(drawn(1, false), drawn(2, false));
    EXPECT_NE(drawn(0, false), drawn(2, false));
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
