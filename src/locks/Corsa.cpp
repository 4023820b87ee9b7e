#include "locks/Corsa.h"

#include "controls/ProgressBar.h"

#include <QCoreApplication>

namespace vabo {

void Corsa::Nascondi(controls::ProgressBar& barra) {
    QSizePolicy regola = barra.sizePolicy();
    regola.setRetainSizeWhenHidden(true);
    barra.setSizePolicy(regola);
    barra.hide();
}

Corsa::Corsa(QWidget& form, controls::ProgressBar& barra) : ferma_(form), barra_(barra) {
    barra_.setValue(0);
    barra_.show();
    Mostra();
}

// What was clicked during the last statement has to come while the form still takes nothing.
Corsa::~Corsa() {
    Mostra();
    Nascondi(barra_);
}

void Corsa::Porta(double parte) {
    barra_.setValue(barra_.Max() * parte);
    Mostra();
}

void Corsa::Comincia(long passi) {
    passo_ = passi > 0 ? barra_.Max() / static_cast<double>(passi) : 0;
    barra_.setValue(0);
    Mostra();
}

// A statement is much shorter than a look at the screen.
void Corsa::Avanza() {
    constexpr qint64 kMillisecondi = 50;
    barra_.advance(passo_);
    if (mostrata_.hasExpired(kMillisecondi)) {
        Mostra();
    }
}

void Corsa::Mostra() {
    QCoreApplication::processEvents();
    mostrata_.start();
}

} // namespace vabo
