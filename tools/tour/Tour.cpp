#include "tour/Tour.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <QThread>
#include <QTimer>

#include <stdexcept>

namespace tour {

Tour::Tour(controls::FormRegistry& forms, std::filesystem::path folder, std::string suffix)
    : forms_(forms), folder_(std::move(folder)), suffix_(std::move(suffix)) {}

void Tour::take(const std::string& name, QWidget& window) {
    const std::filesystem::path file = folder_ / (name + suffix_ + ".png");
    if (!window.isVisible()) {
        throw std::runtime_error(name + ": the form isn't on the screen");
    }
    if (!window.grab().save(QString::fromStdString(file.string()))) {
        throw std::runtime_error(name + ": the picture can't be written");
    }
}

void Tour::take(const std::string& name, const char* form) {
    take(name, this->form(form));
}

controls::Form& Tour::form(const char* name) {
    if (controls::Form* loaded = forms_.loaded(name)) {
        return *loaded;
    }
    throw std::runtime_error(std::string("The form ") + name + " isn't loaded");
}

QWidget& Tour::control(const char* form, const char* name) {
    if (auto* found = this->form(form).findChild<QWidget*>(QString::fromUtf8(name))) {
        return *found;
    }
    throw std::runtime_error(std::string("No ") + name + " on " + form);
}

void Tour::show(const char* form) {
    if (!forms_.show(form)) {
        throw std::runtime_error(std::string("There is no form ") + form);
    }
    settle();
}

void Tour::type(QWidget& control, const std::string& text) {
    for (const QChar letter : QString::fromStdString(text)) {
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(&control, &down);
    }
    settle();
}

void Tour::press(QWidget& control, Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&control, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&control, &up);
    settle();
}

void Tour::onceWaiting(QObject& context, const std::function<void()>& act) {
    auto* look = new QTimer(&context);
    const int outer = QThread::currentThread()->loopLevel();
    QObject::connect(look, &QTimer::timeout, &context, [=] {
        if (QThread::currentThread()->loopLevel() > outer) {
            look->stop();
            look->deleteLater();
            act();
        }
    });
    look->start(1);
}

void Tour::settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace tour
