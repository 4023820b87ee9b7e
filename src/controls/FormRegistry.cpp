#include "controls/FormRegistry.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace controls {

namespace {

constexpr double kPartOfTheScreen = 0.9;
constexpr QSize kLeast(1000, 0);      // a narrower screen is filled
constexpr QSize kLargest(1600, 1100); // in wider grids a row is hard to follow

void centre(Form& form) {
    const QRect place = form.screen()->availableGeometry();
    form.adjustSize(); // never larger than two thirds of the screen, hence the resize below
    const QSize wanted = form.takesScreen() ? (place.size() * kPartOfTheScreen).expandedTo(kLeast).boundedTo(kLargest)
                                            : form.size().expandedTo(form.sizeHint());
    form.resize(wanted.boundedTo(place.size()));
    const QPoint centred = place.center() - form.rect().center();
    form.move(std::max(place.left(), centred.x()), std::max(place.top(), centred.y()));
}

} // namespace

void FormRegistry::Gone::operator()(Form* form) const {
    // The form may be unloaded in one of its own events, so it is deleted after them. Without its name it can't be
    // found meanwhile.
    form->setObjectName(QString());
    form->hide();
    form->deleteWhenIdle();
}

FormRegistry::FormRegistry() {
    // Queued, since only the last of several quick changes counts.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &FormRegistry::followWindows, Qt::QueuedConnection);
}

FormRegistry::~FormRegistry() {
    for (auto& [name, form] : forms_) {
        delete form.release();
    }
}

void FormRegistry::add(std::string name, Factory factory) {
    factories_.insert_or_assign(std::move(name), std::move(factory));
}

std::vector<std::string> FormRegistry::names() const {
    std::vector<std::string> all;
    for (const auto& [name, factory] : factories_) {
        all.push_back(name);
    }
    return all;
}

bool FormRegistry::show(std::string_view name) {
    if (factories_.find(name) == factories_.end()) {
        return false;
    }
    Form* form = load(name);
    if (form == nullptr) {
        return true; // its own Load has unloaded it
    }
    if (form->isUnloading()) {
        wantedAgain_.emplace(name);
        return true;
    }
    if (form->isMinimized()) {
        form->showNormal();
    }
    form->setVisible(true);
    form->activateWindow();
    activate(*form);
    return true;
}

bool FormRegistry::makeVisible(std::string_view name) {
    return show(name);
}

Form* FormRegistry::load(std::string_view name) {
    if (Form* form = loaded(name)) {
        return form;
    }
    Holder& holder = forms_[std::string(name)];
    holder = Holder(factories_.find(name)->second().release());
    const QPointer<Form> form = holder.get();
    form->runLoad();
    if (loaded(name) != form || form.isNull()) {
        return nullptr;
    }
    place(*form);
    return form;
}

void FormRegistry::place(Form& form) const {
    const auto left = places_.find(form.Name());
    if (left == places_.end() || !form.restoreGeometry(left->second)) {
        centre(form);
    }
}

void FormRegistry::activate(Form& form) {
    if (active_ == &form) {
        return;
    }
    active_ = &form;
    form.runActivate();
}

void FormRegistry::followWindows() {
    auto* form = qobject_cast<Form*>(QApplication::activeWindow());
    if (form != nullptr && form->isVisible() && loaded(form->Name()) == form) {
        activate(*form);
    }
}

void FormRegistry::hide(std::string_view name) {
    Form* form = loaded(name);
    if (form == nullptr) {
        return;
    }
    if (active_ == form) {
        active_ = nullptr;
    }
    form->hide();
}

void FormRegistry::unload(std::string_view name) {
    Form* form = loaded(name);
    if (form == nullptr || form->isUnloading()) {
        return;
    }
    const std::string own(name);
    form->runUnload();
    if (active_ == form) {
        active_ = nullptr;
    }
    if (form->takesScreen()) {
        places_.insert_or_assign(own, form->saveGeometry());
    }
    forms_.erase(own);
    if (wantedAgain_.erase(own) > 0) {
        show(own);
    }
}

bool FormRegistry::isLoaded(std::string_view name) const {
    return loaded(name) != nullptr;
}

void FormRegistry::mark(std::string_view name, std::string_view word) {
    marks_.insert_or_assign(std::string(name), std::string(word));
}

std::string FormRegistry::markOf(std::string_view name) const {
    const auto found = marks_.find(name);
    return found == marks_.end() ? std::string() : found->second;
}

Form* FormRegistry::loaded(std::string_view name) const {
    const auto found = forms_.find(name);
    return found == forms_.end() ? nullptr : found->second.get();
}

} // namespace controls
