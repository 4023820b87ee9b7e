#include "kit/Filtra.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"

namespace vabo {
namespace {

class FiltraTest : public AziendaAperta {
protected:
    FiltraTest() {
        rs.Open("select DES_COMUNE, DES_PROVIN from Comuni", DbAzienda, ado::CursorType::Static,
                ado::LockType::Optimistic);
    }
    ado::Recordset rs;
};

TEST_F(FiltraTest, TellsWhetherAnyRowHasTheTextAndLeavesThese) {
    EXPECT_TRUE(Filtra(rs, "des_provin", "bt"));
    EXPECT_EQ(rs.Filter(), "des_provin='bt'");
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_FALSE(Filtra(rs, "des_provin", "XX"));
    EXPECT_TRUE(rs.EOF());
}

TEST_F(FiltraTest, ATextThatBreaksTheFilterRaisesAndTheRowsStay) {
    const long tutte = rs.RecordCount();
    long numero = 0;
    try {
        Filtra(rs, "des_comune", "L'Aquila");
    } catch (const ado::Error& errore) {
        numero = errore.number();
    }
    EXPECT_EQ(numero, 3001);
    EXPECT_EQ(rs.RecordCount(), tutte);
}

} // namespace
} // namespace vabo
