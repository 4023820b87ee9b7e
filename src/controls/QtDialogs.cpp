#include "controls/QtDialogs.h"

#include "controls/Captions.h"
#include "controls/FolderChoice.h"
#include "controls/Modal.h"
#include "platform/Workstation.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace controls {

namespace {

const QString kSi = QStringLiteral("Sì");
const QString kNo = QStringLiteral("No");

QString applicationTitle() {
    return QString::fromStdString(platform::workstation().productName);
}

QString titleOr(const std::string& title) {
    return title.empty() ? applicationTitle() : QString::fromStdString(title);
}

/// Whether Esc and the close button mean the last button, or only the buttons close the box.
enum class Leaving { ByEscToo, ByButtonsAlone };

/// For a box without an icon: removes the space that is kept for it and centres the buttons.
void fillRoomOfIcon(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (QLayoutItem* room = grid != nullptr ? grid->itemAtPosition(0, 0) : nullptr; room && room->spacerItem()) {
        grid->removeItem(room);
        delete room;
    }
    if (auto* buttons = box.findChild<QDialogButtonBox*>()) {
        buttons->setCenterButtons(true);
    }
}

/// Of a text that is scrolled: icon, margins and buttons must find room beside it on a small screen too.
int textWidth(const QMessageBox& box) {
    constexpr int kUsual = 500;
    return std::min(kUsual, box.screen()->availableGeometry().width() * 2 / 3);
}

int mostTextHeight(const QMessageBox& box) {
    return box.screen()->availableGeometry().height() / 2;
}

/// Whether a box's own label would grow higher than half the screen, or cut off a word that is too long for a line.
bool needsScrolling(const QMessageBox& box, const QLabel& label) {
    const int width = textWidth(box);
    const QRect all =
        label.fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), Qt::TextWordWrap, label.text());
    return all.width() > width || all.height() > mostTextHeight(box);
}

/// What the field needs for its whole text, where that is less than a screen.
int wrappedHeight(const QPlainTextEdit& field) {
    constexpr int kMostLetters = 10000; // more than a screen holds
    QTextDocument text(field.toPlainText().left(kMostLetters));
    QTextOption option;
    option.setWrapMode(field.wordWrapMode());
    text.setDefaultTextOption(option);
    text.setDefaultFont(field.font());
    text.setTextWidth(field.width() - field.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    const int spare = field.fontMetrics().lineSpacing() / 2; // or the field scrolls by a few pixels
    return static_cast<int>(std::ceil(text.size().height())) + 2 * field.frameWidth() + spare;
}

/// The text in the label's place, wrapped wherever it must be, as high as it needs to be up to half the screen.
void showScrolled(QMessageBox& box, QLabel& label) {
    auto* text = new QPlainTextEdit(label.text(), &box);
    text->setObjectName(QStringLiteral("scrolledText"));
    text->setAccessibleName(box.windowTitle());
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text->setFixedWidth(textWidth(box));
    const int wanted = wrappedHeight(*text);
    const int most = mostTextHeight(box);
    text->setFixedHeight(std::min(wanted, most));
    // Not as needed: the field notices late that a single paragraph is longer than itself.
    text->setVerticalScrollBarPolicy(wanted > most ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    label.hide();
    const std::unique_ptr<QLayoutItem> replaced(box.layout()->replaceWidget(&label, text));
}

/// The window in front of which a box opens. One that was shown and hidden at once may be the active one.
QWidget* windowBelow() {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() ? active : nullptr;
}

/// Shows a box with its buttons; true when the first one was chosen.
bool ask(const std::string& text, QMessageBox::Icon icon, const QStringList& captions,
         Leaving leaving = Leaving::ByEscToo) {
    const bool escToo = leaving == Leaving::ByEscToo;
    Modal<QMessageBox> shown(icon, applicationTitle(), QString(), QMessageBox::NoButton, windowBelow());
    QMessageBox& box = *shown;
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    QList<QPushButton*> buttons;
    for (const QString& caption : captions) {
        const bool first = buttons.isEmpty();
        // The toolkit lets Esc press a button with the role of refusing, so that role is given only where Esc may
        // close.
        const auto other = escToo ? QMessageBox::RejectRole : QMessageBox::ActionRole;
        buttons.append(box.addButton(caption, first ? QMessageBox::YesRole : other));
        buttons.last()->setObjectName(caption);
    }
    box.setDefaultButton(buttons.first());
    if (icon == QMessageBox::NoIcon) {
        fillRoomOfIcon(box);
    }
    if (escToo) {
        box.setEscapeButton(buttons.last());
    } else {
        box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    }
    if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        label != nullptr && needsScrolling(box, *label)) {
        showScrolled(box, *label);
    }
    return shown.answered() && box.clickedButton() == buttons.first();
}

} // namespace

void QtDialogs::message(const std::string& text, platform::Icon icon) {
    ask(text, icon == platform::Icon::Stop ? QMessageBox::Critical : QMessageBox::NoIcon, {kOk});
}

bool QtDialogs::question(const std::string& text) {
    return ask(text, QMessageBox::Question, {kSi, kNo}, Leaving::ByButtonsAlone);
}

bool QtDialogs::confirm(const std::string& text) {
    return ask(text, QMessageBox::Question, {kOk, kAnnulla});
}

std::string QtDialogs::input(const std::string& prompt, const std::string& title, const std::string& proposed) {
    Modal<QInputDialog> box(windowBelow());
    box->setWindowTitle(titleOr(title));
    box->setLabelText(QString::fromStdString(prompt));
    box->setTextValue(QString::fromStdString(proposed));
    box->setOkButtonText(kOk);
    box->setCancelButtonText(kAnnulla);
    return box.accepted() ? box->textValue().toStdString() : std::string();
}

std::string QtDialogs::folder(const std::string& title) {
    return chooseFolder(windowBelow(), titleOr(title));
}

} // namespace controls
