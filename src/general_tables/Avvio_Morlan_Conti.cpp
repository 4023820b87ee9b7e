#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/Disabled.h"
#include "controls/Hourglass.h"
#include "controls/Picker.h"
#include "controls/TextBox.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/CaricaValoriControlli.h"
#include "general_tables/TabelleConti.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "rights/Permesso.h"
#include "state/variabili.h"
#include "ui_Avvio_Morlan.h"

#include <QKeyEvent>

#include <algorithm>

namespace vabo {

namespace {

const TabellaAltriConti& AltriConti(int tabella) {
    return kAltriConti.at(static_cast<std::size_t>(tabella));
}

/// Whether the field "is greater than zero", which stands for "has a name": null isn't, a number is compared, any other
/// text is where it isn't empty.
bool ConNome(const ado::Value& valore) {
    if (valore.isNull()) {
        return false;
    }
    return ado::isNumeric(valore) ? ado::toDouble(valore) > 0 : !ado::toText(valore).empty();
}

} // namespace

void Avvio_Morlan::CollegaConti() {
    const auto selettore = [](controls::DataCombo* combo, controls::DataControl* elenco, double& conto) {
        return new controls::Picker(*combo, *elenco, "NomeConto", "idconto", conto);
    };
    contoUtile_ = selettore(ui_->DCBItem1, ui_->BItems1, IdContoUtile);
    altroConto_ = selettore(ui_->DCBitem2, ui_->BItems2, IdContoAltri);
    contoFattura_ = selettore(ui_->DCBItems3, ui_->BItems3, IdContoFattura);
    contoPersonale_ = selettore(ui_->DCBitems4, ui_->BItems4, IdContoFattura);
    selettori_ = {
        {contoUtile_, ui_->DataGrid2, ui_->Frame6, &IdRiga, [this](OrdineFatture) { SalvaUtile(); }},
        {altroConto_, ui_->DataGrid4, ui_->Frame2, &IdRiga, [this](OrdineFatture) { ProvaESalvaAltro(); }},
        {contoFattura_, ui_->DataGrid11, nullptr, &IdRigaFattura,
         [this](OrdineFatture ordine) { SalvaFattura(ordine); }},
        {contoPersonale_, ui_->DataGridPersonale, nullptr, &IdRiga, [this](OrdineFatture) { SalvaPersonale(); }},
    };
    std::vector<controls::KeyRow> tasti;
    for (const Selettore& ciascuno : selettori_) {
        ciascuno.conto->combo().setText(kNessunaScelta);
        ciascuno.conto->clearWithDelete();
        on(ciascuno.conto, &controls::Picker::Picked, [&ciascuno] { ciascuno.salva(OrdineFatture::Elenco); });
        tasti.emplace_back(&ciascuno.conto->combo(), controls::EndOfEntry::Enter,
                           [&ciascuno] { ciascuno.salva(OrdineFatture::Invio); });
    }
    chain(std::move(tasti));
    ui_->DCBItems3->setTabStop(false);
    ui_->DCBitems4->setTabStop(false);
    // Visible only while a row is changed.
    ui_->Frame6->hide();
    ui_->Frame2->hide();

    ui_->DataGrid2->setDataSource(ui_->tabella_conti_utili);
    ui_->DataGrid4->setDataSource(ui_->tipo_anagrafica);
    ui_->DataGrid11->setDataSource(ui_->ContiIva);
    ui_->DataGridPersonale->setDataSource(ui_->elencoP);
    for (controls::DataGrid* griglia : {ui_->DataGrid2, ui_->DataGrid4, ui_->DataGrid11, ui_->DataGridPersonale}) {
        griglia->fillWidth();
    }
    on(ui_->DataGrid2, &controls::DataGrid::DblClick, [this] { ScegliContoUtile(); });
    on(ui_->DataGrid4, &controls::DataGrid::DblClick, [this] { ScegliAltroConto(); });
    on(ui_->DataGrid11, &controls::DataGrid::DblClick, [this] { ScegliContoFattura(); });
    on(ui_->DataGridPersonale, &controls::DataGrid::DblClick, [this] { ScegliContoPersonale(); });
    on(ui_->Command8, &QPushButton::clicked, [this] {
        ui_->DCBItem1->restoreChosen(); // pressed by its mnemonic, the button doesn't take the focus from the picker
        SalvaUtile();
    });
    on(ui_->Command18, &QPushButton::clicked, [this] { GiraTabella(); });
}

void Avvio_Morlan::keyPressEvent(QKeyEvent* event) {
    const QWidget* fuoco = focusWidget();
    const auto selettore = std::ranges::find_if(selettori_, [fuoco](const Selettore& ciascuno) {
        const controls::DataCombo& combo = ciascuno.conto->combo();
        const bool scelta = ciascuno.cornice != nullptr ? ciascuno.cornice->isVisible() : combo.TabStop();
        const bool sullaScheda = ciascuno.cornice != nullptr && ciascuno.cornice->parentWidget()->isAncestorOf(fuoco);
        return scelta && (sullaScheda || fuoco == &combo || fuoco == ciascuno.griglia);
    });
    if (event->key() == Qt::Key_Escape && selettore != selettori_.end()) {
        LasciaRiga(*selettore);
    } else {
        Form::keyPressEvent(event);
    }
}

// Stores nothing, and clears row and account so that a later Enter can't store them.
void Avvio_Morlan::LasciaRiga(const Selettore& selettore) {
    *selettore.riga = 0;
    selettore.conto->key() = 0;
    selettore.conto->combo().setText(kNessunaScelta);
    selettore.griglia->setFocus();
    if (selettore.cornice != nullptr) {
        selettore.cornice->hide();
    } else {
        selettore.conto->combo().setTabStop(false);
    }
}

// Tab 1

void Avvio_Morlan::CaricaContiUtili() {
    ui_->tabella_conti_utili->load(StringaAzienda, TestoContiUtili());
    ImpostaGrigliaContiUtili();
}

void Avvio_Morlan::ScegliContoUtile() {
    const ado::Value id = ui_->DataGrid2->Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    // From here on failing statements are skipped. For a row without an account the one chosen before stays in
    // IdContoUtile.
    salta([&] { IdRiga = ado::toDouble(id); });
    salta([&] { PosizioneGriglia = ui_->tabella_conti_utili->Recordset().AbsolutePosition(); });
    ui_->Frame6->show();
    salta([&] { ui_->Descrizione->setText(ui_->DataGrid2->Columns(1).Text()); });
    salta([&] { IdContoUtile = ado::toDouble(ui_->tabella_conti_utili->Recordset()["idconto"]); });
    ui_->DCBItem1->setText(LeggiCampo("conti", "nomeconto", "idconto", IdContoUtile));
    ui_->DCBItem1->setFocus();
}

void Avvio_Morlan::SalvaUtile() {
    if (IsEmptyValue(IdRiga)) {
        return;
    }
    // From here on failing statements are skipped.
    if (IdRiga != kRigaSenzaProvaEconomica && !ContoAmmesso(ui_->Descrizione->Text(), IdContoUtile)) {
        ui_->DCBItem1->setFocus();
        return;
    }
    const controls::Hourglass clessidra;
    ui_->Command8->setEnabled(false);
    SalvaContoUtile(IdRiga, IdContoUtile);
    salta([this] { ui_->tabella_conti_utili->Refresh(); });
    salta([this] { ImpostaGrigliaContiUtili(); });
    IdContoUtile = 0;
    ui_->DCBItem1->setText(kNessunaScelta);
    ui_->DataGrid2->setFocus();
    ui_->Frame6->hide();
    ui_->Command8->setEnabled(true);
    // Ends one row below the stored one: the position counts from 1, the move from the first row.
    salta([this] { ui_->tabella_conti_utili->Recordset().MoveFromFirst(PosizioneGriglia); });
}

// Tab 2

void Avvio_Morlan::MostraTabella(const char* etichetta) {
    ui_->Label14->setText(QString::fromUtf8(etichetta));
    ui_->Command18->setText(QLatin1Char('&') + QString::fromUtf8(AltriConti(TabellaCorrente).successiva));
}

void Avvio_Morlan::CaricaAltriConti() {
    MostraTabella(AltriConti(TabellaCorrente).etichetta);
    ui_->Controllo->setText(std::to_string(TabellaCorrente));
    ui_->tipo_anagrafica->load(StringaAzienda, TestoAltriConti(TabellaCorrente));
    ImpostaGrigliaAltriConti();
}

// Controllo shows the new table's number, except on the change from table 0 to 1, which leaves it at 0.
void Avvio_Morlan::GiraTabella() {
    const int lasciata = TabellaCorrente;
    TabellaCorrente = (lasciata + 1) % static_cast<int>(kAltriConti.size());
    ui_->Controllo->setText(std::to_string(lasciata == 0 ? lasciata : TabellaCorrente));
    MostraTabella(AltriConti(TabellaCorrente).etichettaGirata);
    ui_->tipo_anagrafica->load(StringaAzienda, TestoAltriConti(TabellaCorrente));
    ImpostaGrigliaAltriConti();
}

void Avvio_Morlan::ScegliAltroConto() {
    controls::DataGrid& griglia = *ui_->DataGrid4;
    const ado::Value id = griglia.Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    ui_->DCBitem2->setText(kNessunaScelta);
    IdRiga = ado::toDouble(id);
    ui_->Frame2->show();
    ui_->tipoanagrafe->setText(griglia.Columns(1).Text());
    if (const ado::Value nome = griglia.Columns(3).Value(); !nome.isNull()) {
        ui_->DCBitem2->setText(ado::toText(nome));
    }
    if (const ado::Value conto = griglia.Columns(2).Value(); !conto.isNull()) {
        IdContoAltri = ado::toDouble(conto);
    }
    salta([&] { PosizioneGriglia = ui_->tipo_anagrafica->Recordset().AbsolutePosition(); });
    ui_->DCBitem2->setFocus();
}

void Avvio_Morlan::ProvaESalvaAltro() {
    if (!ContoAmmesso(ui_->tipoanagrafe->Text(), IdContoAltri)) {
        ui_->DCBitem2->setFocus();
        return;
    }
    SalvaAltro();
}

// No failure rule here: errors reach the guard of the event.
void Avvio_Morlan::SalvaAltro() {
    if (IsEmptyValue(IdRiga)) {
        return;
    }
    ui_->Controllo->setText(std::to_string(TabellaCorrente));
    SalvaAltroConto(TabellaCorrente, IdRiga, IdContoAltri);
    controls::DataControl& dati = *ui_->tipo_anagrafica;
    MostraTabella(AltriConti(TabellaCorrente).etichetta);
    const bool finita = dati.Recordset().EOF();
    ui_->tipoanagrafe->setText("Doppio click sui dati per correggerli");
    ui_->DCBitem2->setText(kNessunaScelta);
    dati.load(StringaAzienda, finita ? TestoAltriContiRipiego(TabellaCorrente) : TestoAltriConti(TabellaCorrente));
    ImpostaGrigliaAltriConti();
    ui_->DataGrid4->setFocus();
    ui_->Frame2->hide();
}

// Tab 4

void Avvio_Morlan::CaricaContiIva() {
    ui_->ContiIva->load(StringaAzienda, TestoContiIva());
    ImpostaGrigliaContiIva();
}

void Avvio_Morlan::ScegliContoFattura() {
    controls::DataGrid& griglia = *ui_->DataGrid11;
    const ado::Value id = griglia.Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    IdRigaFattura = ado::toDouble(id);
    ui_->DCBItems3->setTabStop(true);
    MostraContoFattura(griglia, *ui_->DCBItems3);
    salta([&] { PosizioneGriglia = ui_->ContiIva->Recordset().AbsolutePosition(); });
    ui_->DCBItems3->setFocus();
}

void Avvio_Morlan::MostraContoFattura(controls::DataGrid& griglia, controls::DataCombo& combo) {
    const ado::Value nome = griglia.Columns(2).Value();
    if (!ConNome(nome)) {
        return;
    }
    combo.setText(ado::toText(nome));
    IdContoFattura = ado::toDouble(griglia.Columns(4).Value());
}

// No failure rule here: errors reach the guard of the event. The form is enabled again after an error too, and the grid
// shows what had been written ahead of it.
void Avvio_Morlan::SalvaFattura(OrdineFatture ordine) {
    {
        const controls::Disabled disabilitata(*this);
        if (!IsEmptyValue(IdRigaFattura)) {
            try {
                SalvaContoFattura(IdRigaFattura, IdContoFattura, ordine);
            } catch (const std::exception&) {
                salta([this] { CaricaContiIva(); });
                throw;
            }
        }
        IdContoFattura = 0;
        IdRigaFattura = 0;
        ui_->ContiIva->Refresh();
        ImpostaGrigliaContiIva();
        ui_->DCBItems3->setText(kNessunaScelta);
        ui_->DCBItems3->setTabStop(false);
    }
    ui_->DataGrid11->setFocus();
}

// Tab 5

void Avvio_Morlan::CaricaPersonale() {
    ui_->elencoP->load(StringaAzienda, TestoContiPersonale());
    ImpostaGrigliaPersonale();
}

void Avvio_Morlan::ScegliContoPersonale() {
    if (!Permesso(DirittiUtente.A_Personale)) {
        return;
    }
    controls::DataGrid& griglia = *ui_->DataGridPersonale;
    const ado::Value id = griglia.Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    PosizioneGriglia = ui_->elencoP->Recordset().AbsolutePosition();
    ui_->DCBitems4->setText(kNessunaScelta);
    ui_->DCBitems4->setTabStop(true);
    IdRiga = ado::toDouble(id);
    MostraContoFattura(griglia, *ui_->DCBitems4);
    ui_->DCBitems4->setFocus();
}

// Failing statements are skipped. The grid isn't refreshed: it shows the old account until the console is opened again.
void Avvio_Morlan::SalvaPersonale() {
    if (IsEmptyValue(IdRiga)) {
        return;
    }
    SalvaContoPersonale(IdRiga, IdContoFattura);
    ui_->DCBitems4->setText(kNessunaScelta);
    ui_->DCBitems4->setTabStop(false);
    ui_->DataGridPersonale->setFocus();
}

} // namespace vabo
