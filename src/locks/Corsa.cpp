#include "locks/Corsa.h"

#include "controls/ProgressBar.h"
#include "state/variabili.h"

#include <QCoreApplication>

namespace vabo {

void Corsa::Nascondi(controls::ProgressBar& barra) {
    QSizePolicy regola = barra.sizePolicy();
    regola.setRetainSizeWhenHidden(true);
    barra.setSizePolicy(regola);
    barra.hide();
}

Corsa::Corsa(QWidget& form, controls::ProgressBar& barra)
    : ferma_(form), barra_(barra), attesa_([this] { MostraOgniTanto(); }) {
    ValoreProgresso = 0;
    barra_.setValue(ValoreProgresso);
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
    if (passi > 0) {
        PassoProgresso = barra_.Max() / static_cast<double>(passi);
    }
    ValoreProgresso = 0;
    barra_.setValue(ValoreProgresso);
    Mostra();
}

void Corsa::Avanza() {
    ValoreProgresso = barra_.advanced(ValoreProgresso, PassoProgresso);
    barra_.setValue(ValoreProgresso);
    MostraOgniTanto();
}

// Most statements are much shorter than a look at the screen.
void Corsa::MostraOgniTanto() {
    constexpr qint64 kMillisecondi = 50;
    if (mostrata_.hasExpired(kMillisecondi)) {
        Mostra();
    }
}

void Corsa::Mostra() {
    QCoreApplication::processEvents();
    mostrata_.start();
}

} // namespace vabo
