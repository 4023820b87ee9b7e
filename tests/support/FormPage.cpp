#include "support/FormPage.h"

#include <QApplication>
#include <QCompleter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTest>

namespace support {

void FormPage::show() const {
    gui_->forms().show(form_);
    gui_->waitForFront(form_);
}

void FormPage::comeToFront() const {
    gui_->form(form_).activateWindow();
    gui_->waitForFront(form_);
}

void FormPage::turnTo(const std::string& tabs, int number) const {
    control<QTabWidget>(tabs).setCurrentIndex(number);
    Gui::handleEvents();
}

bool FormPage::isShown(const std::string& name) const {
    const QWidget& widget = control(name);
    return widget.isVisibleTo(widget.parentWidget());
}

std::string FormPage::tickedBoxes() const {
    std::string names;
    for (const auto* box : gui_->form(form_).findChildren<controls::CheckBox*>()) {
        if (box->Value() != 0) {
            names += (names.empty() ? "" : " ") + box->objectName().toStdString();
        }
    }
    return names;
}

std::string FormPage::focus() const {
    const std::string where = gui_->focus();
    return where.substr(where.find('.') + 1);
}

std::string FormPage::cell(const std::string& grid, int row, int column) const {
    return this->grid(grid).model()->index(row, column).data().toString().toStdString();
}

std::string FormPage::currentRow(const std::string& grid) const {
    const QModelIndex current = this->grid(grid).currentIndex();
    return current.isValid() ? cell(grid, current.row(), 0) : std::string();
}

bool FormPage::currentRowIsInSight(const std::string& grid) const {
    const controls::DataGrid& view = this->grid(grid);
    return view.viewport()->rect().contains(view.visualRect(view.currentIndex()));
}

void FormPage::choose(const std::string& grid, const std::string& id) const {
    controls::DataGrid& view = this->grid(grid);
    view.setFocus();
    for (int row = 0; row < rows(grid); ++row) {
        if (cell(grid, row, 0) == id) {
            view.selectRow(row);
            gui_->press(Qt::Key_Return);
            return;
        }
    }
    ADD_FAILURE() << form_ << "." << grid << " has no row " << id;
}

void FormPage::pick(const std::string& combo, const std::string& row) const {
    gui_->pick(form_, combo, row);
    comeToFront();
}

void FormPage::pickByMouse(const std::string& combo, const std::string& row) const {
    controls::DataCombo& list = this->combo(combo);
    const int wanted = list.findText(QString::fromStdString(row), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (wanted < 0) {
        throw std::runtime_error(form_ + "." + combo + " has no row " + row);
    }
    QStyleOptionComboBox shape;
    shape.initFrom(&list);
    shape.editable = true;
    const QRect arrow = list.style()->subControlRect(QStyle::CC_ComboBox, &shape, QStyle::SC_ComboBoxArrow, &list);
    QTest::mousePress(&list, Qt::LeftButton, Qt::NoModifier, arrow.center());
    QAbstractItemView* view = list.view();
    Gui::waitFor("the list of " + combo, [view] { return view->isVisible(); });
    QTest::mouseRelease(&list, Qt::LeftButton, Qt::NoModifier, arrow.center());
    const QModelIndex item = view->model()->index(wanted, 0);
    view->scrollTo(item);
    Gui::handleEvents();
    QTest::qWait(QApplication::doubleClickInterval() + 1); // a list takes no release that belongs to its opening
    const QPoint place = view->visualRect(item).center();
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Gui::waitFor("the end of the list", [view] { return !view->isVisible(); });
    comeToFront();
    Gui::handleEvents();
}

QAbstractItemView& FormPage::search(const std::string& combo, const std::string& letters) const {
    gui_->type(letters);
    QAbstractItemView* found = this->combo(combo).completer()->popup();
    Gui::waitFor("the search", [found] { return found->isVisible(); });
    return *found;
}

void FormPage::typeWithoutPick(const std::string& combo, const std::string& letters) const {
    gui_->type(letters);
    this->combo(combo).completer()->popup()->hide();
    comeToFront();
}

} // namespace support
