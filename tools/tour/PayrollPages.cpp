#include "controls/DataCombo.h"
#include "tour/Tour.h"

#include <QAbstractItemView>
#include <QTabWidget>

namespace tour {

void payroll(Tour& tour) {
    constexpr const char* kConsole = "Avvio_Morlan";
    constexpr const char* kForm = "TabelleBustePaga";
    constexpr int kPersonnel = 5;
    Tour::press(tour.control("Avvio_Azienda", "cmdClose"), Qt::Key_Space);
    dynamic_cast<QTabWidget&>(tour.control(kConsole, "SSTab1")).setCurrentIndex(kPersonnel);
    Tour::settle();
    Tour::press(tour.control(kConsole, "Command5"), Qt::Key_Space);
    tour.take("33-buste-paga", kForm);
    Tour::press(tour.control(kForm, "DataGrid1"), Qt::Key_Down);
    Tour::press(tour.control(kForm, "DataGrid1"), Qt::Key_Return);
    tour.take("34-buste-paga-tipo", kForm);
    auto& accounts = dynamic_cast<controls::DataCombo&>(tour.control(kForm, "DCBItem_7"));
    Tour::press(accounts, Qt::Key_Down);
    tour.take("35-buste-paga-elenco", *accounts.view()->window());
    accounts.hidePopup();
    Tour::press(tour.control(kForm, "Command4"), Qt::Key_Space);
    tour.forms().unload(kConsole);
    Tour::settle();
}

} // namespace tour
