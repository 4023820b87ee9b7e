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
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfTheQuickSaveOfANewSection) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach =
                          [](Sezionali& form) {
                              form.apri();
                              form.scrivi("Mostre", "Arte", "4");
                          },
                      .act = [](Sezionali& form) { form.gui.press(Qt::Key_Tab); },
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfTheAdditionOfANewSection) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach =
                          [](Sezionali& form) {
                              form.apri();
                              form.scrivi("Mostre", "Arte", "4");
                          },
                      .act = [](Sezionali& form) { form.premi("Command5"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfTheAdditionOverAKnownSection) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach = [](Sezionali& form) { apriSu(form, "2"); },
                      .act = [](Sezionali& form) { form.premi("Command5"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfThePeriodOfAllSections) {
    replay(Operazione{.tables = {"IvaSezionale", "contatorepd"},
                      .reach = [](Sezionali& form) { form.apri(); },
                      .act = [](Sezionali& form) { form.scegliLiquidazione(0); },
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfAResetOfTheCounters) {
    for (const char* comando : {"Command1", "Command2"}) {
        SCOPED_TRACE(comando);
        replay(Operazione{.tables = {"IvaSezionale"},
                          .reach = [](Sezionali& form) { apriSu(form, "2"); },
                          .act = [comando](Sezionali& form) { form.premi(comando); },
                          .once = {},
                          .fromThere = {}});
    }
}

TEST(SezionaliRifiuto, OfTheYearCarriedOver) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach = [](Sezionali& form) { apriSu(form, "2"); },
                      .act = [](Sezionali& form) { form.premi("Command4"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(SezionaliRifiuto, OfADeletion) {
    replay(Operazione{.tables = {"IvaSezionale"},
                      .reach = [](Sezionali& form) { apriSu(form, "3"); },
                      .act = [](Sezionali& form) { form.premi("Command3"); },
                      .once = {},
                      .fromThere = {}});
}

} // namespace
} // namespace vabo
