#include "app/monkey/Life.h"

#include "app/Forms.h"
#include "app/monkey/Application.h"
#include "app/monkey/Checks.h"
#include "app/monkey/Story.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "support/AzzeraVariabili.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <string_view>

namespace monkey {

namespace {

using support::Gui;

constexpr const char* kConsole = "Avvio_Azienda";
constexpr const char* kLogin = "About";
/// They come and go by themselves when the program starts.
constexpr std::array<std::string_view, 2> kOfTheStart = {"Avvio", "FormRefreshLinks"};

bool isOfTheStart(const std::string& form) {
    return std::ranges::count(kOfTheStart, form) > 0;
}

/// The name by which a form is asked for; one isn't the form's own.
std::string askedAs(const std::string& form) {
    return form == "frmComuni" ? "frmcomuni" : form;
}

/// Whether that ended the process.
template<typename Work>
bool endedBy(Work&& work) {
    bool ended = false;
    try {
        work();
    } catch (const platform::ProcessEnded&) {
        ended = true;
    }
    return Application::takeEnd() || ended;
}

} // namespace

Life::Life(Dice& dice, Hands& hands, Boxes& boxes, Watchdog& watchdog)
    : dice_(dice), hands_(hands), boxes_(boxes), watchdog_(watchdog) {
    // Queued: a timer doesn't fire again before what it does has returned, which may wait for a menu.
    QObject::connect(
        &impatience_, &QTimer::timeout, &impatience_, [this] { hurry(); }, Qt::QueuedConnection);
    impatience_.start(0);
    hands_.forms = [this] { return visibleForms(); };
    start();
}

Life::~Life() {
    impatience_.stop();
    gui_.reset();
    Gui::handleEvents();
}

/// As a new process does.
void Life::start() {
    gui_.reset();
    Gui::handleEvents();
    vabo::AzzeraVariabili();
    gui_.emplace();
    app::registerForms(gui_->forms());
    names_ = gui_->forms().names();
    story::tell(QStringLiteral("the program starts"));
    const QScopedValueRollback works(working_, true);
    if (endedBy([this] { gui_->forms().show("Avvio"); })) {
        ++ends_;
        over_ = true; // it would end again at the next start
        story::tell(QStringLiteral("the program ended at its start: ") + QString::fromStdString(boxes_.last()));
    }
    Gui::handleEvents();
    watchdog_.seeEnd();
}

void Life::logIn() {
    if (!gui_->isVisible(kLogin) || dice_.oneIn(6)) {
        return;
    }
    for (const char* text : {"amministratore", "primavera"}) {
        hands_.type(QString::fromLatin1(text));
        hands_.key(Qt::Key_Return, Qt::NoModifier);
    }
}

void Life::visitAll() {
    std::vector<std::string> order = names_;
    std::erase(order, kOfTheStart.back()); // both come with the first
    for (std::size_t left = order.size(); left > 1; --left) {
        std::swap(order[left - 1], order[static_cast<std::size_t>(dice_.below(static_cast<int>(left)))]);
    }
    for (const std::string& form : order) {
        if (!over_ && !testing::Test::HasFailure()) {
            visit(form);
        }
    }
}

/// The console alone, as if everything else had been closed; it needn't be the company's that was open before.
void Life::goHome() {
    constexpr int kTries = 20;
    const auto anotherIsLoaded = [this] {
        return std::ranges::any_of(
            names_, [this](const std::string& name) { return name != kConsole && gui_->forms().isLoaded(name); });
    };
    for (int tries = kTries; tries > 0 && anotherIsLoaded(); --tries) {
        for (const std::string& name : names_) {
            if (name != kConsole) {
                gui_->forms().unload(name);
            }
        }
        Gui::handleEvents();
    }
    if (anotherIsLoaded()) {
        fail("forms can't be closed, visible: " + visibleNames());
    }
    vabo::NomeTerminale = support::kTerminalName;
    gui_->forms().show(kConsole);
    vabo::AzzeraPilaForm();
    Gui::handleEvents();
}

void Life::visit(const std::string& form) {
    story::tell(QStringLiteral("a visit to ") + QString::fromStdString(form));
    watchdog_.see();
    if (isOfTheStart(form)) {
        start();
        logIn();
    } else if (endedBy([this] { goHome(); }) || endedBy([&] { open(form); })) {
        ++ends_;
        story::tell(QStringLiteral("the program ended"));
        start();
    }
    Gui::handleEvents();
    watchdog_.seeEnd();
    if (isOfTheStart(form) && visibleNames().empty() && boxes_.last() == "User not allowed! ") {
        return; // an earlier visit shut the administrator out, and the login is closed
    }
    for (int steps = dice_.between(60, 300); steps > 0 && !over_ && step(); --steps) {
    }
}

void Life::rights() {
    const auto flag = [this] { return dice_.oneIn(8) ? vabo::kFalso : vabo::kVero; };
    vabo::DirittiUtente = {flag(), flag(), flag(), flag(), flag(), flag(),
                           flag(), flag(), flag(), flag(), flag(), flag()};
}

void Life::open(const std::string& form) {
    rights();
    if (form == kLogin) {
        gui_->forms().unload(kConsole);
        gui_->forms().show(kLogin);
    } else if (form != kConsole) {
        vabo::ApriDa(kConsole, askedAs(form));
    }
}

/// False where the visit is over.
bool Life::step() {
    const std::string before = visibleNames();
    watchdog_.see();
    {
        const QScopedValueRollback works(working_, true);
        hands_.act();
        Gui::handleEvents();
    }
    watchdog_.seeEnd();
    if (Application::takeEnd()) {
        ++ends_;
        story::tell(QStringLiteral("the program ended with the box: ") + QString::fromStdString(boxes_.last()));
        start();
        return false;
    }
    check(before);
    if (testing::Test::HasFailure()) {
        return false;
    }
    if (visibleNames().empty()) {
        start();
        return false;
    }
    return true;
}

void Life::check(const std::string& before) {
    if (visibleNames().empty() && !mayLeaveNothing(before)) {
        fail("no window is left; before: " + before);
    }
    if (const std::string fault = stackFault(names_); !fault.empty()) {
        fail(fault);
    }
    if (QApplication::activeModalWidget() != nullptr) {
        fail("a box is open and nobody waits for it");
    }
}

/// Only where the user closed the console or the login, and no other form was there.
bool Life::mayLeaveNothing(const std::string& before) const {
    return (before == kConsole || before == kLogin) && !gui_->forms().isLoaded(before);
}

QWidgetList Life::visibleForms() const {
    QWidgetList visible;
    for (const std::string& name : names_) {
        controls::Form* form = gui_ ? gui_->forms().loaded(name) : nullptr;
        if (form != nullptr && form->isVisible()) {
            visible.append(form);
        }
    }
    return visible;
}

std::string Life::visibleNames() const {
    std::string all;
    for (const QWidget* form : visibleForms()) {
        all += (all.empty() ? "" : " ") + form->objectName().toStdString();
    }
    return all;
}

/// What a user does while the program works: at its start, or at a form that is disabled for a long run.
void Life::hurry() {
    constexpr int kDeepest = 4;
    if (!working_ || depth_ > kDeepest) {
        return;
    }
    const QScopedValueRollback deeper(depth_, depth_ + 1);
    if (QApplication::activePopupWidget() != nullptr) {
        usePopup();
        return;
    }
    if (depth_ > 1 || QApplication::activeModalWidget() != nullptr || !dice_.oneIn(8)) {
        return;
    }
    QWidgetList visible = visibleForms();
    visible.removeIf(
        [](const QWidget* form) { return form->isEnabled() && !isOfTheStart(form->objectName().toStdString()); });
    if (visible.isEmpty()) {
        return;
    }
    if (QWidget* form = dice_.oneOf(visible); form->isEnabled()) {
        hands_.manage(*form);
    } else {
        hands_.act();
    }
}

/// A menu may wait for the user in the middle of an event.
void Life::usePopup() {
    constexpr int kDeepest = 3;
    if (depth_ > kDeepest || dice_.oneIn(8)) {
        QApplication::activePopupWidget()->close();
    } else if (dice_.oneIn(4)) {
        hands_.act();
    }
}

void Life::fail(const std::string& what) const {
    ADD_FAILURE() << what << "\nthe stack: " << testing::PrintToString(vabo::PilaForm) << '\n' << story::text();
}

} // namespace monkey
