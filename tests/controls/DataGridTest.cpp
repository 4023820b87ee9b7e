#include "controls/DataGrid.h"

#include "DataFixture.h"
#include "ado/Conversions.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTest>

#include <array>

namespace {

class DataGrid : public DataFixture {
protected:
    DataGrid() {
        grid.setDataSource(&source);
        source.Refresh();
        grid.resize(500, 300);
        grid.show();
    }
    std::string cell(int row, int column) const {
        return grid.model()->index(row, column).data().toString().toStdString();
    }
    long position() { return source.Recordset().AbsolutePosition(); }
    QPoint middleOf(int row) const { return grid.visualRect(grid.model()->index(row, 1)).center(); }
    void lockAll() {
        for (int i = 0; i < grid.ColumnCount(); ++i) {
            grid.Columns(i).setLocked(true);
        }
    }
    /// The signals of the grid so far: "row 2" (the current one), "click", "double", "key 68".
    std::vector<std::string>& told() {
        if (!listening_) {
            listening_ = true;
            QObject::connect(&grid, &controls::DataGrid::RowPicked,
                             [this] { told_.push_back("row " + grid.Columns(0).Text()); });
            QObject::connect(&grid, &controls::DataGrid::Click, [this] { told_.push_back("click"); });
            QObject::connect(&grid, &controls::DataGrid::DblClick, [this] { told_.push_back("double"); });
        }
        return told_;
    }

    controls::DataGrid grid;

private:
    std::vector<std::string> told_;
    bool listening_ = false;
};

using Told = std::vector<std::string>;

TEST_F(DataGrid, ShowsEveryRowAndField) {
    EXPECT_EQ(grid.model()->rowCount(), 5);
    ASSERT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.Columns(1).Caption(), "nome");
    EXPECT_EQ(cell(0, 1), "Mela");
    EXPECT_EQ(cell(0, 2), "1,5") << "as this machine writes numbers";
    EXPECT_EQ(cell(3, 1), "") << "a null";
    EXPECT_EQ(position(), 1) << "drawing moves nothing";
}

TEST_F(DataGrid, ItsRowAndTheRecordsetsAreOne) {
    EXPECT_EQ(grid.currentIndex().row(), 0);
    source.Recordset().MoveFromFirst(2);
    EXPECT_EQ(grid.currentIndex().row(), 2);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(position(), 4);
    EXPECT_EQ(grid.Columns(0).Text(), "4");
    grid.selectRow(1);
    EXPECT_EQ(position(), 2);
    EXPECT_EQ(grid.Columns(1).Text(), "Pera");
}

TEST_F(DataGrid, PastTheEndItStandsOnItsLastRow) {
    source.Recordset().MoveLast();
    source.Recordset().MoveNext();
    EXPECT_EQ(grid.currentIndex().row(), 4);
    EXPECT_TRUE(source.Recordset().EOF()) << "standing there moves nothing";
    EXPECT_THROW(grid.Columns(0).Text(), ado::Error);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(position(), 4);
}

TEST_F(DataGrid, ChoosingTheRowOnWhichItStandsPastTheEndMakesItCurrent) {
    std::vector<std::string> chosen;
    QObject::connect(&grid, &controls::DataGrid::DblClick, [&] { chosen.push_back(grid.Columns(0).Text()); });
    for (int i = 0; i < 3; ++i) {
        grid.Columns(i).setLocked(true);
    }
    const auto passTheEnd = [&] {
        source.Recordset().MoveLast();
        source.Recordset().MoveNext();
    };
    passTheEnd();
    QTest::keyClick(&grid, Qt::Key_Return);
    passTheEnd();
    const QPoint last = grid.visualRect(grid.model()->index(4, 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, last);
    EXPECT_EQ(position(), 5);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, last);
    EXPECT_EQ(chosen, (std::vector<std::string>{"5", "5"}));
}

TEST_F(DataGrid, ItsRowIsPalerWithoutTheFocus) {
    grid.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    const auto row = [&] {
        const QRect cell = grid.visualRect(grid.model()->index(0, 0));
        return grid.viewport()->grab().toImage().pixelColor(cell.right() - 3, cell.center().y()).lightness();
    };
    grid.setFocus();
    const int focused = row();
    grid.clearFocus();
    EXPECT_GT(row(), focused);
}

TEST_F(DataGrid, BeforeTheFirstRowNoneIsMarked) {
    source.Recordset().MovePrevious();
    EXPECT_FALSE(grid.currentIndex().isValid());
    EXPECT_THROW(grid.Columns(0).Text(), ado::Error);
}

TEST_F(DataGrid, ItsRowStaysInSightWhenItGetsLower) {
    grid.selectRow(4);
    const auto inSight = [&] {
        return grid.viewport()->rect().contains(grid.visualRect(grid.currentIndex()).center());
    };
    ASSERT_TRUE(inSight());
    grid.resize(500, 100);
    EXPECT_TRUE(inSight());
    grid.scrollToTop();
    ASSERT_FALSE(inSight());
    grid.resize(500, 90);
    EXPECT_FALSE(inSight()) << "a user who looks elsewhere isn't called back";
}

TEST_F(DataGrid, AHeldEnterChoosesOnce) {
    int chosen = 0;
    QObject::connect(&grid, &controls::DataGrid::DblClick, [&] { ++chosen; });
    QTest::keyPress(&grid, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&grid, &again);
    }
    QTest::keyRelease(&grid, Qt::Key_Return);
    EXPECT_EQ(chosen, 1);
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(chosen, 2);
}

TEST_F(DataGrid, FollowsTheFilter) {
    source.Recordset().setFilter("nome = 'Pera'");
    EXPECT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(cell(1, 0), "5");
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(ado::toText(source.Recordset()["id"]), "5");
}

TEST_F(DataGrid, ALayoutIsWhatTheColumnsSay) {
    auto column = grid.Columns(1);
    column.setWidth(3000);
    column.setCaption("Nome\r\ndel frutto");
    column.setAlignment(Qt::AlignRight);
    column.setLocked(true);
    grid.Columns(0).setVisible(false);
    grid.Columns(2).setWidth(0);
    EXPECT_EQ(grid.columnWidth(1), 200) << "15 twips to a pixel";
    EXPECT_EQ(column.Width(), 3000);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), "Nome\r\ndel frutto");
    EXPECT_EQ(grid.model()->index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_TRUE(column.Locked());
    EXPECT_FALSE(grid.Columns(0).Visible());
    EXPECT_FALSE(grid.Columns(2).Visible()) << "no width is not to be seen";
}

constexpr std::array<controls::ColumnLayout, 2> kLayout = {
    {{0, "Codice", 0}, {2, "Prezzo\r\nal chilo", 1500, Qt::AlignRight}}};

TEST_F(DataGrid, ALayoutIsATableOfColumnsAndLocksEveryOne) {
    grid.lay(kLayout);
    for (int i = 0; i < grid.ColumnCount(); ++i) {
        EXPECT_TRUE(grid.Columns(i).Locked()) << i;
    }
    EXPECT_FALSE(grid.Columns(0).Visible());
    EXPECT_EQ(grid.Columns(0).Caption(), "Codice");
    EXPECT_EQ(grid.Columns(2).Caption(), "Prezzo\r\nal chilo");
    EXPECT_EQ(grid.columnWidth(2), 100);
    EXPECT_EQ(grid.model()->index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_TRUE(grid.Columns(1).Visible()) << "a column that the layout doesn't name keeps what it has";
    EXPECT_EQ(grid.Columns(1).Caption(), "nome");
}

TEST_F(DataGrid, ALayoutWithoutACaptionKeepsTheFieldsName) {
    grid.lay(std::array<controls::ColumnLayout, 1>{{{1, nullptr, 3000}}});
    EXPECT_EQ(grid.Columns(1).Caption(), "nome");
    EXPECT_EQ(grid.columnWidth(1), 200);
}

TEST_F(DataGrid, ALayoutStopsAtAColumnThatIsNotThere) {
    constexpr std::array<controls::ColumnLayout, 3> kTooMany = {
        {{0, "Codice", 300}, {3, nullptr, 0}, {1, "Frutto", 300}}};
    try {
        grid.lay(kTooMany);
        ADD_FAILURE() << "there is no column 3";
    } catch (const ado::Error& error) {
        EXPECT_EQ(error.number(), 9);
    }
    EXPECT_EQ(grid.Columns(0).Caption(), "Codice");
    EXPECT_EQ(grid.Columns(1).Caption(), "nome");
}

TEST_F(DataGrid, ARefreshLeavesNothingOfALayout) {
    grid.lay(kLayout);
    source.Refresh();
    EXPECT_TRUE(grid.Columns(0).Visible());
    EXPECT_FALSE(grid.Columns(2).Locked());
    EXPECT_EQ(grid.Columns(2).Caption(), "prezzo");
}

TEST_F(DataGrid, ColumnsThatFillTheWidthKeepTheirProportion) {
    grid.fillWidth();
    grid.Columns(0).setWidth(0);
    grid.Columns(1).setWidth(1000);
    grid.Columns(2).setWidth(3000);
    const int width = grid.viewport()->width();
    EXPECT_EQ(grid.columnWidth(1), width / 4);
    EXPECT_EQ(grid.columnWidth(2), width * 3 / 4);
    EXPECT_EQ(grid.Columns(1).Width(), 1000) << "as it was set";
    grid.Columns(2).setWidth(30000);
    grid.resize(300, 300);
    EXPECT_EQ(grid.columnWidth(2), 2000) << "never narrower than set";
}

TEST_F(DataGrid, AColumnThatFillsItsGridShowsItsWholeCaption) {
    grid.fillWidth();
    grid.Columns(0).setWidth(0);
    grid.Columns(1).setCaption("Didascalia lunga");
    grid.Columns(1).setWidth(150);
    grid.Columns(2).setWidth(3000);
    grid.resize(500, 300);
    EXPECT_GE(grid.columnWidth(1), grid.horizontalHeader()->sectionSizeHint(1));
    // The widest column gets narrower by what the caption needs; each share is cut to whole pixels.
    EXPECT_NEAR(grid.columnWidth(1) + grid.columnWidth(2), grid.viewport()->width(), 2);
}

TEST_F(DataGrid, ALongerCaptionSetLaterWidensItsColumn) {
    grid.fillWidth();
    grid.Columns(1).setWidth(150);
    grid.Columns(2).setWidth(3000);
    grid.resize(500, 300);
    grid.Columns(1).setCaption("Didascalia molto lunga");
    EXPECT_GE(grid.columnWidth(1), grid.horizontalHeader()->sectionSizeHint(1));
}

TEST_F(DataGrid, ARefreshMakesTheColumnsAnew) {
    grid.Columns(0).setVisible(false);
    grid.Columns(1).setCaption("Frutto");
    grid.Columns(1).setLocked(true);
    source.Refresh();
    EXPECT_TRUE(grid.Columns(0).Visible());
    EXPECT_EQ(grid.Columns(1).Caption(), "nome");
    EXPECT_FALSE(grid.Columns(1).Locked());
    EXPECT_EQ(grid.currentIndex().row(), 0);
}

TEST_F(DataGrid, AColumnThatIsNotThereIsRefused) {
    for (const int index : {-1, 3}) {
        try {
            grid.Columns(index);
            ADD_FAILURE() << index;
        } catch (const ado::Error& error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

TEST_F(DataGrid, ALockedColumnTakesNoText) {
    const QModelIndex name = grid.model()->index(0, 1);
    EXPECT_TRUE(name.flags() & Qt::ItemIsEditable);
    grid.Columns(1).setLocked(true);
    EXPECT_FALSE(name.flags() & Qt::ItemIsEditable);
}

TEST_F(DataGrid, AnOpenColumnIsWrittenToItsRow) {
    EXPECT_TRUE(grid.model()->setData(grid.model()->index(1, 2), "2,75"));
    EXPECT_EQ(workstation.value(support::kCompany, "select prezzo from frutta where id = 2"), "2.75");
}

TEST_F(DataGrid, ATextThatTheColumnRefusesIsTheErrorEvent) {
    int number = 0;
    QObject::connect(&source, &controls::DataControl::Error, [&](int n) { number = n; });
    EXPECT_FALSE(grid.model()->setData(grid.model()->index(1, 2), "abc"));
    EXPECT_EQ(number, ado::kMultipleStep);
    EXPECT_EQ(workstation.value(support::kCompany, "select prezzo from frutta where id = 2"), "2");
}

TEST_F(DataGrid, EnterAndADoubleClickAreOne) {
    int chosen = 0;
    QObject::connect(&grid, &controls::DataGrid::DblClick, [&] { ++chosen; });
    for (int i = 0; i < 3; ++i) {
        grid.Columns(i).setLocked(true);
    }
    const QPoint second = grid.visualRect(grid.model()->index(1, 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(position(), 2);
    QTest::keyClick(&grid, Qt::Key_Return);
    QTest::keyClick(&grid, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(chosen, 3);
}

TEST_F(DataGrid, TheUsersMovesAreToldWithTheirRowCurrent) {
    told();
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(told(), (Told{"row 2", "row 3", "row 1"}));
    told().clear();
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(told(), Told{}) << "there is no row above the first";
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(3));
    EXPECT_EQ(told(), Told{"row 4"}) << "at the press";
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(3));
    EXPECT_EQ(told(), (Told{"row 4", "click"}));
}

TEST_F(DataGrid, TypedLettersSearchARowAndPickNone) {
    lockAll();
    told();
    grid.setCurrentIndex(grid.model()->index(0, 1));
    QTest::keyClicks(&grid, "per");
    EXPECT_EQ(position(), 2);
    EXPECT_EQ(told(), Told{});
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(told(), (Told{"row 2", "click"}));
    told().clear();
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(told(), (Told{"row 2", "click", "double"}));
}

TEST_F(DataGrid, AheadOfItsFirstRowItSearchesTheFirstColumnThatIsSeen) {
    lockAll();
    grid.Columns(0).setVisible(false);
    source.Recordset().Move(-2);
    ASSERT_FALSE(grid.currentIndex().isValid());
    QTest::keyClicks(&grid, "alb");
    EXPECT_EQ(position(), 3);
}

TEST_F(DataGrid, MovesInCodeTellNothing) {
    told();
    source.Recordset().MoveNext();
    source.Recordset().MoveLast();
    grid.selectRow(1);
    source.Recordset().setFilter("nome = 'Pera'");
    source.Refresh();
    grid.setFocus();
    EXPECT_EQ(told(), Told{});
}

TEST_F(DataGrid, AClickOrSpaceGoesToTheRowOnWhichTheGridStands) {
    told();
    lockAll();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(0));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(told(), (Told{"row 1", "click", "row 1", "click"}));
}

TEST_F(DataGrid, PastTheEndTheRowThatIsMarkedCanBeGoneTo) {
    told();
    lockAll();
    source.Recordset().MoveLast();
    source.Recordset().MoveNext();
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(told(), Told{}) << "nowhere to go";
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(told(), (Told{"row 5", "click"}));
}

TEST_F(DataGrid, ADoubleClickIsOneClickAndThenItself) {
    told();
    lockAll();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(told(), (Told{"row 2", "click", "double"}));
}

TEST_F(DataGrid, AClickBesideTheRowsIsNone) {
    told();
    const QPoint below(10, grid.viewport()->height() - 5);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(told(), Told{});
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, below);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(told(), Told{}) << "nor one that begins there";
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(told(), Told{"row 2"}) << "nor one that ends there";
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, QPoint(10, grid.viewport()->height() + 40));
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, middleOf(1));
    EXPECT_EQ(told(), (Told{"row 2", "row 2", "row 2"})) << "the button came up elsewhere, or was the other one";
}

TEST_F(DataGrid, AGridWithoutRowsGoesNowhere) {
    told();
    source.Recordset().setFilter("id = 99");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyClick(&grid, key);
    }
    EXPECT_EQ(told(), Told{});
}

TEST_F(DataGrid, EachKeyIsToldOnceWithItsModifiersAheadOfItsEffect) {
    std::vector<std::string> keys;
    QObject::connect(&grid, &controls::DataGrid::KeyDown, [&](int key, Qt::KeyboardModifiers modifiers) {
        keys.push_back(QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(key))).toString().toStdString() +
                       " at " + grid.Columns(0).Text());
    });
    QTest::keyClick(&grid, Qt::Key_D, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyPress(&grid, Qt::Key_Down);
    for (int i = 0; i < 2; ++i) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&grid, &again);
    }
    QTest::keyRelease(&grid, Qt::Key_Down);
    EXPECT_EQ(keys, (Told{"Ctrl+Control at 1", "Ctrl+D at 1", "Down at 1", "Down at 2"}));
    EXPECT_EQ(position(), 5) << "a held arrow moves on";
}

TEST_F(DataGrid, WhatARowPickedDoesToTheSourceIsStoodByTheGrid) {
    QObject::connect(&grid, &controls::DataGrid::RowPicked, [&] { source.Refresh(); });
    lockAll();
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(position(), 1);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(position(), 1);
    EXPECT_EQ(grid.currentIndex().row(), 0);
}

TEST_F(DataGrid, TheArrowsLeadOnFromAColumnThatIsHidden) {
    grid.Columns(0).setVisible(false);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(position(), 2);
}

TEST_F(DataGrid, ADoubleClickOnAGridWithoutRowsIsToldAndOneBesideTheRowsIsNot) {
    int chosen = 0;
    QObject::connect(&grid, &controls::DataGrid::DblClick, [&] { ++chosen; });
    const QPoint below(10, grid.viewport()->height() - 5);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(chosen, 0);
    source.Recordset().setFilter("id = 99");
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(chosen, 1);
}

TEST_F(DataGrid, EnterWithoutARowIsNothing) {
    source.Recordset().setFilter("id = 99");
    int chosen = 0;
    QObject::connect(&grid, &controls::DataGrid::DblClick, [&] { ++chosen; });
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(chosen, 0);
}

TEST_F(DataGrid, AFailedRefreshLeavesItEmpty) {
    source.RecordSource = "select * from nessuna";
    EXPECT_THROW(source.Refresh(), ado::Error);
    EXPECT_EQ(grid.ColumnCount(), 0);
    EXPECT_EQ(grid.model()->rowCount(), 0);
}

} // namespace
