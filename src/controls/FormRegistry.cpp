#include "controls/FormRegistry.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace controls {

namespace {

void centre(Form& form) {
    const QRect place = form.screen()->availableGeometry();
    form.adjustSize(); // which stops short of a small screen's edges
    form.resize(form.size().expandedTo(form.sizeHint()).boundedTo(place.size()));
    form.move(place.center() - form.rect().center());
}

} // namespace

void FormRegistry::Gone::operator()(Form* form) const {
    // It may be unloaded from one of its own events: it goes when they are over, and nobody finds it until then.
    form->setObjectName(QString());
    form->hide();
    form->deleteLater();
}

FormRegistry::FormRegistry() {
    // Queued: while windows come and go, only the last one counts.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &FormRegistry::followWindows, Qt::QueuedConnection);
}

FormRegistry::~FormRegistry() {
    for (auto& [name, form] : forms_)
        delete form.release();
}

void FormRegistry::add(std::string name, Factory factory) {
    factories_.insert_or_assign(std::move(name), std::move(factory));
}

bool FormRegistry::show(std::string_view name) {
    if (factories_.find(name) == factories_.end())
        return false;
    Form* form = load(name);
    if (form == nullptr)
        return true; // its own Load has unloaded it
    if (form->isMinimized())
        form->showNormal();
    form->setVisible(true);
    form->activateWindow();
    activate(*form);
    return true;
}

bool FormRegistry::makeVisible(std::string_view name) {
    return show(name);
}

Form* FormRegistry::load(std::string_view name) {
    if (Form* form = loaded(name))
        return form;
    Holder& holder = forms_[std::string(name)];
    holder = Holder(factories_.find(name)->second().release());
    const QPointer<Form> form = holder.get();
    form->runLoad();
    if (loaded(name) != form || form.isNull())
        return nullptr;
    centre(*form);
    return form;
}

void FormRegistry::activate(Form& form) {
    if (active_ == &form)
        return;
    active_ = &form;
    form.runActivate();
}

void FormRegistry::followWindows() {
    auto* form = qobject_cast<Form*>(QApplication::activeWindow());
    if (form != nullptr && form->isVisible() && loaded(form->Name()) == form)
        activate(*form);
}

void FormRegistry::hide(std::string_view name) {
    Form* form = loaded(name);
    if (form == nullptr)
        return;
    if (active_ == form)
        active_ = nullptr;
    form->hide();
}

void FormRegistry::unload(std::string_view name) {
    Form* form = loaded(name);
    if (form == nullptr || form->isUnloading())
        return;
    form->runUnload();
    if (active_ == form)
        active_ = nullptr;
    forms_.erase(forms_.find(name));
}

bool FormRegistry::isLoaded(std::string_view name) const {
    return loaded(name) != nullptr;
}

Form* FormRegistry::loaded(std::string_view name) const {
    const auto found = forms_.find(name);
    return found == forms_.end() ? nullptr : found->second.get();
}

} // namespace controls
