#include "session/Avvio.h"

#include "dblife/CollegaTabelleLinked.h"
#include "platform/Forms.h"
#include "session/Avviamento.h"
#include "ui_Avvio.h"

namespace vabo {

Avvio::Avvio() : Form("Avvio"), ui_(std::make_unique<Ui::Avvio>()) {
    ui_->setupUi(this);
    setWindowTitle(ui_->lblCompanyProduct->text());
}

Avvio::~Avvio() = default;

void Avvio::Load() {
    ui_->lblVersion->setText(QString::fromStdString(TestoVersione()));
    PrendiAziendaDelTerminale();
    MostraDatabase();
    RiconosciDornavel();
    ApriSedeDiAvvio();
    MostraDatabase();
}

void Avvio::Activate() {
    Refresh();
    PrendiLingua();
    Avanza(30);
    PreparaServer();
    Avanza(60);
    RegistraProgramma();
    Avanza(80);
    PrendiLingua();
    CollegaTabelle();
    const bool login = ServeLogin();
    Avanza(100);
    platform::formHost().show(login ? "About" : "Avvio_Azienda");
    Hide();
}

void Avvio::MostraDatabase() {
    ui_->Label1->setText(QString::fromStdString(TestoDatabase()));
    Refresh();
}

void Avvio::Avanza(double percento) {
    ui_->ProgressBar1->setValue(percento);
    Refresh();
}

} // namespace vabo
