#include "dblife/FormRegistraAziendeNeiDns.h"

#include "controls/Hourglass.h"
#include "dblife/RegistraAziende.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/DataSources.h"
#include "platform/Dialogs.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_FormRegistraAziendeNeiDns.h"

namespace vabo {

namespace {

const QString kNessuna = QStringLiteral("(nessuno)");

/// With an hourglass, since a server that doesn't answer may take long.
bool Prova(const std::string& stringa) {
    const controls::Hourglass clessidra;
    return ConnessioneValida(stringa);
}

/// Without the line breaks that a pasted text may have: a pointer file is one line.
std::string UnaRiga(std::string testo) {
    std::erase_if(testo, [](char c) { return c == '\r' || c == '\n'; });
    return testo;
}

void VaiA(QWidget& campo) {
    campo.setEnabled(true);
    campo.setFocus(Qt::TabFocusReason);
}

} // namespace

FormRegistraAziendeNeiDns::FormRegistraAziendeNeiDns()
    : Form("FormRegistraAziendeNeiDns"), ui_(std::make_unique<Ui::FormRegistraAziendeNeiDns>()) {
    ui_->setupUi(this);
    ui_->cboDrivers->setCompleter(nullptr);
    CollegaCampi();
    on(ui_->cboDSNList, &QComboBox::currentTextChanged, [this] { ScegliFonte(); });
    on(ui_->cboDrivers, &QComboBox::textActivated, [this] { ScegliDriver(); });
    on(ui_->cmdCancel, &QPushButton::clicked, [this] { Registra(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { UnloadMe(); });
}

FormRegistraAziendeNeiDns::~FormRegistraAziendeNeiDns() = default;

void FormRegistraAziendeNeiDns::CollegaCampi() {
    using controls::EndOfEntry;
    chain({{ui_->txtUID, EndOfEntry::EnterOrTab, [this] { VaiA(*ui_->txtPWD); }},
           {ui_->txtPWD, EndOfEntry::EnterOrTab, [this] { LasciaPassword(); }},
           {ui_->cboDrivers, EndOfEntry::EnterOrTab, ui_->txtServer},
           {ui_->txtServer, EndOfEntry::EnterOrTab, [this] { ProvaServer(); }},
           {ui_->txtDatabase, EndOfEntry::EnterOrTab, ui_->Nome_Odbc},
           {ui_->Nome_Odbc, EndOfEntry::EnterOrTab, ui_->Nome_Az},
           {ui_->Nome_Az, EndOfEntry::EnterOrTab, [this] { VaiA(*ui_->cmdCancel); }}});
}

// Failing statements are skipped.
void FormRegistraAziendeNeiDns::Load() {
    PrendiAziendaScelta();
    for (QWidget* campo : std::initializer_list<QWidget*>{ui_->txtUID, ui_->txtPWD, ui_->cboDrivers, ui_->txtServer,
                                                          ui_->txtDatabase, ui_->Nome_Odbc, ui_->Nome_Az}) {
        campo->setEnabled(true);
    }
    GetDSNsAndDrivers();
    MostraCampi(CampiIniziali());
    NomeDsn = ui_->Nome_Odbc->Text();
}

void FormRegistraAziendeNeiDns::Unload() {
    ChiudiForm();
}

void FormRegistraAziendeNeiDns::GetDSNsAndDrivers() {
    ui_->cboDSNList->clear();
    ui_->cboDSNList->addItem(kNessuna);
    salta([this] {
        for (const std::string& nome : platform::dataSources().names()) {
            ui_->cboDSNList->addItem(QString::fromStdString(nome));
        }
    });
    ui_->cboDSNList->setCurrentIndex(0);
}

void FormRegistraAziendeNeiDns::MostraCampi(const CampiAzienda& campi) {
    ui_->Nome_Az->setText(campi.Azienda);
    ui_->txtServer->setText(campi.Server);
    ui_->txtDatabase->setText(campi.Database);
    ui_->txtUID->setText(campi.Utente);
    ui_->txtPWD->setText(campi.Password);
    ui_->cboDrivers->setEditText(QString::fromStdString(campi.Driver));
    ui_->Nome_Odbc->setText(campi.Fonte);
}

CampiAzienda FormRegistraAziendeNeiDns::Campi() const {
    return {.Driver = UnaRiga(ui_->cboDrivers->currentText().toStdString()),
            .Server = UnaRiga(ui_->txtServer->Text()),
            .Database = ui_->txtDatabase->Text(),
            .Utente = UnaRiga(ui_->txtUID->Text()),
            .Password = UnaRiga(ui_->txtPWD->Text()),
            .Fonte = ui_->Nome_Odbc->Text(),
            .Azienda = ui_->Nome_Az->Text()};
}

void FormRegistraAziendeNeiDns::ScegliFonte() {
    const bool nessuna = ui_->cboDSNList->currentText() == kNessuna;
    ui_->txtServer->setEnabled(nessuna);
    ui_->cboDrivers->setEnabled(nessuna);
}

void FormRegistraAziendeNeiDns::ScegliDriver() {
    if (!IsEmptyValue(ui_->cboDrivers->currentText().toStdString())) {
        VaiA(*ui_->txtServer);
    }
}

// Where a data source is chosen, driver and server are locked and the focus skips them.
void FormRegistraAziendeNeiDns::LasciaPassword() {
    QWidget& seguente = ui_->cboDrivers->isEnabled() ? static_cast<QWidget&>(*ui_->cboDrivers) : *ui_->txtDatabase;
    seguente.setFocus(Qt::TabFocusReason);
}

void FormRegistraAziendeNeiDns::ProvaServer() {
    const CampiAzienda campi = Campi();
    if (IsEmptyValue(campi.Database) && IsEmptyValue(campi.Server)) {
        return;
    }
    StringaBase = StringaServer(campi);
    StringaDb = StringaBase;
    if (!Prova(StringaBase)) {
        platform::dialogs().message("Wrong connection");
        return;
    }
    ScriviIndirizzoServer(StringaBase);
    ScriviNomeServer(campi.Server);
    ui_->txtDatabase->setFocus(Qt::TabFocusReason);
}

// From ScriviPrimaRiga on failing statements are skipped.
void FormRegistraAziendeNeiDns::Registra() {
    const CampiAzienda campi = Campi();
    if (IsEmptyValue(campi.Database) || IsEmptyValue(campi.Server)) {
        return;
    }
    NomeDsn = campi.Fonte;
    if (!ApriConnessione(campi)) {
        platform::dialogs().message("La connessione \n" + StringaDb + "\n non è valida");
        return;
    }
    ScriviPrimaRiga(campi, connessione_);
    RegistraFonti(campi);
    ChiudiRecordset();
    UnloadMe();
}

// Tests the server, writes the pointer file and opens the connection that the form keeps. The file stays as written
// where the last step fails.
bool FormRegistraAziendeNeiDns::ApriConnessione(const CampiAzienda& campi) {
    const controls::Hourglass clessidra;
    StringaDb.clear();
    StringaBase = StringaServer(campi);
    if (!ConnessioneValida(StringaBase)) {
        return false;
    }
    ScriviIndirizzoServer(StringaBase);
    StringaDb = PezzoDatabase(campi);
    return riesce([this] { connessione_.Open(StringaBase + StringaDb); });
}

} // namespace vabo
