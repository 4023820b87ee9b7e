#include "controls/Form.h"

#include "controls/Label.h"
#include "controls/UserInput.h"
#include "platform/Forms.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QWindow>

namespace controls {

namespace {

bool isExposed(const QWidget& form) {
    const QWindow* window = form.windowHandle();
    return window != nullptr && window->isExposed();
}

/// Waits until the system shows the window, since it can't paint earlier; whether it does.
bool waitUntilExposed(const QWidget& form) {
    constexpr int kLongestMilliseconds = 1000;
    constexpr int kSliceMilliseconds = 20;
    const QDeadlineTimer deadline(kLongestMilliseconds);
    while (form.windowHandle() != nullptr && !isExposed(form) && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kSliceMilliseconds);
    }
    return isExposed(form);
}

} // namespace

Form::Form(const char* name) {
    setObjectName(QString::fromUtf8(name));
    UserInput::watch();
}

Form::Work::Work(Form& form) : form_(form) {
    ++form_.works_;
}

Form::Work::~Work() {
    --form_.works_;
    if (form_.isGone_) {
        form_.deleteWhenIdle();
    }
}

void Form::deleteWhenIdle() {
    isGone_ = true;
    if (works_ == 0) {
        deleteLater();
    }
}

void Form::runLoad() {
    // Without this, Enter presses buttons only in a QDialog.
    for (auto* button : findChildren<QPushButton*>()) {
        button->setAutoDefault(true);
    }
    nameForAssistiveTools();
    runUnlessUnloading([this] { Load(); });
}

// Painting handles events, by which the window system may report the form as active while its Activate still runs.
void Form::runActivate() {
    if (activating_) {
        return;
    }
    const QScopedValueRollback runs(activating_, true);
    runUnlessUnloading([this] { Activate(); });
}

void Form::runUnload() {
    unloading_ = true;
    guarded([this] { Unload(); });
}

void Form::runUnlessUnloading(const std::function<void()>& event) {
    if (!unloading_) {
        const Work work(*this);
        guarded(event);
    }
}

// A mnemonic clicks its button after a while, even where the form has been disabled or a box opened meanwhile.
void Form::run(const std::function<void()>& event) {
    if (isEnabled() && QApplication::activeModalWidget() == nullptr) {
        runUnlessUnloading(event);
    }
}

void Form::chain(std::vector<KeyRow> rows) {
    new KeyChain(
        this, [this](const std::function<void()>& handler) { run(handler); }, std::move(rows));
}

void Form::Refresh() {
    if (!isVisible()) {
        return;
    }
    const Work work(*this);
    // A minimised window, or one on another desktop, is waited for once.
    outOfSight_ = !isExposed(*this) && (outOfSight_ || !waitUntilExposed(*this));
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Form::Hide() {
    platform::formHost().hide(Name());
}

void Form::UnloadMe() {
    platform::formHost().unload(Name());
}

void Form::setHelpContext(int form, int controls) {
    setProperty("HelpContextID", form);
    for (auto* control : findChildren<QWidget*>()) {
        control->setProperty("HelpContextID", controls);
    }
}

void Form::closeEvent(QCloseEvent* event) {
    event->ignore();
    // Ignored where another event has hidden the window meanwhile, while the form is disabled, and in the middle of one
    // of its events, which would go on with a form that is gone.
    if (isVisible() && isEnabled() && works_ == 0) {
        UnloadMe();
    }
}

void Form::nameForAssistiveTools() {
    for (const QLabel* label : findChildren<QLabel*>()) {
        if (label->buddy() != nullptr && label->buddy()->accessibleName().isEmpty()) {
            label->buddy()->setAccessibleName(spokenName(label->text()));
        }
    }
    for (auto* button : findChildren<QAbstractButton*>()) {
        if (button->accessibleName().isEmpty()) {
            button->setAccessibleName(spokenName(button->text()));
        }
    }
}

} // namespace controls
