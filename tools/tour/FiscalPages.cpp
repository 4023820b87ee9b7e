#include "controls/DataCombo.h"
#include "tour/Tour.h"

#include <QAbstractItemView>

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

void companyData(Tour& tour) {
    const char* const form = "frmDatiAzienda";
    tour.show(form);
    tour.take("30-dati-azienda", form);
    Tour::press(tour.control(form, "nomesocietà"), Qt::Key_Return);
    Tour::press(tour.control(form, "Indirizzo"), Qt::Key_Return);
    auto& towns = dynamic_cast<controls::DataCombo&>(tour.control(form, "DataCombo1"));
    Tour::press(towns, Qt::Key_Down);
    tour.take("31-dati-azienda-comuni", *towns.view()->window());
    Tour::press(*towns.view(), Qt::Key_End);
    Tour::press(*towns.view(), Qt::Key_Return);
    tour.take("32-dati-azienda-comune", form);
    tour.forms().unload(form);
    Tour::settle();
}

} // namespace tour
