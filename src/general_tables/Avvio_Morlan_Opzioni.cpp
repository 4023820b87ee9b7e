#include "controls/CheckBox.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/CaricaOpzioni.h"
#include "general_tables/PianoDeiConti.h"
#include "ui_Avvio_Morlan.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <array>

namespace vabo {

namespace {

/// The two sources of exchange rates share a row: ticking one clears the other.
constexpr std::array<std::pair<std::string_view, std::string_view>, 2> kEsclusive = {
    {{"Check10", "Check11"}, {"Check11", "Check10"}}};

} // namespace

void Avvio_Morlan::CollegaCaselle() {
    for (const Opzione& opzione : kOpzioni) {
        on(&Casella(opzione.casella), &controls::CheckBox::Click, [this, &opzione] { ScriviCasella(opzione); });
    }
    on(ui_->Command31, &QPushButton::clicked, [this] { DefinisciPianoDeiConti(ui_->Check7->Value()); });
}

controls::CheckBox& Avvio_Morlan::Casella(std::string_view nome) const {
    return *findChild<controls::CheckBox*>(QString::fromLatin1(nome.data(), static_cast<qsizetype>(nome.size())));
}

// Clearing the other box runs its handler, which writes 0 to the shared row. So a change from one source to the other,
// without clearing the first, stores 0.
void Avvio_Morlan::ScriviCasella(const Opzione& opzione) {
    controls::CheckBox& box = Casella(opzione.casella);
    const int valore = box.Value();
    try {
        SalvaOpzione(opzione, valore);
    } catch (const std::exception&) {
        TogliSpunta(box);
        throw;
    }
    mostrate_[&box] = valore;
    const QScopedValueRollback daCodice(daCodice_, true);
    for (const auto& [casella, altra] : kEsclusive) {
        if (casella == opzione.casella && valore == 1) {
            Casella(altra).setValue(0);
        }
    }
}

// A user's click that couldn't be stored is taken back, so that the box shows what the row holds. What code has set
// comes from the row.
void Avvio_Morlan::TogliSpunta(controls::CheckBox& box) {
    if (daCodice_) {
        mostrate_[&box] = box.Value();
        return;
    }
    const QSignalBlocker senzaClick(box);
    box.setValue(mostrate_[&box]);
}

MostraCasella Avvio_Morlan::Mostra(std::string_view casella) const {
    return [&box = Casella(casella)](int valore) { box.setValue(valore); };
}

void Avvio_Morlan::CaricaTassiEBadge() {
    for (const char* casella : {"Check10", "Check11", "Check12"}) {
        Casella(casella).setValue(0);
    }
    switch (LeggiTassiDiCambio()) {
    case TassiDiCambio::BancaDItalia:
        ui_->Check10->setValue(0);
        ui_->Check11->setValue(1);
        break;
    case TassiDiCambio::InforEuro:
        ui_->Check10->setValue(1);
        ui_->Check11->setValue(0);
        break;
    case TassiDiCambio::Nessuno:
        break;
    }
    if (UsaBadge()) {
        ui_->Check12->setValue(1);
    }
}

} // namespace vabo
