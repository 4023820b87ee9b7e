// Every command of the form of the VAT sections with each of its requests to the server refused.

#include "fiscal/SezionaliForm.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Sezionali : public support::FormWorld<SezionaliForm> {
public:
    Sezionali() : FormWorld("I_Iva_sezionali") {}

    using SezionaliForm::apri, SezionaliForm::esegui, SezionaliForm::gui, SezionaliForm::premi, SezionaliForm::scegli,
        SezionaliForm::scegliLiquidazione, SezionaliForm::scrivi;

    Testi fields() const {
        Testi testi = campi();
        testi.push_back(liquidazione());
        return testi;
    }
    Testi shown() const { return rowsOf("DataGrid1"); }
    Testi held() const {
        return rowsAsSelected("select idautonumber, id, descrizione, AreaAttivita, UltimaDataAcquistir, "
                              "UltimaDatavenditer, Liquidazione from IvaSezionale order by id");
    }
    std::string half() const {
        return "periods " + ovunque("Liquidazione") + ", counter " +
               valore("select liquidazione from contatorepd where id = 1") + ", carries " +
               ovunque("importodefinitivoAnno");
    }
};

using Operazione = support::Operation<Sezionali>;
using support::kRefused, support::kStored, support::kStoredKept, support::kStoredUnread, support::kStoredUnreadKept;

void apriSu(Sezionali& form, const std::string& chiave) {
    form.apri();
    form.scegli(chiave);
}

TEST(SezionaliRifiuto, OfTheQuickSaveOfAKnownSection) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach =
                          [](Sezionali& form) {
                              apriSu(form, "2");
                              form.scrivi("Mostre", "Arte", "2");
                          },
                      .act = [](Sezionali& form) { form.gui.press(Qt::Key_Return); },
                      .once = {kRefused, kRefused, kRefused, kStoredUnread, kStoredUnread},
                      .fromThere = {kRefused, kRefused, kRefused, kStoredUnread, kStoredUnread}});
}

TEST(SezionaliRifiuto, OfTheQuickSaveOfANewSection) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach =
                          [](Sezionali& form) {
                              form.apri();
                              form.scrivi("Mostre", "Arte", "4");
                          },
                      .act = [](Sezionali& form) { form.gui.press(Qt::Key_Tab); },
                      .once = {kRefused, kRefused, kStored, kStoredUnread, kStoredUnread},
                      .fromThere = {kRefused, kRefused, kStoredUnread, kStoredUnread, kStoredUnread}});
}

TEST(SezionaliRifiuto, OfTheAdditionOfANewSection) {
    replay(Operazione{
        .tables = {"IvaSezionale"},
        .reach =
            [](Sezionali& form) {
                form.apri();
                form.scrivi("Mostre", "Arte", "4");
            },
        .act = [](Sezionali& form) { form.premi("Command5"); },
        .once = {"silent; rows periods 3 3 3 NULL, counter 3, carries 250.10 33.00 0.00 0.00; list right; fields kept",
                 kRefused, kRefused, kStoredKept, kStoredUnreadKept, kStoredUnreadKept},
        .fromThere = {kRefused, kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept, kStoredUnreadKept}});
}

TEST(SezionaliRifiuto, OfTheAdditionOverAKnownSection) {
    replay(Operazione{
        .tables = {"IvaSezionale"},
        .reach = [](Sezionali& form) { apriSu(form, "2"); },
        .act = [](Sezionali& form) { form.premi("Command5"); },
        .once = {"silent; rows periods 3 NULL 3, counter 3, carries 250.10 0.00 0.00; list right; fields kept",
                 kRefused, kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept},
        .fromThere = {kRefused, kRefused, kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept}});
}

TEST(SezionaliRifiuto, OfThePeriodOfAllSections) {
    replay(Operazione{
        .tables = {"IvaSezionale", "contatorepd"},
        .reach = [](Sezionali& form) { form.apri(); },
        .act = [](Sezionali& form) { form.scegliLiquidazione(0); },
        .once = {"told it; rows before; list right; fields done",
                 "told it; rows periods 1 1 1, counter 3, carries 250.10 33.00 0.00; list right; fields done",
                 kStoredUnread, kStoredUnread},
        .fromThere = {"told it; rows before; list empty; fields done",
                      "told it; rows periods 1 1 1, counter 3, carries 250.10 33.00 0.00; list empty; fields done",
                      kStoredUnread, kStoredUnread}});
}

TEST(SezionaliRifiuto, OfAResetOfTheCounters) {
    for (const char* comando : {"Command1", "Command2"}) {
        SCOPED_TRACE(comando);
        replay(Operazione{.tables = {"IvaSezionale"},
                          .reach = [](Sezionali& form) { apriSu(form, "2"); },
                          .act = [comando](Sezionali& form) { form.premi(comando); },
                          .once = {kRefused, kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept},
                          .fromThere = {kRefused, kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept}});
    }
}

TEST(SezionaliRifiuto, OfTheYearCarriedOver) {
    replay(Operazione{
        .tables = {"IvaSezionale"},
        .reach = [](Sezionali& form) { apriSu(form, "2"); },
        .act = [](Sezionali& form) { form.premi("Command4"); },
        .once = {kRefused, "silent; rows periods 3 3 3, counter 3, carries 77.80 0.00 0.00; list right; fields kept",
                 "silent; rows periods 3 3 3, counter 3, carries 250.10 0.00 0.00; list right; fields kept",
                 "silent; rows periods 3 3 3, counter 3, carries 77.80 0.00 0.00; list right; fields kept",
                 "silent; rows periods 3 3 3, counter 3, carries 77.80 33.00 0.00; list right; fields kept",
                 kStoredKept, kStoredKept, kStoredUnreadKept, kStoredUnreadKept},
        .fromThere = {kRefused, "told it; rows before; list empty; fields kept",
                      "told it; rows before; list empty; fields kept",
                      "told it; rows periods 3 3 3, counter 3, carries 77.80 33.00 0.00; list empty; fields kept",
                      "told it; rows periods 3 3 3, counter 3, carries 77.80 33.00 0.00; list empty; fields kept",
                      kStoredUnreadKept, kStoredUnreadKept, kStoredUnreadKept, kStoredUnreadKept}});
}

TEST(SezionaliRifiuto, OfADeletion) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach = [](Sezionali& form) { apriSu(form, "3"); },
                      .act = [](Sezionali& form) { form.premi("Command3"); },
                      .once = {kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept},
                      .fromThere = {kRefused, kRefused, kStoredUnreadKept, kStoredUnreadKept}});
}

} // namespace
} // namespace vabo
