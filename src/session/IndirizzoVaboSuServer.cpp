#include "session/IndirizzoVaboSuServer.h"

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"
#include "kit/Titolo.h"
#include "platform/Workstation.h"
#include "session/ScegliFolder.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_IndirizzoVaboSuServer.h"

namespace vabo {

IndirizzoVaboSuServer::IndirizzoVaboSuServer()
    : Form("IndirizzoVaboSuServer"), ui_(std::make_unique<Ui::IndirizzoVaboSuServer>()) {
    ui_->setupUi(this);
    on(ui_->Command1, &QPushButton::clicked, [this] { Scegli(); });
    on(ui_->Command7, &QPushButton::clicked, [this] { UnloadMe(); });
}

IndirizzoVaboSuServer::~IndirizzoVaboSuServer() = default;

void IndirizzoVaboSuServer::Load() {
    setWindowTitle(QString::fromUtf8(kTitolo));
}

ado::Value IndirizzoVaboSuServer::Leggi_Server() const {
    return ado::Value(platform::workstation().driveC.firstLine("C:\\vabo\\IndirizzoServer.txt"));
}

// Without a rule. The company's connection text stays as it is set here until a company is taken up again.
void IndirizzoVaboSuServer::Scegli() {
    AnnunciaCartellaServer();
    StringaAzienda = ado::toText(Leggi_Server()) + "database = vabodati";
    const auto cartella = ScegliCartellaServer();
    if (!cartella) {
        return;
    }
    if (IsEmptyValue(*cartella)) {
        ui_->Command1->setFocus();
        return;
    }
    ScriviPuntatoriCartella(*cartella);
}

void IndirizzoVaboSuServer::Unload() {
    ChiudiForm();
}

} // namespace vabo
