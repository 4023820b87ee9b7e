// The recordset of the rows whose transactions a lock makes definitive, while it is open.

#include "locks/LibroAperto.h"
#include "locks/RecordsetBlocchi.h"
#include "support/SomebodyElse.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using testing::ElementsAre;

class OpenRows : public LibroAperto {
protected:
    /// Two rows for the pass of the exceptions, one of them for that of the date too.
    OpenRows() {
        metti({{.id = 1, .numero = 1, .seziva = 1},
               {.id = 2,
                .numero = 2,
                .transazione = libro::alle("2024-03-31"),
                .report = libro::alle("2024-03-31"),
                .conto = 1060}});
    }
    /// Does something ahead of the update of each row.
    template<typename Lock>
    void adOgniRiga(const Lock& blocca, const std::function<void(ado::Recordset&)>& fa) {
        bool dentro = false;
        const support::SomebodyElse chiunque([&](const std::string& inviata) {
            if (!dentro && inviata.starts_with("update partitadoppia set definito = -1")) {
                dentro = true;
                fa(RsCondivisi(kPostoRighe));
                dentro = false;
            }
        });
        blocca();
    }
    static constexpr const char* kData = "31/03/2024";
};

TEST_F(OpenRows, CountTheirRowsAsAKeysetDoes) {
    std::vector<long> quante;
    adOgniRiga([] { bloccaProgetto(kData); }, [&](ado::Recordset& rs) { quante.push_back(rs.RecordCount()); });
    EXPECT_THAT(quante, ElementsAre(2, 2, 1));
    quante.clear();
    adOgniRiga([] { bloccaSede(kData); }, [&](ado::Recordset& rs) { quante.push_back(rs.RecordCount()); });
    EXPECT_THAT(quante, ElementsAre(2, 2));
}

TEST_F(OpenRows, AreLockedPessimisticallyFromAnAssignmentOn) {
    int tenute = 0;
    const auto prova = [&](ado::Recordset& rs) {
        const std::string riga = "select * from partitadoppia where idautonumber = " + ado::toText(rs["idautonumber"]);
        EXPECT_NO_THROW(lato->hold(riga));
        rs["Descrizione"] = "Tenuta";
        EXPECT_ANY_THROW(lato->hold(riga)) << "somebody else holds the same row";
        rs.CancelUpdate();
        ++tenute;
    };
    adOgniRiga([] { bloccaProgetto(kData); }, prova);
    EXPECT_EQ(tenute, 3);
    adOgniRiga([] { bloccaSede(kData); }, prova);
    EXPECT_EQ(tenute, 5);
}

/// Events run between two rows.
TEST_F(OpenRows, ThatSomebodyClosesEndTheBranchsLockAndDontStopTheProjects) {
    int aggiornate = 0;
    const auto chiudi = [&](ado::Recordset& rs) {
        ++aggiornate;
        if (rs.IsOpen()) {
            rs.Close();
        }
    };
    ASSERT_NO_THROW(adOgniRiga([] { bloccaProgetto(kData); }, chiudi));
    EXPECT_GE(aggiornate, 1);
    EXPECT_THROW(adOgniRiga([] { bloccaSede(kData); }, chiudi), ado::Error);
}

} // namespace
} // namespace vabo
