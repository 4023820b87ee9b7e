#include "controls/DataCombo.h"
#include "tour/Tour.h"

#include <QAbstractItemView>

namespace tour {

namespace {

/// With an empty row, with one picked, and with the list of the combo that Enter reaches from the first field.
struct Page {
    const char* form;
    const char *empty, *picked, *list;
    std::initializer_list<const char*> fields; ///< ahead of the combo
};

void rows(Tour& tour, const Page& page) {
    tour.show(page.form);
    tour.take(page.empty, page.form);
    Tour::press(tour.control(page.form, "DataGrid1"), Qt::Key_Down);
    tour.take(page.picked, page.form);
    for (const char* field : page.fields) {
        Tour::press(tour.control(page.form, field), Qt::Key_Return);
    }
    auto& combo = dynamic_cast<controls::DataCombo&>(tour.control(page.form, "DataCombo1"));
    Tour::press(combo, Qt::Key_Down);
    tour.take(page.list, *combo.view()->window());
    combo.hidePopup();
    tour.forms().unload(page.form);
    Tour::settle();
}

} // namespace

void geography(Tour& tour) {
    rows(tour, {"stati", "23-stati", "24-stati-modifica", "25-stati-aree", {"DescStato"}});
    rows(tour,
         {"frmComuni", "40-comuni", "41-comuni-modifica", "42-comuni-stati", {"DES_COMUNE", "DES_PROVIN", "COD_CAP"}});
}

} // namespace tour
