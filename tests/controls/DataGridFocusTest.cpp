// A grid that a press of the mouse gives the focus, while the field before reads the list again.

#include "DataFixture.h"
#include "controls/DataGrid.h"
#include "controls/TextBox.h"
#include "support/Gui.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

namespace {

using Told = std::vector<std::string>;

class DataGridFocus : public DataFixture {
protected:
    DataGridFocus() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&field);
        layout->addWidget(&grid);
        grid.setDataSource(&source);
        source.RecordSource = "select id, nome, prezzo from frutta order by nome, id"; // 4, 3, 1, 2, 5
        source.Refresh();
        window.resize(500, 400);
        window.show();
        window.activateWindow();
        support::Gui::waitFor("the window", [this] { return QApplication::activeWindow() == &window; });
        field.setFocus();
        QObject::connect(&field, &controls::TextBox::LostFocus, [this] {
            workstation.run(support::kCompany, change);
            source.Refresh();
        });
        QObject::connect(&grid, &controls::DataGrid::RowPicked, [this] { told.push_back(grid.Columns(0).Text()); });
        QObject::connect(&grid, &controls::DataGrid::Click, [this] { told.push_back("click"); });
    }
    QPoint middleOf(int row) const { return grid.visualRect(grid.model()->index(row, 1)).center(); }
    void press(const QPoint& place) { QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, place); }
    void release(const QPoint& place) { QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, place); }
    void click(const QPoint& place) {
        press(place);
        release(place);
    }
    std::string current() const {
        return grid.model()->index(grid.currentIndex().row(), 0).data().toString().toStdString();
    }

    QWidget window;
    controls::TextBox field;
    controls::DataGrid grid;
    std::string change = "insert into frutta (nome) values ('Banana')"; ///< 4, 3, 6, 1, 2, 5
    Told told;
};

TEST_F(DataGridFocus, TheRowThatStoodUnderTheMouseIsPicked) {
    click(middleOf(3));
    EXPECT_EQ(told, Told{"2"});
    EXPECT_EQ(current(), "2");
    EXPECT_EQ(source.Recordset().AbsolutePosition(), 5);
}

TEST_F(DataGridFocus, ARowAheadOfTheNewOneIsPickedWhereItIs) {
    click(middleOf(1));
    EXPECT_EQ(told, (Told{"3", "click"}));
}

TEST_F(DataGridFocus, ARowWhoseTextsHaveChangedIsTheSame) {
    change = "update frutta set nome = 'Zucca' where id = 3";
    click(middleOf(1));
    EXPECT_EQ(told, Told{"3"});
    EXPECT_EQ(grid.currentIndex().row(), 4);
}

TEST_F(DataGridFocus, ARowThatIsGoneIsNotReplacedByAnother) {
    change = "delete from frutta where id = 3";
    click(middleOf(1));
    EXPECT_EQ(told, Told{});
    EXPECT_EQ(current(), "4");
}

TEST_F(DataGridFocus, ARowThatComesUnderTheMouseBelowTheOthersIsNotPicked) {
    const QPoint below = middleOf(4) + QPoint(0, grid.rowHeight(4));
    click(below);
    ASSERT_EQ(grid.rowAt(below.y()), 5);
    EXPECT_EQ(told, Told{});
}

TEST_F(DataGridFocus, MovingTheMouseBeforeItIsReleasedPicksNoOther) {
    press(middleOf(3));
    QTest::mouseMove(grid.viewport(), middleOf(3) + QPoint(1, 0));
    release(middleOf(3));
    EXPECT_EQ(told, Told{"2"});
    click(middleOf(1));
    EXPECT_EQ(told, (Told{"2", "3", "click"})) << "the next press is one as ever";
}

TEST_F(DataGridFocus, TheListIsRememberedForThePressThatGaveTheFocusOnly) {
    for (QWidget* beside : {static_cast<QWidget*>(grid.verticalScrollBar()), grid.horizontalHeader()->viewport()}) {
        field.setFocus();
        told.clear();
        QTest::mousePress(beside, Qt::LeftButton);
        QTest::mouseRelease(beside, Qt::LeftButton);
        source.RecordSource = "select id, nome, prezzo from frutta order by id";
        source.Refresh();
        click(middleOf(0));
        EXPECT_EQ(told, (Told{"1", "click"}));
        source.RecordSource = "select id, nome, prezzo from frutta order by nome, id";
        source.Refresh();
    }
}

} // namespace
