#include "kit/ApriScrivibile.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"

namespace vabo {
namespace {

class ApriScrivibileTest : public AziendaAperta {
protected:
    /// Whether somebody else can take the branch's row.
    bool libera() const {
        const auto altro = posto.engineSession(support::kCompany);
        try {
            const auto presa = altro->hold("select * from Sede");
            return true;
        } catch (const engine::Error&) {
            return false;
        }
    }
};

TEST_F(ApriScrivibileTest, TheRowsAreAKeysetWhichKnowsItsCount) {
    ado::Recordset rs;
    ApriScrivibile(rs, "select * from Comuni where DES_PROVIN = 'BT'", DbAzienda);
    EXPECT_EQ(rs.RecordCount(), 3) << "a dynamic one knows none";
    rs.Close();
    ApriScrivibile(rs, "select * from Comuni where DES_PROVIN = 'BT'", StringaAzienda);
    EXPECT_EQ(rs.RecordCount(), 3);
}

TEST_F(ApriScrivibileTest, ARowIsHeldFromItsFirstAssignmentToItsUpdate) {
    const auto prova = [this](auto& connessione) {
        ado::Recordset rs;
        ApriScrivibile(rs, "select * from Sede", connessione);
        EXPECT_TRUE(libera());
        rs["città"] = "Asti";
        EXPECT_FALSE(libera());
        rs.Update();
        EXPECT_TRUE(libera());
    };
    prova(DbAzienda);
    prova(StringaAzienda);
}

} // namespace
} // namespace vabo
