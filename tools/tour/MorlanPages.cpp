#include "tour/Tour.h"

#include <QTabWidget>

namespace tour {

namespace {

constexpr const char* kForm = "Avvio_Morlan";

void tab(Tour& tour, int number, const char* name) {
    dynamic_cast<QTabWidget&>(tour.control(kForm, "SSTab1")).setCurrentIndex(number);
    Tour::settle();
    tour.take(name, kForm);
}

/// Presses Enter on the grid's current row.
void choose(Tour& tour, const char* grid, const char* name) {
    Tour::press(tour.control(kForm, grid), Qt::Key_Return);
    tour.take(name, kForm);
}

} // namespace

void generalTables(Tour& tour) {
    Tour::press(tour.control("Avvio_Azienda", "cmdClose"), Qt::Key_Space);
    tab(tour, 0, "08-morlan-piano-dei-conti");
    tab(tour, 1, "09-morlan-conti-generali");
    choose(tour, "DataGrid2", "10-morlan-conti-generali-modifica");
    tab(tour, 2, "11-morlan-altri-conti");
    choose(tour, "DataGrid4", "12-morlan-altri-conti-modifica");
    tab(tour, 3, "13-morlan-impostazioni");
    tab(tour, 4, "14-morlan-iva");
    choose(tour, "DataGrid11", "15-morlan-iva-modifica");
    tab(tour, 5, "16-morlan-personale");
    tour.forms().unload(kForm);
    Tour::settle();
}

} // namespace tour
