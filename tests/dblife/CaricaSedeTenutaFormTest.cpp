// The form of the headquarters beside others: rows that somebody holds, a branch that changes, a second opening.

#include "CaricaSedeFixture.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

using CaricaSedeTenuta = CaricaSedeForm;

constexpr const char* kTenuta = "Lock request time out period exceeded.";

TEST_F(CaricaSedeTenuta, AFolderRowThatSomebodyHoldsIsToldAndWhatStandsAheadOfItIsWritten) {
    const Riga prima = cartelle();
    for (const char* tabella : {"DirectoryHQ", "Directorybackup"}) {
        SCOPED_TRACE(tabella);
        apri();
        scegli("4");
        attendiScelta("C:\\Nuova", true);
        script.expectMessage(kTenuta);
        {
            ado::Connection altrui;
            altrui.Open(StringaAzienda);
            ado::Recordset tenuta;
            ApriScrivibile(tenuta, std::string("select * from ") + tabella, altrui);
            tenuta["Directoryfile"] = "mia";
            const support::StatementRecorder recorder;
            applica();
            EXPECT_TRUE(recorder.holding(std::string("UPDATE [") + tabella).empty()) << "refused before it is written";
            tenuta.CancelUpdate();
        }
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Nuova"));
        EXPECT_EQ(cartelle()[1], prima[1]);
        EXPECT_EQ(cartelle()[0], std::string(tabella) == "DirectoryHQ" ? prima[0] : "C:\\Nuova\\VaboDatiHQ");
        gui.forms().unload(kForm);
        support::Gui::handleEvents();
    }
    apri();
    scegli("4");
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
}

TEST_F(CaricaSedeTenuta, ASecondOpeningHasNoBranch) {
    apri();
    scegli("4");
    gui.click(kForm, "Command7");
    support::Gui::handleEvents();
    ASSERT_FALSE(gui.forms().isLoaded(kForm));
    apri();
    const support::StatementRecorder recorder;
    applica();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_TRUE(script.shown().empty());
}

// A null goes into no number: the one of the branch picked before stays, and is stored.
TEST_F(CaricaSedeTenuta, ABranchThatLostItsStateIsStoredWithTheOneOfTheBranchBefore) {
    apri();
    scegli("4");
    const std::string stato = numeroDelloStato(4);
    const std::string mostrato = this->stato();
    esegui("update ElencoSedi set IdStato = null where IdSede = 5");
    scegli("5");
    EXPECT_EQ(this->stato(), mostrato);
    attendiScelta("C:\\Nuova", true);
    applica();
    ASSERT_EQ(sedi().size(), 1U);
    EXPECT_EQ(sedi()[0][0], "5");
    EXPECT_EQ(sedi()[0][5], stato);
}

TEST_F(CaricaSedeTenuta, ABranchThatLostItsStateIsStoredWithoutOneWhereItIsTheFirstPick) {
    apri();
    esegui("update ElencoSedi set IdStato = null where IdSede = 5");
    scegli("5");
    EXPECT_EQ(stato(), "Seleziona");
    attendiScelta("C:\\Nuova", true);
    applica();
    ASSERT_EQ(sedi().size(), 1U);
    EXPECT_EQ(sedi()[0][5], "0");
}

} // namespace
} // namespace vabo
