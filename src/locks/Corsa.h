#pragma once

#include "ado/WhileWaiting.h"
#include "controls/Disabled.h"
#include "controls/Hourglass.h"
#include "locks/Avanzamento.h"

#include <QElapsedTimer>

namespace controls {
class ProgressBar;
}

namespace vabo {

/// A lock on the screen, for as long as it runs: its bar is seen and moves, the window is drawn during a long statement
/// too, and what the user does at the form meanwhile is dropped.
class Corsa : public Avanzamento {
public:
    /// The bar as it is between two runs: unseen, its room kept.
    static void Nascondi(controls::ProgressBar& barra);

    Corsa(QWidget& form, controls::ProgressBar& barra);
    ~Corsa() override;

    void Porta(double parte) override;
    void Comincia(long passi) override;
    void Avanza() override;

private:
    void Mostra();
    void MostraOgniTanto();

    controls::Disabled ferma_;
    controls::Hourglass clessidra_;
    controls::ProgressBar& barra_;
    QElapsedTimer mostrata_;
    ado::WhileWaiting attesa_; // declared last, since it uses the others
};

} // namespace vabo
