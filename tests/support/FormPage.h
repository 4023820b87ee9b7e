#pragma once

#include "controls/CheckBox.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "support/Gui.h"

#include <QAbstractItemView>

#include <string>

namespace support {

/// One form of a test, with what a user sees and does there. It needn't be loaded yet.
class FormPage {
public:
    FormPage(Gui& gui, std::string form) : gui_(&gui), form_(std::move(form)) {}

    template<typename Control = QWidget>
    Control& control(const std::string& name) const {
        return gui_->find<Control>(form_, name);
    }
    controls::DataGrid& grid(const std::string& name) const { return control<controls::DataGrid>(name); }
    controls::DataCombo& combo(const std::string& name) const { return control<controls::DataCombo>(name); }

    /// Loads the form where it isn't, and waits until the keyboard reaches it.
    void show() const;
    /// The platform without a screen doesn't give the front back to the form when a list closes.
    void comeToFront() const;
    void turnTo(const std::string& tabs, int number) const;

    std::string text(const std::string& name) const { return gui_->text(form_, name); }
    /// Seen once its tab is turned to.
    bool isShown(const std::string& name) const;
    int box(const std::string& name) const { return control<controls::CheckBox>(name).Value(); }
    /// The boxes that are ticked, one blank between them.
    std::string tickedBoxes() const;
    /// The control that has the focus, of this form or another; Gui::focus says of which.
    std::string focus() const;

    int rows(const std::string& grid) const { return this->grid(grid).model()->rowCount(); }
    std::string cell(const std::string& grid, int row, int column) const;
    /// The first column of the row on which the grid stands, empty where it stands on none.
    std::string currentRow(const std::string& grid) const;
    bool currentRowIsInSight(const std::string& grid) const;
    /// Goes to the row whose first column holds that id, and takes it with Enter.
    void choose(const std::string& grid, const std::string& id) const;

    /// Takes a row of a combo's list.
    void pick(const std::string& combo, const std::string& row) const;
    /// Types into the combo that has the focus; the list of what was found stays open.
    QAbstractItemView& search(const std::string& combo, const std::string& letters) const;
    /// The same; the list closes with nothing taken.
    void typeWithoutPick(const std::string& combo, const std::string& letters) const;

private:
    Gui* gui_;
    std::string form_;
};

} // namespace support
