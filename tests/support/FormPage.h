#pragma once

#include "controls/CheckBox.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "support/Gui.h"

#include <QAbstractItemView>

#include <string>

namespace support {

/// One form in a test: what a user sees and does there. It needn't be loaded yet.
class FormPage {
public:
    FormPage(Gui& gui, std::string form) : gui_(&gui), form_(std::move(form)) {}

    template<typename Control = QWidget>
    Control& control(const std::string& name) const {
        return gui_->find<Control>(form_, name);
    }
    controls::DataGrid& grid(const std::string& name) const { return control<controls::DataGrid>(name); }
    controls::DataCombo& combo(const std::string& name) const { return control<controls::DataCombo>(name); }

    /// Loads the form where it isn't loaded, and waits until it has the keyboard.
    void show() const;
    /// Makes the form the active window again, which the offscreen platform doesn't do when a list closes.
    void comeToFront() const;
    void turnTo(const std::string& tabs, int number) const;

    std::string text(const std::string& name) const { return gui_->text(form_, name); }
    /// Whether a control is visible when its tab is the current one.
    bool isShown(const std::string& name) const;
    int box(const std::string& name) const { return control<controls::CheckBox>(name).Value(); }
    /// The names of the ticked boxes, separated by blanks.
    std::string tickedBoxes() const;
    /// The control that has the focus, in this form or another; Gui::focus gives the form, too.
    std::string focus() const;

    int rows(const std::string& grid) const { return this->grid(grid).model()->rowCount(); }
    std::string cell(const std::string& grid, int row, int column) const;
    /// The first column of the grid's current row, empty where there is none.
    std::string currentRow(const std::string& grid) const;
    bool currentRowIsInSight(const std::string& grid) const;
    /// Goes to the row whose first column is that id, and presses Enter there.
    void choose(const std::string& grid, const std::string& id) const;

    /// Picks a row of a combo's list.
    void pick(const std::string& combo, const std::string& row) const;
    /// The same by mouse: opens the list at its arrow and clicks the row.
    void pickByMouse(const std::string& combo, const std::string& row) const;
    /// Types into the combo, which must have the focus; the list of the rows found stays open.
    QAbstractItemView& search(const std::string& combo, const std::string& letters) const;
    /// The same, then closes the list without a pick.
    void typeWithoutPick(const std::string& combo, const std::string& letters) const;

private:
    Gui* gui_;
    std::string form_;
};

} // namespace support
