#include "session/About.h"

#include "dblife/RicercaFiles.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Titolo.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Workstation.h"
#include "session/ApriDbSede.h"
#include "session/Avviamento.h"
#include "session/RegoleLogin.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_About.h"

namespace vabo {

namespace {

constexpr int kArgomentoGuida = 44;

std::string Normalizza(controls::TextBox& campo) {
    campo.setText(Normalizzato(campo.Text()));
    return campo.Text();
}

void Mostra(controls::TextBox& campo, bool mostra) {
    campo.setEnabled(mostra);
    campo.setVisible(mostra);
}

} // namespace

About::About() : Form("About"), ui_(std::make_unique<Ui::About>()) {
    ui_->setupUi(this);
    using controls::EndOfEntry;
    chain({{ui_->txtUserName, EndOfEntry::Enter, [this] { ConfermaNome(); }},
           {ui_->txtPassword, EndOfEntry::EnterOrTab, [this] { ControllaPassword(); }},
           {ui_->txtPassword1, EndOfEntry::Enter, [this] { ConfermaPrimaPassword(); }}});
    on(ui_->Command8, &QPushButton::clicked, [this] { UnloadMe(); });
}

About::~About() = default;

void About::Load() {
    const platform::Workstation& macchina = platform::workstation();
    ui_->txtPassword->setEnabled(false);
    ui_->lblVersion->setText(QString::fromStdString(ConVersione(macchina.productName)));
    ui_->lblCopyright->setText(QString::fromStdString(macchina.legalNotice));
    setWindowTitle(QString::fromStdString(ConVersione(kTitolo)));
    PreparaLogin();
    Controlla_server();
    if (ServerMancante != kFalso) {
        return;
    }
    ApriDatiLogin();
    MostraDirectorySede();
    ui_->Label1->setText(QString::fromStdString(TestoDatabase()));
    ui_->PswLabels_0->setText(QStringLiteral("Password :"));
    ui_->txtPassword->show();
    Mostra(*ui_->txtPassword1, false);
    ui_->txtPassword->setFocus();
    ChiudiRecordset();
}

// A failing search is skipped.
void About::MostraDirectorySede() {
    salta([this] { CercaDirectorySede(PercorsoDirectorySede); });
    for (QWidget* elenco : {ui_->Dir1, ui_->File1}) {
        elenco->setProperty("Path", QString::fromStdString(PercorsoDirectorySede));
    }
}

void About::Controlla_server() {
    if (ServerRisponde()) {
        return;
    }
    UnloadMe();
    ApriForm("FormRegistraAziendeNeiDns", true);
}

void About::Activate() {
    setHelpContext(kArgomentoGuida, kArgomentoGuida);
    if (LoginSenzaUtenti()) {
        UnloadMe();
        platform::formHost().show("Avvio_Azienda");
        return;
    }
    for (auto* campo : {ui_->txtPassword, ui_->txtPassword1, ui_->txtUserName}) {
        campo->clear();
    }
    ui_->txtUserName->setFocus();
}

void About::ConfermaNome() {
    if (IsEmptyValue(Normalizza(*ui_->txtUserName))) {
        return;
    }
    ui_->txtPassword->setEnabled(true);
    ui_->txtPassword->setFocus();
}

void About::ConfermaPrimaPassword() {
    Normalizza(*ui_->txtPassword1);
    Mostra(*ui_->txtPassword, true);
    Mostra(*ui_->txtPassword1, false);
    ui_->PswLabels_0->setText(QStringLiteral("Password (repeat):"));
    platform::dialogs().message("Confirm your Password");
    ui_->txtPassword->setFocus();
}

// Also runs at the second entry of a first password. Where the two differ, both fields are cleared and the login goes
// on with the name and an empty password.
void About::ControllaPassword() {
    const std::string ripetuta = Normalizza(*ui_->txtPassword);
    const std::string prima = ui_->txtPassword1->Text();
    if (!IsEmptyValue(ripetuta) && !IsEmptyValue(prima)) {
        if (ripetuta == prima) {
            EntraConPrimaPassword(IdUtenteNuovo, NomeUtenteNuovo, ripetuta);
            Entra();
            return;
        }
        platform::dialogs().message("Wrong password, retry!");
        ChiediPassword();
    }
    // Normalised again: the name may have been changed after its Enter, and quotes must not reach the statement.
    const std::string utente = Normalizza(*ui_->txtUserName);
    const std::string password = ui_->txtPassword->Text();
    switch (ControllaLogin(utente, password, IdUtenteNuovo)) {
    case EsitoLogin::Rifiutato:
        ContaFallimento();
        break;
    case EsitoLogin::PrimaPassword:
        NomeUtenteNuovo = utente;
        ChiediPrimaPassword();
        break;
    case EsitoLogin::Disabilitato:
        platform::dialogs().message("User not allowed! ");
        UnloadMe();
        break;
    case EsitoLogin::Riconosciuto:
        EntraUtente(utente, password);
        Entra();
        break;
    }
}

void About::ContaFallimento() {
    if (ContaTentativo()) {
        UnloadMe();
        return;
    }
    ui_->txtUserName->setFocus();
    ui_->txtPassword->setEnabled(false);
}

void About::ChiediPrimaPassword() {
    Mostra(*ui_->txtPassword1, true);
    Mostra(*ui_->txtPassword, false);
    ui_->PswLabels_0->setText(QStringLiteral("Password :"));
    platform::dialogs().message("Please enter your personal Password, max length. 12 char");
    ui_->txtPassword1->setFocus();
}

void About::ChiediPassword() {
    ui_->txtPassword->clear();
    ui_->txtPassword1->clear();
    Mostra(*ui_->txtPassword, true);
    ui_->PswLabels_0->setText(QStringLiteral("Password :"));
    Mostra(*ui_->txtPassword1, false);
    ui_->txtPassword->setFocus();
}

void About::Entra() {
    ApriForm("Avvio_Azienda", true);
    UnloadMe();
}

void About::Unload() {
    ApriDbTemp();
}

} // namespace vabo
