#include "session/Avvio_Azienda.h"

#include "ado/Conversions.h"
#include "dblife/modODBC.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "rights/Permesso.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/Aziende.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_Avvio_Azienda.h"

namespace vabo {

namespace {

constexpr const char* kElencoAziende =
    "select id,NomeAzienda,Stringa_connessione_sql,tlv_access,tlv_sql,wzzip,wzunzip,Nserver,dbname,nRoot,Npassw "
    "from link_programma Order by id";

void RiapriDbLocale() {
    if (!DbLocale) {
        DbLocale = std::make_unique<ado::Connection>();
    }
    salta([] { DbLocale->Close(); });
    salta([] { DbLocale->Open(StringaLocale); });
}

void ConfiguraFonte() {
    salta([] {
        RegistraOdbc(kConfigura, kTipoSqlServer, "Tlv_Server", NomeDatabase, "Dati " + NomeAzienda, NomeServer,
                     UtenteDb, PasswordDb);
    });
}

} // namespace

Avvio_Azienda::Avvio_Azienda() : Form("Avvio_Azienda"), ui_(std::make_unique<Ui::Avvio_Azienda>()) {
    ui_->setupUi(this);
    ui_->DataCombo1->ListField = "NomeAzienda";
    ui_->DataCombo1->BoundColumn = "id";
    ui_->DataCombo1->setRowSource(ui_->datPrimaryRS);
    on(ui_->DataCombo1, &controls::DataCombo::Click, [this](int area) { ScegliAzienda(area); });
    on(ui_->Command1, &QPushButton::clicked, [this] { ApriDa(Name(), "frmDatiAzienda"); });
    on(ui_->Command2, &QPushButton::clicked, [this] { ApriUtenti(); });
    on(ui_->cmdClose, &QPushButton::clicked, [this] {
        ConfiguraFonte();
        ApriDa(Name(), "Avvio_Morlan");
    });
    on(ui_->datPrimaryRS, &controls::DataControl::Error, [](int /*numero*/, const QString& descrizione) {
        platform::dialogs().message("Data error event hit err:" + descrizione.toStdString());
    });
}

Avvio_Azienda::~Avvio_Azienda() = default;

void Avvio_Azienda::Load() {
    double id = IdAziendaScelta;
    ApriAzienda(id);
    MostraAziendaAperta();
    CaricaElenco();
    AzzeraPilaForm();
}

void Avvio_Azienda::CaricaElenco() {
    controls::DataControl& elenco = *ui_->datPrimaryRS;
    elenco.load(DbControllo.ConnectionString(), kElencoAziende);
    const double ultima = UltimaAziendaTerminale();
    if (!IsEmptyValue(ultima)) {
        IdAziendaScelta = ultima;
        elenco.Recordset().setFilter("id = " + ado::plainNumber(ultima));
    } else {
        elenco.Recordset().setFilter("NomeAzienda = '" + NomeAzienda + "'");
    }
    // From here on failing statements are skipped.
    salta([&] { ui_->DataCombo1->setText(ado::toText(elenco.Recordset()["NomeAzienda"])); });
    salta([&] { elenco.Refresh(); });
}

void Avvio_Azienda::ScegliAzienda(int area) {
    if (area != controls::DataCombo::List) {
        return;
    }
    IdAziendaScelta = ado::toDouble(ui_->DataCombo1->BoundText());
    ApriAzienda(IdAziendaScelta);
    LeggiSede();
    RiapriDbLocale();
    StringaAziendaCopia = StringaAzienda;
    ConfiguraFonte();
    MostraAziendaAperta();
}

void Avvio_Azienda::ApriUtenti() {
    if (Permesso(DirittiUtente.Administrator, "Utente non abilitato! Contattare l'amministratore di sistema") &&
        ApriForm("Login", true)) {
        UnloadMe();
    }
}

void Avvio_Azienda::MostraAziendaAperta() {
    ui_->aziendaAperta->setText(QString::fromStdString(NomeAzienda));
}

} // namespace vabo
