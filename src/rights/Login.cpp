#include "rights/Login.h"

#include "ado/Conversions.h"
#include "controls/CheckBox.h"
#include "controls/DataGrid.h"
#include "controls/TextBox.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "rights/Permesso.h"
#include "session/RegoleLogin.h"
#include "session/TreatForms.h"
#include "ui_Login.h"

#include <span>

namespace vabo {

namespace {

constexpr int kArgomentoGuida = 90, kArgomentoControlli = 60;

constexpr const char* kNonAmministratore = "Non disponi dei diritti di amministratore, operazione non consentita";

// The values of a box. A box that a command sets is greyed: the row will have the flag, and hasn't got it yet.
constexpr int kVuota = 0, kSpuntata = 1, kGrigia = 2;

// Of all columns only the name is shown.
constexpr auto kColonne = [] {
    std::array<controls::ColumnLayout, 3 + kColonneDiritti.size()> colonne{};
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        colonne[i].place = static_cast<int>(i);
    }
    colonne[1] = {1, "      Utente", 3000};
    return colonne;
}();

} // namespace

Login::Login() : Form("Login"), ui_(std::make_unique<Ui::Login>()) {
    ui_->setupUi(this);
    caselle_ = {ui_->txtAdministrator, ui_->txtA_Inserisci,       ui_->txtA_Cancella,       ui_->txtA_Iva,
                ui_->txtA_Bilancio,    ui_->txtA_Personale,       ui_->txtA_ArchivioStoria, ui_->txtA_PFinanza,
                ui_->txtA_Synchro,     ui_->txtA_EmettiPagamenti, ui_->txtA_Progetta,       ui_->txtDisabilita};
    ui_->DataGrid1->setDataSource(ui_->elenco);
    ui_->DataGrid1->fillWidth();
    PulisciCampi();
    CollegaEventi();
    ui_->txtNomeUtente->setFocus();
}

Login::~Login() = default;

void Login::CollegaEventi() {
    chain({{ui_->txtNomeUtente, controls::EndOfEntry::Enter, [this] { ConfermaNome(); }}});
    on(ui_->DataGrid1, &controls::DataGrid::Click, [this] { MostraUtente(); });
    on(ui_->DataGrid1, &controls::DataGrid::KeyDown,
       [this](int tasto, Qt::KeyboardModifiers modificatori) { TastoNellaGriglia(tasto, modificatori); });
    on(ui_->Command1, &QPushButton::clicked, [this] { TuttiIDiritti(); });
    on(ui_->txtA_Inserisci, &controls::CheckBox::Click, [this] { PermettiInserimento(); });
    on(ui_->CancelButton, &QPushButton::clicked, [this] { DisabilitaUtente(); });
    on(ui_->cmdUpdate, &QPushButton::clicked, [this] { Salva(); });
    on(ui_->cmdClose, &QPushButton::clicked, [this] { UnloadMe(); });
}

void Login::Load() {
    ui_->elenco->ConnectionString = StringaAzienda;
    ui_->elenco->RecordSource = ElencoUtenti();
    Rileggi();
}

void Login::Activate() {
    setHelpContext(kArgomentoGuida, kArgomentoControlli);
    if (!Permesso(DirittiUtente.Administrator, kNonAmministratore)) {
        TornaAlLogin();
    }
}

void Login::Rileggi() {
    ui_->elenco->Refresh();
    PreparaGriglia();
    PulisciCampi();
}

void Login::PreparaGriglia() {
    ui_->DataGrid1->lay(kColonne);
}

void Login::PulisciCampi() {
    IdUtenteCorrente = 0;
    ui_->txtNomeUtente->setText("");
    ui_->txtPassword1->setText("");
    ui_->txtAdministrator->setValue(kVuota);
    ImpostaDiritti(kVuota);
    ui_->txtDisabilita->setValue(kGrigia);
    AbilitaCampi(false);
}

// The boxes and the buttons, which are in these frames alone.
void Login::AbilitaCampi(bool abilita) {
    for (QWidget* cornice : {ui_->Frame1, ui_->Frame2, ui_->diritti}) {
        cornice->setEnabled(abilita);
    }
}

/// The ten rights between Administrator and Disabilita.
void Login::ImpostaDiritti(int valore) {
    for (controls::CheckBox* casella : std::span(caselle_).subspan(1, caselle_.size() - 2)) {
        casella->setValue(valore);
    }
}

// The key stays: behind a pick this renames the user.
void Login::ConfermaNome() {
    ui_->txtNomeUtente->setText(Normalizzato(ui_->txtNomeUtente->Text()));
    AbilitaCampi(true);
    ui_->cmdUpdate->setVisible(true);
}

void Login::MostraUtente() {
    if (!ui_->elenco->hasRecordset()) {
        return;
    }
    const ado::Recordset& rs = ui_->elenco->Recordset();
    if (!rs.EOF() && !rs.BOF()) {
        LeggiUtente();
    }
}

// Failing statements are skipped: where name or password are null the field keeps the former user's.
void Login::LeggiUtente() {
    ado::Recordset& rs = ui_->elenco->Recordset();
    salta([&] { IdUtenteCorrente = ado::toDouble(rs["IdAutonumber"]); });
    salta([&] { ui_->txtNomeUtente->setText(ado::toText(rs["NomeUtente"])); });
    salta([&] { ui_->txtPassword1->setText(ado::toText(rs["PaswUtente"])); });
    for (controls::CheckBox* casella : caselle_) {
        casella->setValue(kVuota);
    }
    for (std::size_t i = 0; i < kColonneDiritti.size(); ++i) {
        if (vera([&] { return !IsEmptyValue(rs[kColonneDiritti[i].nome]); })) {
            caselle_[i]->setValue(kSpuntata);
        }
    }
}

// The button is never disabled, only hidden until the first of these.
void Login::MostraSalva() {
    ui_->cmdUpdate->setVisible(true);
    ui_->cmdUpdate->setFocus();
}

void Login::TuttiIDiritti() {
    ImpostaDiritti(kGrigia);
    ui_->txtDisabilita->setValue(kVuota);
    MostraSalva();
}

// Also where a pick or a command ticks the box.
void Login::PermettiInserimento() {
    if (ui_->txtA_Inserisci->Value() >= kSpuntata) {
        ui_->txtDisabilita->setValue(kVuota);
        MostraSalva();
    }
}

// Looks at the box of the administrator, not at the row: the only one passes where it is ticked.
void Login::DisabilitaUtente() {
    if (MancaAmministratore(IdUtenteCorrente, ui_->txtAdministrator->Value())) {
        return;
    }
    ui_->txtAdministrator->setValue(kVuota);
    ImpostaDiritti(kVuota);
    ui_->txtDisabilita->setValue(kGrigia);
    MostraSalva();
}

CampiUtente Login::Campi() const {
    CampiUtente campi{.nome = ui_->txtNomeUtente->Text(), .caselle = {}};
    for (std::size_t i = 0; i < caselle_.size(); ++i) {
        campi.caselle[i] = caselle_[i]->Value();
    }
    return campi;
}

// Both tests come before the write, without a transaction: two administrators at once may pass them together.
void Login::Salva() {
    const CampiUtente campi = Campi();
    if (IsEmptyValue(campi.nome)) {
        return;
    }
    const int administrator = ui_->txtAdministrator->Value();
    constexpr double kNessuno = 0;
    if (MancaAmministratore(kNessuno, administrator)) {
        return;
    }
    if (MancaAmministratore(IdUtenteCorrente, administrator)) {
        TuttiIDiritti();
        return;
    }
    SalvaUtente(IdUtenteCorrente, campi);
    Rileggi();
}

void Login::TastoNellaGriglia(int tasto, Qt::KeyboardModifiers modificatori) {
    if (IsEmptyValue(IdUtenteCorrente)) {
        return;
    }
    if (!Permesso(DirittiUtente.Administrator, kNonAmministratore)) {
        TornaAlLogin();
    } else if (tasto == Qt::Key_D && modificatori == Qt::ControlModifier) {
        Elimina();
    }
}

// The fields keep the user that is gone; a save of it finds no row.
void Login::Elimina() {
    if (platform::dialogs().question("Vuoi cancellare " + ui_->txtNomeUtente->Text() + "?")) {
        EliminaUtente(IdUtenteCorrente);
        ui_->elenco->Refresh();
        PreparaGriglia();
    }
}

void Login::TornaAlLogin() {
    platform::formHost().makeVisible("About");
    UnloadMe();
}

void Login::Unload() {
    ChiudiForm();
}

} // namespace vabo
