#include "app/monkey/Boxes.h"

#include "app/monkey/Story.h"
#include "app/monkey/Texts.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include <gtest/gtest.h>

#include <array>

namespace monkey {

namespace {

constexpr std::array kFolders = {"", "C:\\", "C:\\vabo", "C:\\vabo\\Server", "C:\\vabo\\Files", "C:\\manca"};

} // namespace

class Boxes::Answers : public platform::Dialogs {
public:
    explicit Answers(Boxes& boxes) : boxes_(boxes) {}

    void message(const std::string& text, platform::Icon icon) override {
        if (!boxes_.atOnce("message", text)) {
            windows_.message(text, icon);
        }
    }
    bool question(const std::string& text) override {
        return boxes_.atOnce("question", text) ? boxes_.dice_.oneIn(2) : windows_.question(text);
    }
    bool confirm(const std::string& text) override {
        return boxes_.atOnce("confirmation", text) ? boxes_.dice_.oneIn(2) : windows_.confirm(text);
    }
    std::string input(const std::string& prompt, const std::string& title, const std::string& proposed) override {
        return boxes_.atOnce("input", prompt) ? anyText(boxes_.dice_).toStdString()
                                              : windows_.input(prompt, title, proposed);
    }
    std::string folder(const std::string& title) override {
        return boxes_.atOnce("folder", title) ? boxes_.dice_.oneOf(kFolders) : windows_.folder(title);
    }

private:
    Boxes& boxes_;
    controls::QtDialogs windows_;
};

Boxes::Boxes(Dice& dice, Hands& hands) : dice_(dice), hands_(hands) {
    platform::setDialogs(std::make_unique<Answers>(*this));
    qApp->installEventFilter(this);
}

Boxes::~Boxes() {
    platform::setDialogs(nullptr);
}

bool Boxes::atOnce(const char* kind, const std::string& text) {
    ++count_;
    last_ = text;
    story::tell(QString::fromLatin1(kind) + QLatin1String(" box: ") + QString::fromStdString(text).simplified());
    return dice_.oneIn(3);
}

bool Boxes::eventFilter(QObject* watched, QEvent* event) {
    auto* box = qobject_cast<QDialog*>(watched);
    if (box != nullptr && event->type() == QEvent::Show && !event->spontaneous()) {
        QMetaObject::invokeMethod(
            box, [this, box] { use(*box); }, Qt::QueuedConnection);
    }
    return false;
}

void Boxes::use(QDialog& shown) {
    const QPointer<QDialog> box = &shown;
    for (int events = dice_.below(6); events > 0 && box && box->isVisible(); --events) {
        hands_.act();
    }
    constexpr int kTries = 200;
    for (int tries = kTries; tries > 0 && box && box->isVisible(); --tries) {
        const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
        if (dice_.oneIn(4)) {
            hands_.key(dice_.oneIn(2) ? Qt::Key_Escape : Qt::Key_Return, Qt::NoModifier);
        } else if (QPushButton* button = dice_.oneOf(buttons); button->isVisible()) {
            hands_.click(*button);
        }
    }
    if (box && box->isVisible()) {
        ADD_FAILURE() << "A box can't be closed: " << last_ << '\n' << story::text();
        box->done(QDialog::Rejected);
    }
}

} // namespace monkey
