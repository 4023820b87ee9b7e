// What the six forms of a table have in common: they ask for no right, and give the default pointer back.

#include "app/Forms.h"
#include "general_tables/AziendaAperta.h"
#include "session/TreatForms.h"
#include "support/FormPage.h"

#include <QGuiApplication>

#include <ostream>

namespace vabo {
namespace {

/// One of the forms, what a user does to store a row of it, and what its table has then.
struct Modello {
    const char* form;
    const char* nome; ///< on the stack
    void (*registra)(support::Gui& gui, const support::FormPage& pagina);
    const char* letto;
};
std::ostream& operator<<(std::ostream& out, const Modello& modello) {
    return out << modello.form;
}

void vaiA(const support::FormPage& pagina, const char* nome) {
    pagina.control(nome).setFocus();
    support::Gui::handleEvents();
}

const Modello kModelli[] = {
    {"I_Iva_sezionali", "I_Iva_sezionali",
     [](support::Gui& gui, const support::FormPage& pagina) {
         vaiA(pagina, "Descrizione");
         for (const char* testo : {"Nuova", "Arte", "4"}) {
             gui.type(testo);
             gui.press(Qt::Key_Return);
         }
     },
     "select descrizione from IvaSezionale where id = 4"},
    {"frmDatiAzienda", "frmDatiAzienda",
     [](support::Gui& gui, const support::FormPage& pagina) {
         vaiA(pagina, "Indirizzo");
         vaiA(pagina, "nomesocietà");
         gui.type("Nuova");
         gui.click("frmDatiAzienda", "cmdCancel");
     },
     "select Nome from DatiAzienda"},
    {"CondizioniPagamento", "CondizioniPagamento",
     [](support::Gui& gui, const support::FormPage& pagina) {
         pagina.choose("DataGrid1", "4");
         vaiA(pagina, "Descrizione");
         gui.type("Nuova");
         gui.press(Qt::Key_Return);
     },
     "select Descrizione from CondizioniPagamento where IDPagamento = 4"},
    {"CondizioniPagamentoDecorrenza", "CondizioniPagamentoDecorrenza",
     [](support::Gui& gui, const support::FormPage& pagina) {
         vaiA(pagina, "Descrizione");
         gui.type("Nuova");
         gui.press(Qt::Key_Return);
     },
     "select Descrizione from CondizioniPagamentoDecorrenza where IDDecorrenza = 9"},
    {"stati", "stati",
     [](support::Gui& gui, const support::FormPage& pagina) {
         pagina.choose("DataGrid1", "1");
         gui.type("Nuova");
         vaiA(pagina, "IsoValuta");
         gui.press(Qt::Key_Return);
     },
     "select DescStato from stati where IdStato = 1"},
    {"frmComuni", "frmcomuni",
     [](support::Gui& gui, const support::FormPage& pagina) {
         pagina.choose("DataGrid1", "5");
         gui.type("Nuova");
         vaiA(pagina, "DataCombo1");
         gui.press(Qt::Key_Return);
     },
     "select DES_COMUNE from Comuni where idautonumber = 5"},
};

class FormDelModello : public AziendaAperta, public testing::WithParamInterface<Modello> {
protected:
    FormDelModello() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }
    void apri() {
        PilaForm = {"Avvio_Azienda", GetParam().nome};
        CimaForm = 1;
        pagina.show();
        support::Gui::handleEvents();
    }

    support::DialogScript script; ///< no box but those that the test expects
    support::Gui gui;
    support::FormPage pagina{gui, GetParam().form};
};

TEST_P(FormDelModello, OpensAndStoresForAUserWithoutAnyRight) {
    DirittiUtente = {};
    apri();
    GetParam().registra(gui, pagina);
    support::Gui::handleEvents();
    EXPECT_EQ(valore(GetParam().letto), "Nuova");
    EXPECT_TRUE(script.shown().empty());
}

TEST_P(FormDelModello, GivesTheDefaultPointerBackWhenItCloses) {
    apri();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    gui.form(GetParam().form).close();
    support::Gui::handleEvents();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor(); // where it failed, for the tests that follow
    }
}

INSTANTIATE_TEST_SUITE_P(Di, FormDelModello, testing::ValuesIn(kModelli),
                         [](const auto& test) { return std::string(test.param.form); });

} // namespace
} // namespace vabo
