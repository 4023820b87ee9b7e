#include "controls/DataCombo.h"

#include "controls/FocusTracker.h"
#include "controls/ListModel.h"
#include "controls/UserInput.h"

#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace controls {

namespace {

constexpr int kVisibleRows = 16;
constexpr int kPopupPadding = 24;

} // namespace

DataCombo::DataCombo(QWidget* parent) : QComboBox(parent), list_(new ListModel(this)) {
    auto* view = new QListView(this);
    view->setUniformItemSizes(true);
    setView(view);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(kVisibleRows);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setModel(list_);
    auto* search = new QCompleter(list_, this);
    search->setCaseSensitivity(Qt::CaseInsensitive);
    search->setFilterMode(Qt::MatchContains);
    search->setMaxVisibleItems(kVisibleRows);
    search->setWrapAround(false);
    setCompleter(search);
    search->popup()->installEventFilter(this);
    UserInput::watch();
    lineEdit()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, &DataCombo::picked);
    // Queued, since after a pick in the search the completer sets the text again.
    connect(this, &QComboBox::activated, this, &DataCombo::selectWhole, Qt::QueuedConnection);
    connect(lineEdit(), &QLineEdit::textEdited, this, &DataCombo::takeTyped);
    connect(&FocusTracker::instance(), &FocusTracker::entered, this, &DataCombo::takeFocus);
    connect(&FocusTracker::instance(), &FocusTracker::left, this, &DataCombo::loseFocus);
}

void DataCombo::setRowSource(DataControl* source) {
    if (source_ != nullptr) {
        source_->disconnect(this);
    }
    source_ = source;
    if (source_ != nullptr) {
        const auto refill = [this] { source_->byUser([this] { ReFill(); }); };
        connect(source_, &DataControl::refreshed, this, refill);
        connect(source_, &DataControl::rowsChanged, this, refill);
        connect(source_, &QObject::destroyed, this, [this] {
            source_ = nullptr;
            ReFill();
        });
    }
}

void DataCombo::ReFill() {
    const QString text = currentText();
    pickedRow_ = -1;
    list_->fill(ListField.empty() ? nullptr : source_, ListField, BoundColumn.empty() ? ListField : BoundColumn);
    setCurrentIndex(-1);
    setEditText(text);
}

void DataCombo::setText(const std::string& text) {
    const QString wanted = QString::fromStdString(text);
    pickedRow_ = -1;
    setCurrentIndex(-1);
    setEditText(wanted);
    setChosen(wanted);
}

// To be called when the field shows the text, which a handler may read.
void DataCombo::setChosen(const QString& text) {
    if (chosen_ != text) {
        chosen_ = text;
        emit Change();
    }
}

void DataCombo::takeTyped(const QString& text) {
    if (freeText_) {
        pickedRow_ = -1;
        setChosen(text);
    }
}

void DataCombo::endEntry() {
    const bool typed = !currentText().isEmpty() && currentText() != chosen_;
    const int row = typedRow_ && typed ? list_->rowTyped(currentText()) : -1;
    if (row >= 0) {
        pickedRow_ = row;
        setEditText(list_->textAt(row));
        setChosen(list_->textAt(row));
    }
    restoreChosen();
}

void DataCombo::restoreChosen() {
    completer()->popup()->hide();
    if (currentText() == chosen_) {
        return;
    }
    setEditText(chosen_);
    selectWhole();
}

// The whole text is selected, as when the focus comes, so that typing replaces it.
void DataCombo::selectWhole() {
    if (hasFocus()) {
        lineEdit()->selectAll();
    }
}

bool DataCombo::TabStop() const {
    return (focusPolicy() & Qt::TabFocus) != 0;
}

void DataCombo::setTabStop(bool stops) {
    const Qt::FocusPolicy policy = stops ? Qt::WheelFocus : Qt::ClickFocus;
    setFocusPolicy(policy);
    lineEdit()->setFocusPolicy(policy);
}

std::string DataCombo::BoundText() const {
    const bool picked = pickedRow_ >= 0 && pickedRow_ < list_->rowCount() && list_->textAt(pickedRow_) == currentText();
    const int row = picked ? pickedRow_ : list_->rowOfText(currentText());
    return row < 0 ? std::string() : list_->keyAt(row);
}

void DataCombo::setBoundText(const std::string& key) {
    const int row = list_->rowOfKey(key);
    if (row < 0) {
        setText({});
        return;
    }
    pickedRow_ = row;
    setCurrentIndex(row);
    setChosen(list_->textAt(row));
}

void DataCombo::picked(int row) {
    // When the field is left, the toolkit emits this for a text that is in the list, which isn't a pick.
    if (leaving_) {
        return;
    }
    pickedRow_ = row;
    setChosen(list_->textAt(row));
    // Queued, since the completer sets the row's text again behind the Click: a text that the form sets there counts.
    QMetaObject::invokeMethod(this, &DataCombo::restoreChosen, Qt::QueuedConnection);
    emit Click(List);
}

void DataCombo::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            emit DblClick();
        } else {
            event->ignore(); // the form handles Enter
        }
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        showPopup(); // shows the list instead of picking the next row in the closed one
        return;
    case Qt::Key_Escape:
        restoreChosen();
        event->ignore(); // the form may handle Esc, too
        return;
    default:
        QComboBox::keyPressEvent(event);
        highlightOnlyMatch();
    }
}

void DataCombo::inputMethodEvent(QInputMethodEvent* event) {
    QComboBox::inputMethodEvent(event);
    highlightOnlyMatch();
}

// What is typed free may be the beginning of a text in the list, and is meant as it stands.
void DataCombo::highlightOnlyMatch() {
    if (freeText_) {
        return;
    }
    QAbstractItemView* found = completer()->popup();
    const QAbstractItemModel* matches = completer()->completionModel();
    if (!found->isVisible() || matches->rowCount() != 1) {
        return;
    }
    const QSignalBlocker quiet(completer()); // or the completer would put the row's text into the field
    found->setCurrentIndex(matches->index(0, 0));
}

// The keys that end the search. Returns true where the key has been handled; the completer handles all other keys, and
// Enter on a highlighted row.
bool DataCombo::keyInSearch(const QKeyEvent& key) {
    QAbstractItemView& found = *completer()->popup();
    const bool plain = UserInput::isPlain(key);
    const bool highlighted = found.currentIndex().isValid();
    switch (key.key()) {
    case Qt::Key_Escape:
        restoreChosen();
        return true;
    case Qt::Key_Tab:
        if (plain && !highlighted) {
            return false;
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (plain && highlighted) {
            return false;
        }
        break;
    default:
        return false;
    }
    if (plain && highlighted) {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&found, &enter);
    } else {
        found.hide();
        QKeyEvent own(QEvent::KeyPress, key.key(), key.modifiers());
        QApplication::sendEvent(this, &own);
    }
    return true;
}

void DataCombo::hideEvent(QHideEvent* event) {
    completer()->popup()->hide();
    QComboBox::hideEvent(event);
}

void DataCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void DataCombo::mousePressEvent(QMouseEvent* event) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const auto part = style()->hitTestComplexControl(QStyle::CC_ComboBox, &option, event->position().toPoint(), this);
    emit Click(part == QStyle::SC_ComboBoxArrow ? Button : Edit);
    QComboBox::mousePressEvent(event);
}

void DataCombo::focusInEvent(QFocusEvent* event) {
    QWidget* owner = std::exchange(focusOwner_, nullptr);
    if (owner != nullptr && event->reason() == Qt::ActiveWindowFocusReason) {
        owner->setFocus(event->reason());
        return;
    }
    byMouse_ = event->reason() == Qt::MouseFocusReason;
    QComboBox::focusInEvent(event);
}

void DataCombo::focusOutEvent(QFocusEvent* event) {
    const QScopedValueRollback leaving(leaving_, true);
    const QString text = currentText();
    QComboBox::focusOutEvent(event);
    if (currentText() != text) {
        setEditText(text); // the toolkit shows a row that differs in its case
    }
}

void DataCombo::showPopup() {
    widenPopup();
    QComboBox::showPopup();
}

void DataCombo::hidePopup() {
    QComboBox::hidePopup();
    selectWhole();
}

// Estimates the width from the number of letters, since measuring thousands of texts would take too long.
void DataCombo::widenPopup() {
    const int letters = static_cast<int>(list_->longest());
    const int wanted = letters * QFontMetrics(view()->font()).averageCharWidth() + kPopupPadding +
                       view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width() / 2));
}

bool DataCombo::eventFilter(QObject* watched, QEvent* event) {
    // The window system may tell that the search list is active when a pick has closed it already. The toolkit then
    // sends the focus back here from where the pick has led.
    if (watched == completer()->popup() && event->type() == QEvent::WindowActivate) {
        focusOwner_ = completer()->popup()->isVisible() ? nullptr : QApplication::focusWidget();
    }
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress) {
        emit Click(Edit);
    }
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonDblClick) {
        emit DblClick();
    }
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease && selectAtRelease_) {
        selectAtRelease_ = false;
        lineEdit()->selectAll();
    }
    if (watched == completer()->popup() && event->type() == QEvent::KeyPress &&
        keyInSearch(static_cast<const QKeyEvent&>(*event))) {
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void DataCombo::takeFocus(const QWidget* control) {
    if (control == this) {
        lineEdit()->selectAll();
        selectAtRelease_ = byMouse_;
        emit GotFocus();
    }
}

void DataCombo::loseFocus(const QWidget* control) {
    if (control == this) {
        endEntry();
        emit LostFocus();
    }
}

} // namespace controls
