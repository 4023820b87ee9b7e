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
        scheda(casella_ == "Check7" ? 0 : 3);
        controllo<controls::CheckBox>(casella_).setFocus();
        gui.press(Qt::Key_Space);
    }
    /// The box and its row stand for the list.
    void guardaCasella(const std::string& casella, const std::string& riga, const std::string& spuntata) {
        casella_ = casella;
        selezione_ = riga;
        spuntata_ = spuntata;
    }
    /// What a run that ends half-way has written.
    void guardaMeta(const std::string& selezione) { meta_ = selezione; }
    std::string half() const {
        std::string testo;
        for (const Riga& riga : meta_.empty() ? std::vector<Riga>{} : posto.rows(support::kCompany, meta_)) {
            for (const std::string& valore : riga) {
                testo += (testo.empty() ? "" : " ") + valore;
            }
        }
        return testo;
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
            return {valore(selezione_) == spuntata_ ? "1" : "0"};
        }
        return griglia_.empty() ? Testi{} : rowsAsSelected(selezione_);
    }

private:
    std::string casella_, griglia_, selezione_, spuntata_, meta_;
};

using Operazione = support::Operation<Morlan>;

struct Casella {
    const char* nome;
    const char* tabella;
    const char* riga;
    const char* spuntata;
    bool detta; ///< what fails is told; the others skip it
};
void PrintTo(const Casella& casella, std::ostream* out) {
    *out << casella.nome;
}

class RifiutoDellaCasella : public testing::TestWithParam<Casella> {};

TEST_P(RifiutoDellaCasella, IsToldAndTheBoxGoesBackOrSkippedAndItStays) {
    const Casella& una = GetParam();
    const std::string esito = una.detta ? support::kRefused : "silent; rows before; list old; fields done";
    // The selection, the row's hold and the row; a table without an identity is asked for its key.
    const support::Lines esiti(una.tabella == std::string("datiGenerali") ? 3 : 4, esito);
    replay(Operazione{.tables = {una.tabella},
                      .reach =
                          [&](Morlan& form) {
                              form.guardaCasella(una.nome, una.riga, una.spuntata);
                              form.esegui("update TabellaUilityConti set Lunghezza = 0 where id = 8");
                              form.apri();
                          },
                      .act = [](Morlan& form) { form.clicca(); },
                      .once = esiti,
                      .fromThere = esiti});
}

INSTANTIATE_TEST_SUITE_P(
    Di, RifiutoDellaCasella,
    testing::Values(
        Casella{"Check1", "datiGenerali", "select Contatore from datiGenerali where id = 8", "-1", true},
        Casella{"Check2", "datiGenerali", "select Contatore from datiGenerali where id = 6", "-1", true},
        Casella{"Check3", "datiGenerali", "select Contatore from datiGenerali where id = 7", "-1", true},
        Casella{"Check4", "datiGenerali", "select Contatore from datiGenerali where id = 9", "-1", true},
        Casella{"Check5", "datiGenerali", "select Contatore from datiGenerali where id = 10", "-1", false},
        Casella{"Check6", "datiGenerali",
                "select Contatore from datiGenerali where Descrizione = 'Sede Amministrativa'", "-1", true},
        Casella{"Check13", "datiGenerali", "select Contatore from datiGenerali where id = 15", "-1", true},
        Casella{"Check7", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 5", "-1", false},
        Casella{"Check9", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 7", "-1", false},
        Casella{"Check10", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 8", "-1", true},
        Casella{"Check11", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 8", "-2", true},
        Casella{"Check12", "TabellaUilityConti", "select Lunghezza from TabellaUilityConti where id = 9", "1", true}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST(MorlanRifiuto, OfTheChartsDefinition) {
    replay(Operazione{.tables = {"TabellaUilityConti"},
                      .reach =
                          [](Morlan& form) {
                              form.esegui("update TabellaUilityConti set Lunghezza = 7 where id < 6");
                              form.guardaMeta("select Lunghezza from TabellaUilityConti where id < 6 order by id");
                              form.apri();
                          },
                      .act = [](Morlan& form) { form.gui.click("Avvio_Morlan", "Command31"); },
                      .once = support::inTurn({{4, support::kRefused},
                                               {4, "told it; rows 0 7 7 7 7; list right; fields kept"},
                                               {4, "told it; rows 0 3 7 7 7; list right; fields kept"},
                                               {4, "told it; rows 0 3 2 7 7; list right; fields kept"},
                                               {4, "told it; rows 0 3 2 4 7; list right; fields kept"}}),
                      .fromThere = support::inTurn({{4, support::kRefused},
                                                    {4, "told it; rows 0 7 7 7 7; list right; fields kept"},
                                                    {4, "told it; rows 0 3 7 7 7; list right; fields kept"},
                                                    {4, "told it; rows 0 3 2 7 7; list right; fields kept"},
                                                    {4, "told it; rows 0 3 2 4 7; list right; fields kept"}})});
}

TEST(MorlanRifiuto, OfAnAccountInUse) {
    replay(Operazione{.tables = {"TabellaContiUtili"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaGriglia("DataGrid2", kTestoContiUtili);
                              form.guardaMeta("select idconto, idconto1 from TabellaContiUtili where ID = 4");
                              form.apriRiga(1, "DataGrid2", "4");
                          },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBItem1",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1052"));
                          },
                      .once = support::inTurn({{3, "silent; rows before; list right; fields done"},
                                               {2, "silent; rows 1052 39; list right; fields done"},
                                               {1, "silent; rows before; list right; fields done"},
                                               {2, "silent; rows done; list empty; fields done"}}),
                      .fromThere = support::inTurn({{6, "silent; rows before; list empty; fields done"},
                                                    {2, "silent; rows done; list empty; fields done"}})});
}

TEST(MorlanRifiuto, OfAnotherAccount) {
    replay(Operazione{
        .tables = {"tipoanagrafica"},
        .reach =
            [](Morlan& form) {
                form.guardaGriglia("DataGrid4", kTestiAltriConti.at(0));
                form.guardaMeta("select idconto, idconto1 from tipoanagrafica where IdTipoAnagrafica = 2");
                form.apriRiga(2, "DataGrid4", "2");
            },
        .act =
            [](Morlan& form) {
                form.prendi("DCBitem2", form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                    "= 1052"));
            },
        .once = support::inTurn(
            {{6, "told it; rows before; list right; fields changed to Avanzi di esercizi precedenti 201.01.0004"},
             {2, support::kStoredUnread}}),
        .fromThere = support::inTurn(
            {{6, "told it; rows before; list right; fields changed to Avanzi di esercizi precedenti 201.01.0004"},
             {2, support::kStoredUnread}})});
}

TEST(MorlanRifiuto, OfAnAccountOfTheInvoices) {
    replay(Operazione{
        .tables = {"ivaTabellaContiUtili"},
        .reach =
            [](Morlan& form) {
                form.guardaGriglia("DataGrid11", kTestoContiIva);
                form.guardaMeta("select idconto, idconto1, idProgetto from ivaTabellaContiUtili where ID "
                                "= 3");
                form.esegui("update ivaTabellaContiUtili set idProgetto = null where id = 3");
                form.apriRiga(4, "DataGrid11", "3");
            },
        .act =
            [](Morlan& form) {
                form.prendi("DCBItems3", form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                     "= 1077"));
            },
        .once = support::inTurn(
            {{1, "told it; rows before; list right; fields changed to Fatture da ricevere 203.01.0003"},
             {1, "told it; rows 1077 26 NULL; list right; fields changed to Fatture da ricevere 203.01.0003"},
             {3, "told it; rows 1077 26 10000001; list right; fields changed to Fatture da ricevere 203.01.0003"},
             {2, "told it; rows done; list empty; fields changed to Fatture da ricevere 203.01.0003"}}),
        .fromThere = support::inTurn(
            {{1, "told it; rows before; list empty; fields changed to Fatture da ricevere 203.01.0003"},
             {1, "told it; rows 1077 26 NULL; list empty; fields changed to Fatture da ricevere 203.01.0003"},
             {3, "told it; rows 1077 26 10000001; list empty; fields changed to Fatture da ricevere 203.01.0003"},
             {2, "told it; rows done; list empty; fields changed to Fatture da ricevere 203.01.0003"}})});
}

// Its grid shows the old account until the console is opened again, also where nothing is refused.
TEST(MorlanRifiuto, OfAnAccountOfTheStaff) {
    replay(Operazione{.tables = {"bustetabellacontiutili"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaMeta("select idconto, idconto1 from bustetabellacontiutili where Id = 3");
                              form.apriRiga(5, "DataGridPersonale", "3");
                          },
                      .act =
                          [](Morlan& form) {
                              form.prendi("DCBitems4",
                                          form.valore("select NomeConto + ' ' + Contoreport from conti where IdConto "
                                                      "= 1052"));
                          },
                      .once = support::inTurn({{3, "silent; rows before; list right; fields done"},
                                               {2, "silent; rows 1052 26; list right; fields done"},
                                               {1, "silent; rows before; list right; fields done"}}),
                      .fromThere = support::inTurn({{6, "silent; rows before; list right; fields done"}})});
}

TEST(MorlanRifiuto, OfTheStandardTreatment) {
    replay(Operazione{.tables = {"IvaAliquotaStandard"},
                      .reach =
                          [](Morlan& form) {
                              form.guardaMeta("select idTipo, Aliquota, Sigla, Detrazione from IvaAliquotaStandard");
                              form.apriScheda(4);
                          },
                      .act = [](Morlan& form) { form.prendi("DCBitem5", "Imponibile 10%"); },
                      .once = support::inTurn(
                          {{1, "silent; rows done; list right; fields changed to 10,00, 10"},
                           {1, "told Type mismatch; rows before; list right; fields changed to Imponibile 10%"},
                           {1, "told Type mismatch; rows before; list right; fields changed to Imponibile 10%, 10,00"},
                           {1, "silent; rows 3 10,00  100,00; list right; fields changed to Imponibile 10%, 10,00, "},
                           {3, support::kRefused}}),
                      .fromThere = support::inTurn(
                          {{1, "told Type mismatch; rows before; list right; fields changed to "},
                           {1, "told Type mismatch; rows before; list right; fields changed to Imponibile 10%"},
                           {1, "told Type mismatch; rows before; list right; fields changed to Imponibile 10%, 10,00"},
                           {4, support::kRefused}})});
}

} // namespace
} // namespace vabo
