#include "tour/Tour.h"

namespace tour {

// Opened from the company console, which unloads.
void users(Tour& tour) {
    const char* const form = "Login";
    Tour::press(tour.control("Avvio_Azienda", "Command2"), Qt::Key_Space);
    tour.take("36-utenti", form);
    QWidget& grid = tour.control(form, "DataGrid1");
    Tour::press(grid, Qt::Key_Space);
    tour.take("37-utenti-scelto", form);
    Tour::press(tour.control(form, "txtNomeUtente"), Qt::Key_Return);
    Tour::press(tour.control(form, "Command1"), Qt::Key_Space);
    tour.take("38-utenti-tutti-i-diritti", form);
    tour.forms().unload(form);
    Tour::settle();
}

} // namespace tour
