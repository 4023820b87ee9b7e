// Every store of the general tables console with each of its requests to the server refused.

#include "MorlanFixture.h"
#include "general_tables/TestiAttesi.h"
#include "support/FormWorld.h"

#include <ostream>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

class Morlan : public support::FormWorld<MorlanForm> {
public:
    Morlan() : FormWorld("Avvio_Morlan") {}

    using MorlanForm::apri, MorlanForm::esegui, MorlanForm::gui, MorlanForm::prendi, MorlanForm::valore;

    void reopen() {
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        CimaForm = 1;
        FormWorld::reopen();
    }
    void clicca() const {
        controllo<controls::CheckBox>(casella_).setFocus();
        gui.press(Qt::Key_Space);
    }
    /// The box and its row stand for the list.
    void guardaCasella(const std::string& casella, const std::string& riga) {
        casella_ = casella;
        selezione_ = riga;
    }
    void guardaGriglia(const std::string& griglia, const std::string& selezione) {
        griglia_ = griglia;
        selezione_ = selezione;
    }
    void apriRiga(int numero, const std::string& griglia, const std::string& riga) {
        apri();
        scheda(numero);
        scegli(griglia, riga);
    }
    void apriScheda(int numero) {
        apri();
        scheda(numero);
    }

    Testi fields() const {
        Testi testi = {spuntate()};
        for (const char* nome : {"DCBItem1", "DCBitem2", "DCBItems3", "DCBitems4", "DCBitem5"}) {
            testi.push_back(combo(nome).Text());
        }
        for (const char* nome : {"Aliquota", "Detrazione", "Sigla"}) {
            testi.push_back(testo(nome));
        }
        return testi;
    }
    Testi shown() const {
        if (!casella_.empty()) {
            return {std::to_string(MorlanForm::casella(casella_))};
        }
        return griglia_.empty() ? Testi{} : rowsOf(griglia_);
    }
    Testi held() const {
        if (!casella_.empty()) {
            return {valore(selezione_) == "0" ? "0" : "1"};
        }
        return griglia_.empty() ? Testi{} : rowsAsSelected(selezione_);
    }

private:
    std::string casella_, griglia_, selezione_;
};

using Operazione = support::Operation<Morlan>;

struct Casella {
    const char* nome;
    const char* tabella;
    const char* riga;
    bool detta; ///< what fails is told; the others skip it
};
void PrintTo(const Casella& casella, std::ostream* out) {
    *out << casella.nome;
}

class RifiutoDellaCasella : public testing::TestWithParam<Casella> {};

TEST_P(RifiutoDellaCasella, IsToldAndTheBoxGoesBackOrSkippedAndItStays) {
    const Casella& una = GetParam();
    const std::string esito =
        una.detta ? support::kRefused : "silent; rows before; list old; fields done";
    const support::Lines esiti(3, esito);
    replay(Operazione{.tables = {una.tabella},
                      .reach =
                          [&](Morlan& form) {
                              form.guardaCasella(una.nome, una.riga);
                              form.apri();
                          },
                      .act = [](Morlan& form) { form.clicca(); },
                      .once = esiti,
                      .fromThere = esiti});
}

INSTANTIATE_TEST_SUITE_P(
    Di, RifiutoDellaCasella,
    testing::Values(
        Casella{"Check1", "datiGenerali", "select Contatore from datiGenerali where id = 8", true},
        Casella{"Check2", "datiGenerali", "select Contatore from datiGenerali where id = 6", true},
        Casella{"Check3", "datiGenerali", "select Contatore from datiGenerali where id = 7", true},
        Casella{"Check4", "datiGenerali", "select Contatore from datiGenerali where id = 9", true},
        Casella{"Check5", "datiGenerali", "select Contatore from datiGenerali where id = 10", false},
        Casella{"Check6", "datiGenerali", "select Contatore from datiGenerali where Descrizione = 'Sede Amministrativa'",
                true},
        Casella{"Check13", "datiGenerali", "select Contatore from datiGenerali where id = 15", true},
        Casella{"Check7", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 5", false},
        Casella{"Check9", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 7", false},
        Casella{"Check10", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 8", true},
        Casella{"Check11", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 8", true},
        Casella{"Check12", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 9", true}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST(MorlanRifiuto, OfTheChartsDefinition) {
    replay(Operazione{.tables = {"TabellaUilityConti"},
                      .reach =
                          [](Morlan& form) {
                              form.esegui("update TabellaUilityConti set Lunghezza = 7 where id < 6");
                              form.apri();
                          },
                      .act = [](Morlan& form) { form.gui.click("Avvio_Morlan", "Command31"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(MorlanRifiuto, OfAnAccountInUse) {
    replay(Operazione{.tables = {"TabellaContiUtili"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaGriglia("DataGrid2", kTestoContiUtili);
                              form.apriRiga(1, "DataGrid2", "4");
                          },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBItem1",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1052"));
                          },
                      .once = {},
                      .fromThere = {}});
}

TEST(MorlanRifiuto, OfAnotherAccount) {
    replay(Operazione{.tables = {"tipoanagrafica"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaGriglia("DataGrid4", kTestiAltriConti.at(0));
                              form.apriRiga(2, "DataGrid4", "2");
                          },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBitem2",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1052"));
                          },
                      .once = {},
                      .fromThere = {}});
}

TEST(MorlanRifiuto, OfAnAccountOfTheInvoices) {
    replay(Operazione{.tables = {"ivaTabellaContiUtili"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaGriglia("DataGrid11", kTestoContiIva);
                              form.esegui("update ivaTabellaContiUtili set idProgetto = null where id = 3");
                              form.apriRiga(4, "DataGrid11", "3");
                          },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBItems3",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1077"));
                          },
                      .once = {},
                      .fromThere = {}});
}

// Its grid shows the old account until the console is opened again, also where nothing is refused.
TEST(MorlanRifiuto, OfAnAccountOfTheStaff) {
    replay(Operazione{.tables = {"BusteTabellaContiUtili"},
                      .reach = [](Morlan& form) { form.apriRiga(5, "DataGridPersonale", "3"); },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBitems4",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1052"));
                          },
                      .once = {},
                      .fromThere = {}});
}

TEST(MorlanRifiuto, OfTheStandardTreatment) {
    replay(Operazione{.tables = {"IvaAliquotaStandard"},
                      .reach = [](Morlan& form) { form.apriScheda(4); },
                      .act = [](Morlan& form) { form.prendi("DCBitem5", "Imponibile 10%"); },
                      .once = {},
                      .fromThere = {}});
}

} // namespace
} // namespace vabo
