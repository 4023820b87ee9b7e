#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/TextBox.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/CaricaValoriControlli.h"
#include "general_tables/TabelleConti.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "state/variabili.h"
#include "ui_Avvio_Morlan.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>

namespace vabo {

namespace {

constexpr const char* kNessunaScelta = "Seleziona";

void FermataDelTab(controls::DataCombo& combo, bool fermata) {
    const Qt::FocusPolicy politica = fermata ? Qt::WheelFocus : Qt::ClickFocus;
    combo.setFocusPolicy(politica);
    combo.lineEdit()->setFocusPolicy(politica);
}

bool SiFermaIlTab(const controls::DataCombo& combo) {
    return (combo.focusPolicy() & Qt::TabFocus) != 0;
}

const TabellaAltriConti& AltriConti(int tabella) {
    return kAltriConti.at(static_cast<std::size_t>(tabella));
}

/// Whether a grid's field holds a name to show, one greater than zero: a number counts as a number, any other text is
/// greater, and a null isn't.
bool ConNome(const ado::Value& valore) {
    if (valore.isNull()) {
        return false;
    }
    return ado::isNumeric(valore) ? ado::toDouble(valore) > 0 : !ado::toText(valore).empty();
}

/// A form that takes no input while it lives.
class Disabilitata {
public:
    explicit Disabilitata(QWidget& form) : form_(form), fuoco_(form.focusWidget()) { form_.setEnabled(false); }
    Disabilitata(const Disabilitata&) = delete;
    Disabilitata& operator=(const Disabilitata&) = delete;
    ~Disabilitata() {
        form_.setEnabled(true);
        if (fuoco_) {
            fuoco_->setFocus();
        }
    }

private:
    QWidget& form_;
    QPointer<QWidget> fuoco_;
};

} // namespace

void Avvio_Morlan::CollegaConti() {
    selettori_ = {
        {ui_->DCBItem1, ui_->BItems1, ui_->DataGrid2, ui_->Frame6, &IdRiga, &IdContoUtile,
         [this](OrdineFatture) { SalvaUtile(); }},
        {ui_->DCBitem2, ui_->BItems2, ui_->DataGrid4, ui_->Frame2, &IdRiga, &IdContoAltri,
         [this](OrdineFatture) { ProvaESalvaAltro(); }},
        {ui_->DCBItems3, ui_->BItems3, ui_->DataGrid11, nullptr, &IdRigaFattura, &IdContoFattura,
         [this](OrdineFatture ordine) { SalvaFattura(ordine); }},
        {ui_->DCBitems4, ui_->BItems4, ui_->DataGridPersonale, nullptr, &IdRiga, &IdContoFattura,
         [this](OrdineFatture) { SalvaPersonale(); }},
    };
    std::vector<controls::KeyRow> tasti;
    for (const Selettore& selettore : selettori_) {
        selettore.combo->ListField = "NomeConto";
        selettore.combo->BoundColumn = "idconto";
        selettore.combo->setRowSource(selettore.elenco);
        selettore.combo->setText(kNessunaScelta);
        // Delete is heard in the text and in the list that opens while one types.
        selettore.combo->installEventFilter(this);
        selettore.combo->completer()->popup()->installEventFilter(this);
        on(selettore.combo, &controls::DataCombo::Click, [&selettore](int area) {
            if (area == controls::DataCombo::List) {
                *selettore.conto = ado::toDouble(selettore.combo->BoundText());
                selettore.salva(OrdineFatture::Elenco);
            }
        });
        tasti.emplace_back(selettore.combo, controls::EndOfEntry::Enter,
                           [&selettore] { selettore.salva(OrdineFatture::Invio); });
    }
    chain(std::move(tasti));
    FermataDelTab(*ui_->DCBItems3, false);
    FermataDelTab(*ui_->DCBitems4, false);
    // Seen only while a row is being changed.
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
        ui_->DCBItem1->restoreChosen(); // its mnemonic doesn't leave the picker
        SalvaUtile();
    });
    on(ui_->Command18, &QPushButton::clicked, [this] { GiraTabella(); });
}

void Avvio_Morlan::keyPressEvent(QKeyEvent* event) {
    const QWidget* fuoco = focusWidget();
    const auto selettore = std::ranges::find_if(selettori_, [fuoco](const Selettore& ciascuno) {
        const bool scelta = ciascuno.cornice != nullptr ? ciascuno.cornice->isVisible() : SiFermaIlTab(*ciascuno.combo);
        const bool dentro = ciascuno.cornice != nullptr && ciascuno.cornice->isAncestorOf(fuoco);
        return scelta && (dentro || fuoco == ciascuno.combo || fuoco == ciascuno.griglia);
    });
    if (event->key() == Qt::Key_Escape && selettore != selettori_.end()) {
        LasciaRiga(*selettore);
    } else {
        Form::keyPressEvent(event);
    }
}

// Nothing is stored, and nothing stays chosen that a later Enter could store.
void Avvio_Morlan::LasciaRiga(const Selettore& selettore) {
    *selettore.riga = 0;
    *selettore.conto = 0;
    selettore.combo->setText(kNessunaScelta);
    selettore.griglia->setFocus();
    if (selettore.cornice != nullptr) {
        selettore.cornice->hide();
    } else {
        FermataDelTab(*selettore.combo, false);
    }
}

bool Avvio_Morlan::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyRelease) {
        const auto& tasto = static_cast<const QKeyEvent&>(*event);
        const bool solo = (tasto.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        const auto selettore = std::ranges::find_if(selettori_, [watched](const Selettore& ciascuno) {
            return ciascuno.combo == watched || ciascuno.combo->completer()->popup() == watched;
        });
        if (tasto.key() == Qt::Key_Delete && solo && selettore != selettori_.end()) {
            *selettore->conto = 0;
            selettore->combo->setText("");
        }
    }
    return Form::eventFilter(watched, event);
}

void Avvio_Morlan::CaricaDati(controls::DataControl& dati, const std::string& testo) {
    dati.ConnectionString = StringaAzienda;
    dati.RecordSource = testo;
    dati.Refresh();
}

// Tab 1

void Avvio_Morlan::CaricaContiUtili() {
    CaricaDati(*ui_->tabella_conti_utili, TestoContiUtili());
    ImpostaGrigliaContiUtili();
}

void Avvio_Morlan::ScegliContoUtile() {
    const ado::Value id = ui_->DataGrid2->Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    // From here on failing statements are skipped. A row without an account leaves the one chosen before.
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
    // One row below the stored one: the position counts from 1, the move from the first row.
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
    CaricaDati(*ui_->tipo_anagrafica, TestoAltriConti(TabellaCorrente));
    ImpostaGrigliaAltriConti();
}

// The first turn shows the number that it leaves, the others the one that they bring.
void Avvio_Morlan::GiraTabella() {
    const int lasciata = TabellaCorrente;
    TabellaCorrente = (lasciata + 1) % static_cast<int>(kAltriConti.size());
    ui_->Controllo->setText(std::to_string(lasciata == 0 ? lasciata : TabellaCorrente));
    MostraTabella(AltriConti(TabellaCorrente).etichettaGirata);
    CaricaDati(*ui_->tipo_anagrafica, TestoAltriConti(TabellaCorrente));
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

// Without a rule.
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
    CaricaDati(dati, finita ? TestoAltriContiRipiego(TabellaCorrente) : TestoAltriConti(TabellaCorrente));
    ImpostaGrigliaAltriConti();
    ui_->DataGrid4->setFocus();
    ui_->Frame2->hide();
}

// Tab 4

void Avvio_Morlan::CaricaContiIva() {
    CaricaDati(*ui_->ContiIva, TestoContiIva());
    ImpostaGrigliaContiIva();
}

void Avvio_Morlan::ScegliContoFattura() {
    controls::DataGrid& griglia = *ui_->DataGrid11;
    const ado::Value id = griglia.Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    IdRigaFattura = ado::toDouble(id);
    FermataDelTab(*ui_->DCBItems3, true);
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

// Without a rule until the last step; the form comes back from an error too.
void Avvio_Morlan::SalvaFattura(OrdineFatture ordine) {
    {
        const Disabilitata disabilitata(*this);
        if (!IsEmptyValue(IdRigaFattura)) {
            SalvaContoFattura(IdRigaFattura, IdContoFattura, ordine);
        }
        IdContoFattura = 0;
        IdRigaFattura = 0;
        ui_->ContiIva->Refresh();
        ImpostaGrigliaContiIva();
        ui_->DCBItems3->setText(kNessunaScelta);
        FermataDelTab(*ui_->DCBItems3, false);
    }
    ui_->DataGrid11->setFocus();
}

// Tab 5

void Avvio_Morlan::CaricaPersonale() {
    CaricaDati(*ui_->elencoP, TestoContiPersonale());
    ImpostaGrigliaPersonale();
}

void Avvio_Morlan::ScegliContoPersonale() {
    if (!DirittiUtente.A_Personale) {
        platform::dialogs().message("Utente non abilitato!\nContattare l'amministratore di sistema");
        return;
    }
    controls::DataGrid& griglia = *ui_->DataGridPersonale;
    const ado::Value id = griglia.Columns(0).Value();
    if (IsEmptyValue(id)) {
        return;
    }
    PosizioneGriglia = ui_->elencoP->Recordset().AbsolutePosition();
    ui_->DCBitems4->setText(kNessunaScelta);
    FermataDelTab(*ui_->DCBitems4, true);
    IdRiga = ado::toDouble(id);
    MostraContoFattura(griglia, *ui_->DCBitems4);
    ui_->DCBitems4->setFocus();
}

// Failing statements are skipped. The grid goes on showing the old account until the console opens again.
void Avvio_Morlan::SalvaPersonale() {
    if (IsEmptyValue(IdRiga)) {
        return;
    }
    SalvaContoPersonale(IdRiga, IdContoFattura);
    ui_->DCBitems4->setText(kNessunaScelta);
    FermataDelTab(*ui_->DCBitems4, false);
    ui_->DataGridPersonale->setFocus();
}

} // namespace vabo
