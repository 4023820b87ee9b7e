#include "tour/Tour.h"

namespace tour {

void vatSections(Tour& tour) {
    const char* const form = "I_Iva_sezionali";
    tour.show(form);
    tour.take("21-sezionali-iva", form);
    QWidget& grid = tour.control(form, "DataGrid1");
    Tour::press(grid, Qt::Key_Down);
    tour.take("22-sezionali-iva-modifica", form);
    tour.forms().unload(form);
    Tour::settle();
}

} // namespace tour
