#include "controls/QtDialogs.h"

#include "controls/Captions.h"
#include "controls/FolderBrowser.h"
#include "platform/Workstation.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

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

/// Shows a box with its buttons; true when the first one was chosen.
bool ask(const std::string& text, QMessageBox::Icon icon, const QStringList& captions,
         Leaving leaving = Leaving::ByEscToo) {
    const bool escToo = leaving == Leaving::ByEscToo;
    QMessageBox box(icon, applicationTitle(), QString(), QMessageBox::NoButton, QApplication::activeWindow());
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
    box.exec();
    return box.clickedButton() == buttons.first();
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
    QInputDialog box(QApplication::activeWindow());
    box.setWindowTitle(titleOr(title));
    box.setLabelText(QString::fromStdString(prompt));
    box.setTextValue(QString::fromStdString(proposed));
    box.setOkButtonText(kOk);
    box.setCancelButtonText(kAnnulla);
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

std::string QtDialogs::folder(const std::string& title) {
    FolderBrowser box(QApplication::activeWindow(), titleOr(title));
    return box.exec() == QDialog::Accepted ? box.chosen() : std::string();
}

} // namespace controls
