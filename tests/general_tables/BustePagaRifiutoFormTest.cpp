// The accounts of pay slips with each request to the server of their store refused.

#include "BustePagaFixture.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class BustePaga : public support::FormWorld<BustePagaForm> {
public:
    BustePaga() : FormWorld(kForm) {}

    using BustePagaForm::apri, BustePagaForm::prendi, BustePagaForm::salva;

    Riga fields() const { return conti(); }
    /// The grid's columns of accounts.
    Riga shown() const { return rowsOf("DataGrid1"); }
    Riga held() const { return rowsAsSelected(kElencoTipi); }
    std::string half() const {
        std::string testo;
        for (const std::string& conto : righe(4)) {
            testo += (testo.empty() ? "" : " ") + conto;
        }
        return testo;
    }
};

TEST(BustePagaRifiuto, OfTheStoreOfAType) {
    replay(support::Operation<BustePaga>{
        .tables = {"TipoAnagraficaCPartite"},
        .reach =
            [](BustePaga& form) {
                form.apri();
                form.prendi(0, 1099);
                form.prendi(5, 1180);
            },
        .act = [](BustePaga& form) { form.salva(); },
        .once = support::inTurn(
            {{1, support::kRefused},
             {2, "silent; rows 1080 1082 1083 1089 1091 1180 44 1187 45 0 0 0 0 0 0; list right; fields kept"},
             {2, "silent; rows 1099 1082 1083 1089 1091 1180 45 1187 45 0 0 0 0 0 0; list right; fields kept"},
             {2, support::kStoredKept},
             {2, "silent; rows 1099 1082 1083 1089 1091 1180 44 1187 45 0 45 0 0 0 0; list right; fields kept"},
             {1, "silent; rows before; list right; fields kept"},
             {2, support::kStoredKept},
             {2, "silent; rows done; list empty; fields kept"}}),
        .fromThere = support::inTurn({{1, support::kRefused},
                                      {9, "silent; rows before; list empty; fields kept"},
                                      {4, "silent; rows done; list empty; fields kept"}})});
}

} // namespace
} // namespace vabo
