#include "general_tables/Avvio_Morlan.h"

#include "controls/Guard.h"
#include "controls/Hourglass.h"
#include "controls/Picker.h"
#include "general_tables/RecordsetConsole.h"
#include "general_tables/TabelleConti.h"
#include "general_tables/TrattamentoIva.h"
#include "kit/Regole.h"
#include "kit/StampaReportAccess.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_Avvio_Morlan.h"

#include <QScopedValueRollback>
#include <QTabBar>
#include <QToolButton>

namespace vabo {

Avvio_Morlan::Avvio_Morlan() : Form("Avvio_Morlan"), ui_(std::make_unique<Ui::Avvio_Morlan>()) {
    ui_->setupUi(this);
    CollegaComandi();
    CollegaCaselle();
    CollegaConti();
    CollegaTrattamento();
    ui_->SSTab1->setFocus();
    for (auto* freccia : ui_->SSTab1->tabBar()->findChildren<QToolButton*>()) {
        freccia->setFocusPolicy(Qt::NoFocus); // the keyboard changes tabs on the tab bar
    }
    takeScreen();
}

Avvio_Morlan::~Avvio_Morlan() = default;

void Avvio_Morlan::CollegaComandi() {
    constexpr std::int16_t kAnteprima = 2;
    const std::initializer_list<std::pair<QPushButton*, const char*>> vie = {
        {ui_->Command1, "I_Iva_sezionali"},       {ui_->Command2, "caricasedecentrale"},
        {ui_->Command3, "IndirizzoVaboSuServer"}, {ui_->Command4, "Scegli_progetto_4"},
        {ui_->Command5, "TabelleBustePaga"},      {ui_->Command6, "Scegli_sede_Pd"}};
    for (const auto& [comando, form] : vie) {
        on(comando, &QPushButton::clicked, [this, nome = form] {
            const controls::Hourglass clessidra;
            ApriDa(Name(), nome);
        });
    }
    on(ui_->Command13, &QPushButton::clicked, [this] { UnloadMe(); });
    on(ui_->Command39, &QPushButton::clicked,
       [] { StampaReportAccess(PercorsoFileLocale, "AccessoMorlan", kAnteprima); });
}

// An error while the first two lists load is shown and ends the load; the general switches stay unread then, and
// neither combo is filled where one list can't be read. After the lists failing statements are skipped.
void Avvio_Morlan::Load() {
    const QScopedValueRollback daCodice(daCodice_, true);
    CaricaTassiEBadge();
    if (!controls::guarded([this] {
            contoUtile_->read(StringaAzienda, ElencoContiUtili());
            altroConto_->read(StringaAzienda, ElencoAltriConti());
            contoUtile_->fill();
            altroConto_->fill();
        })) {
        return;
    }
    salta([this] { contoPersonale_->load(StringaAzienda, ElencoContiPersonale()); });
    salta([this] { contoFattura_->load(StringaAzienda, ElencoContiFatture()); });
    salta([this] { CaricaPersonale(); });
    salta([this] { trattamento_->load(StringaAzienda, ElencoTrattamenti()); });
    CaricaTrattamento();
    const Restituzione restituzione(kPostoOpzioni);
    salta([this] { CaricaOpzioni(); });
}

void Avvio_Morlan::MostraNomeDatabase() {
    ui_->Combo8->addItem(QString::fromStdString(NomeDatabase));
}

// No failure rule here: an error ends the procedure, and the boxes not reached yet stay as they are.
void Avvio_Morlan::CaricaOpzioni() {
    MostraNomeDatabase();
    CaricaSedeAmministrativa(Mostra("Check6"));
    CaricaSoloDiLoco(Mostra("Check9"));
    CaricaAltriConti();
    CaricaContiUtili();
    CaricaBudgetOng(Mostra("Check7"));
    for (const char* casella : {"Check2", "Check3", "Check1", "Check4", "Check5", "Check13"}) {
        CaricaOpzione(OpzioneDi(casella), Mostra(casella));
    }
    CaricaContiIva();
}

void Avvio_Morlan::Unload() {
    ChiudiForm();
}

} // namespace vabo
