#include "general_tables/TabelleBustePaga.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/Picker.h"
#include "general_tables/CaricaValoriControlli.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Riposiziona.h"
#include "kit/Titolo.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_TabelleBustePaga.h"

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

constexpr std::array<controls::ColumnLayout, 3> kColonne = {
    {{0, kNomeDelCampo, 0}, {1, kNomeDelCampo, 2500}, {2, kNomeDelCampo, 6500}}};

} // namespace

TabelleBustePaga::TabelleBustePaga() : Form("TabelleBustePaga"), ui_(std::make_unique<Ui::TabelleBustePaga>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->elenco);
    ui_->DataGrid1->fillWidth();
    CollegaSelettori();
    on(ui_->DataGrid1, &controls::DataGrid::DblClick, [this] { LeggiRiga(); });
    on(ui_->Command9, &QPushButton::clicked, [this] { SalvaContropartite(); });
    on(ui_->Command4, &QPushButton::clicked, [this] { UnloadMe(); });
    takeScreen();
}

TabelleBustePaga::~TabelleBustePaga() = default;

void TabelleBustePaga::CollegaSelettori() {
    const std::array combo = {ui_->DCBItem_0, ui_->DCBItem_1, ui_->DCBItem_2, ui_->DCBItem_3, ui_->DCBItem_4,
                              ui_->DCBItem_5, ui_->DCBItem_6, ui_->DCBItem_7, ui_->DCBItem_8};
    const std::array elenchi = {ui_->Funzione_0, ui_->Funzione_1, ui_->Funzione_2, ui_->Funzione_3, ui_->Funzione_4,
                                ui_->Funzione_5, ui_->Funzione_6, ui_->Funzione_7, ui_->Funzione_8};
    for (std::size_t i = 0; i < selettori_.size(); ++i) {
        selettori_.at(i) = new controls::Picker(*combo.at(i), *elenchi.at(i), "nomeconto", "idconto", conti_.at(i));
        if (i + 1 < combo.size()) {
            on(selettori_.at(i), &controls::Picker::Picked, [successivo = combo.at(i + 1)] { successivo->setFocus(); });
        }
    }
}

// No failure rule here: a list that can't be read ends the load.
void TabelleBustePaga::Load() {
    setWindowTitle(QString::fromStdString(ConVersione(kTitolo)));
    for (std::size_t i = 0; i < selettori_.size(); ++i) {
        selettori_.at(i)->load(StringaAzienda, ElencoContropartite(kContropartite.at(i).mastro));
    }
    AggiornaElenco();
    LeggiRiga();
}

void TabelleBustePaga::AggiornaElenco() {
    ui_->elenco->load(StringaAzienda, ElencoTipiConContropartite());
    ui_->DataGrid1->lay(kColonne);
    for (int i = static_cast<int>(kColonne.size()); i < ui_->DataGrid1->ColumnCount(); ++i) {
        ui_->DataGrid1->Columns(i).setVisible(false);
    }
}

double& TabelleBustePaga::ContoLetto(std::size_t indice) {
    return indice < kLetteDoveScritte ? conti_.at(indice) : mostrati_.at(indice - kLetteDoveScritte);
}

// Failing statements are skipped: where the row has a null, what was read before stays.
void TabelleBustePaga::LeggiRiga() {
    ado::Recordset& rs = ui_->elenco->Recordset();
    if (rs.EOF()) {
        return;
    }
    salta([&] { ui_->Titolo->setText(ado::toText(rs["tipoanagrafe"])); });
    salta([&] { idTipo_ = ado::toDouble(rs["IdTipoAnagrafica"]); });
    for (std::size_t i = 0; i < selettori_.size(); ++i) {
        salta([&] { ContoLetto(i) = ado::toDouble(rs[kContropartite.at(i).letta]); });
    }
    for (std::size_t i = 0; i < selettori_.size(); ++i) {
        selettori_.at(i)->combo().setText(LeggiCampo("conti", "nomeconto", "idconto", ContoLetto(i)));
    }
}

// Without a rule until the row is stored; then failing statements are skipped. The grid ends one row below the one that
// was current: the position counts from 1, the move from the first row.
void TabelleBustePaga::SalvaContropartite() {
    if (IsEmptyValue(idTipo_)) {
        return;
    }
    ScriviContropartite(idTipo_, conti_);
    long posizione = 0;
    salta([&] { posizione = ui_->elenco->Recordset().AbsolutePosition(); });
    salta([this] { ui_->elenco->Refresh(); });
    salta([this] { AggiornaElenco(); });
    Riposiziona(*ui_->elenco, posizione);
}

void TabelleBustePaga::Unload() {
    ChiudiForm();
}

} // namespace vabo
