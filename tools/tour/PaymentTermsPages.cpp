#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "session/LinguaClient.h"
#include "session/TreatForms.h"
#include "tour/Tour.h"

#include <QAbstractItemView>

#include <algorithm>
#include <cctype>

namespace tour {

namespace {

constexpr const char* kTerms = "CondizioniPagamento";
constexpr const char* kRules = "CondizioniPagamentoDecorrenza";

void open(const char* form) {
    vabo::ApriForm(form, true);
    Tour::settle();
}

void close(Tour& tour, const char* form) {
    tour.forms().unload(form);
    Tour::settle();
}

/// Picks the last row of the grid, as a user does.
void pickLast(Tour& tour, const char* form) {
    auto& grid = dynamic_cast<controls::DataGrid&>(tour.control(form, "DataGrid1"));
    grid.setFocus();
    grid.selectRow(grid.model()->rowCount() - 1);
    Tour::press(grid, Qt::Key_Space);
}

/// The form in Italian, empty and with a row in its fields.
void walkItalian(Tour& tour, const char* form, const std::string& name) {
    open(form);
    tour.take(name, form);
    pickLast(tour, form);
    tour.take(name + "-modifica", form);
}

void walkLanguage(Tour& tour, const std::string& code) {
    vabo::LeggiLinguaClient(code);
    std::string ending = code;
    std::ranges::transform(ending, ending.begin(), [](unsigned char c) { return std::tolower(c); });
    for (const auto& [form, name] : {std::pair(kTerms, "26-condizioni-"), std::pair(kRules, "28-decorrenze-")}) {
        open(form);
        tour.take(name + ending, form);
        close(tour, form);
    }
}

} // namespace

void paymentTerms(Tour& tour) {
    walkItalian(tour, kTerms, "26-condizioni");
    auto& rules = dynamic_cast<controls::DataCombo&>(tour.control(kTerms, "IDDecorrenza"));
    Tour::press(rules, Qt::Key_Down);
    tour.take("27-condizioni-decorrenze", *rules.view()->window());
    rules.hidePopup();
    close(tour, kTerms);
    walkItalian(tour, kRules, "28-decorrenze");
    close(tour, kRules);
    for (const char* code : {"EN", "ES", "PO", "FR"}) {
        walkLanguage(tour, code);
    }
    vabo::LeggiLinguaClient("IT");
}

} // namespace tour
