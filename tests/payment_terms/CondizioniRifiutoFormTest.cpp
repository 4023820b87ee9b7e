// The stores of terms and rules with each of their requests to the server refused, once and from there on.

#include "CondizioniForm.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

template<typename Form>
class Mondo : public support::FormWorld<Form> {
public:
    Mondo(const char* nome, const char* elenco) : support::FormWorld<Form>(nome), elenco_(elenco) {}

    using Form::apri, Form::campo, Form::invio, Form::scegli, Form::vaiA, Form::componi;

    Riga fields() const {
        Riga testi = this->campi();
        return testi;
    }
    Riga shown() const {
        Riga nomi;
        for (int riga = 0; riga < this->righe(); ++riga) {
            nomi.push_back(this->pagina.cell("DataGrid1", riga, 0) + "|" + this->pagina.cell("DataGrid1", riga, 1));
        }
        return nomi;
    }
    Riga held() const { return this->rowsAsSelected(elenco_); }

private:
    std::string elenco_;
};

class Condizioni : public Mondo<FormCondizioni> {
public:
    Condizioni()
        : Mondo(kCondizioni, "select IDPagamento, Descrizione from CondizioniPagamento order by Descrizione") {}
};

class Decorrenze : public Mondo<FormDecorrenze> {
public:
    Decorrenze()
        : Mondo(kDecorrenze,
                "select IDDecorrenza, Descrizione from CondizioniPagamentoDecorrenza order by Descrizione") {}
};

TEST(CondizioniRifiuto, OfAKnownTerm) {
    replay(support::Operation<Condizioni>{
        .tables = {"CondizioniPagamento"},
        .reach =
            [](Condizioni& form) {
                form.apri();
                form.scegli(3);
                form.campo("Scadenza1").setText("31");
                form.vaiA("Descrizione");
            },
        .act = [](Condizioni& form) { form.invio(); },
        .once = support::inTurn(
            {{3, support::kRefused}, {2, support::kStoredUnread}, {4, "told it; rows done; list right; fields done"}}),
        .fromThere = support::inTurn({{3, support::kRefused},
                                      {2, support::kStoredUnread},
                                      {4, "told it; rows done; list right; fields done"}})});
}

TEST(CondizioniRifiuto, OfANewTerm) {
    replay(support::Operation<Condizioni>{.tables = {"CondizioniPagamento"},
                                          .reach =
                                              [](Condizioni& form) {
                                                  form.apri();
                                                  form.componi("Fine mese", "", {"30"}, "Assegno");
                                              },
                                          .act = [](Condizioni& form) { form.invio(); },
                                          .once = support::inTurn({{2, support::kRefused},
                                                                   {1, support::kStored},
                                                                   {2, support::kStoredUnread},
                                                                   {4, "told it; rows done; list right; fields done"}}),
                                          .fromThere =
                                              support::inTurn({{2, support::kRefused},
                                                               {3, support::kStoredUnread},
                                                               {4, "told it; rows done; list right; fields done"}})});
}

TEST(DecorrenzeRifiuto, OfAKnownRule) {
    replay(support::Operation<Decorrenze>{
        .tables = {"CondizioniPagamentoDecorrenza"},
        .reach =
            [](Decorrenze& form) {
                form.apri();
                form.scegli(5);
                form.campo("GiornoScadenza").setText("12");
                form.vaiA("Descrizione");
            },
        .act = [](Decorrenze& form) { form.invio(); },
        .once = support::inTurn({{3, support::kRefused}, {2, support::kStoredUnread}}),
        .fromThere = support::inTurn({{3, support::kRefused}, {2, support::kStoredUnread}})});
}

TEST(DecorrenzeRifiuto, OfANewRule) {
    replay(support::Operation<Decorrenze>{
        .tables = {"CondizioniPagamentoDecorrenza"},
        .reach =
            [](Decorrenze& form) {
                form.apri();
                form.componi({"12", "", "", "", "8", "", ""});
                form.campo("Descrizione").setText("Il dodici");
            },
        .act = [](Decorrenze& form) { form.invio(); },
        .once = support::inTurn({{2, support::kRefused}, {1, support::kStored}, {2, support::kStoredUnread}}),
        .fromThere = support::inTurn({{2, support::kRefused}, {3, support::kStoredUnread}})});
}

} // namespace
} // namespace vabo
