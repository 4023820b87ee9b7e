#include "general_tables/Avvio_Morlan.h"

#include "controls/Guard.h"
#include "controls/Hourglass.h"
#include "general_tables/RecordsetConsole.h"
#include "general_tables/TabelleConti.h"
#include "general_tables/TrattamentoIva.h"
#include "kit/Regole.h"
#include "kit/StampaReportAccess.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_Avvio_Morlan.h"

namespace vabo {

Avvio_Morlan::Avvio_Morlan() : Form("Avvio_Morlan"), ui_(std::make_unique<Ui::Avvio_Morlan>()) {
    ui_->setupUi(this);
    CollegaComandi();
    CollegaCaselle();
    CollegaConti();
    CollegaTrattamento();
    ui_->SSTab1->setFocus();
    takeScreen();
}

Avvio_Morlan::~Avvio_Morlan() = default;

void Avvio_Morlan::CollegaComandi() {
    constexpr std::int16_t kAnteprima = 2;
    on(ui_->Command1, &QPushButton::clicked, [this] { ApriDa("I_Iva_sezionali"); });
    on(ui_->Command2, &QPushButton::clicked, [this] { ApriDa("caricasedecentrale"); });
    on(ui_->Command3, &QPushButton::clicked, [this] { ApriDa("IndirizzoVaboSuServer"); });
    on(ui_->Command4, &QPushButton::clicked, [this] { ApriDa("Scegli_progetto_4"); });
    on(ui_->Command5, &QPushButton::clicked, [this] { ApriDa("TabelleBustePaga"); });
    on(ui_->Command6, &QPushButton::clicked, [this] { ApriDa("Scegli_sede_Pd"); });
    on(ui_->Command13, &QPushButton::clicked, [this] { UnloadMe(); });
    on(ui_->Command39, &QPushButton::clicked,
       [] { StampaReportAccess(PercorsoFileLocale, "AccessoMorlan", kAnteprima); });
}

// A form that isn't built leaves the console where it is: nobody is left before an empty screen.
void Avvio_Morlan::ApriDa(const std::string& nome) {
    const controls::Hourglass clessidra;
    if (ApriForm(nome, true)) {
        Hide();
    }
}

// The first two lists raise; a failure in them is told and ends the load, with the general switches unread. What comes
// after them skips the failing statement.
void Avvio_Morlan::Load() {
    CaricaTassiEBadge();
    if (!controls::guarded([this] {
            CaricaElenco(*ui_->BItems1, ElencoContiUtili(), *ui_->DCBItem1);
            CaricaElenco(*ui_->BItems2, ElencoAltriConti(), *ui_->DCBitem2);
        })) {
        return;
    }
    salta([this] { CaricaElenco(*ui_->BItems4, ElencoContiPersonale(), *ui_->DCBitems4); });
    salta([this] { CaricaElenco(*ui_->BItems3, ElencoContiFatture(), *ui_->DCBItems3); });
    salta([this] { CaricaPersonale(); });
    salta([this] { CaricaElenco(*ui_->BItems5, ElencoTrattamenti(), *ui_->DCBitem5); });
    CaricaTrattamento();
    const Restituzione restituzione(kPostoOpzioni);
    salta([this] { CaricaOpzioni(); });
}

void Avvio_Morlan::CaricaElenco(controls::DataControl& elenco, const std::string& testo, controls::DataCombo& combo) {
    CaricaDati(elenco, testo);
    combo.ReFill();
    combo.Refresh();
}

void Avvio_Morlan::MostraNomeDatabase() {
    ui_->Combo8->clear();
    ui_->Combo8->addItem(QString::fromStdString(NomeDatabase));
}

// Without a rule of its own: an error ends it where it stands, and what it hasn't reached stays as it is.
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
