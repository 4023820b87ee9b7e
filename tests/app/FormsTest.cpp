#include "app/Forms.h"

#include "controls/FormRegistry.h"
#include "dblife/FormRegistraAziendeNeiDns.h"
#include "dblife/caricasedecentrale.h"
#include "fiscal/I_Iva_sezionali.h"
#include "fiscal/frmDatiAzienda.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/TabelleBustePaga.h"
#include "geography/frmComuni.h"
#include "geography/stati.h"
#include "locks/Scegli_progetto_4.h"
#include "locks/Scegli_sede_Pd.h"
#include "payment_terms/CondizioniPagamento.h"
#include "payment_terms/CondizioniPagamentoDecorrenza.h"
#include "rights/Login.h"
#include "session/About.h"
#include "session/Avvio_Azienda.h"
#include "support/Gui.h"
#include "support/TestWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

template<typename Form>
bool takesScreen() {
    return Form().takesScreen();
}

TEST(Forms, ThoseWithATableFillTheScreen) {
    const support::TestWorkstation workstation;
    const support::Gui gui;
    EXPECT_TRUE(takesScreen<vabo::Avvio_Morlan>());
    EXPECT_TRUE(takesScreen<vabo::stati>());
    EXPECT_TRUE(takesScreen<vabo::frmComuni>());
    EXPECT_TRUE(takesScreen<vabo::I_Iva_sezionali>());
    EXPECT_TRUE(takesScreen<vabo::CondizioniPagamento>());
    EXPECT_TRUE(takesScreen<vabo::CondizioniPagamentoDecorrenza>());
    EXPECT_TRUE(takesScreen<vabo::TabelleBustePaga>());
    EXPECT_TRUE(takesScreen<vabo::caricasedecentrale>());

    EXPECT_FALSE(takesScreen<vabo::About>());
    EXPECT_FALSE(takesScreen<vabo::Avvio_Azienda>());
    EXPECT_FALSE(takesScreen<vabo::Login>());
    EXPECT_FALSE(takesScreen<vabo::frmDatiAzienda>());
    EXPECT_FALSE(takesScreen<vabo::FormRegistraAziendeNeiDns>());
    EXPECT_FALSE(takesScreen<vabo::Scegli_progetto_4>());
    EXPECT_FALSE(takesScreen<vabo::Scegli_sede_Pd>());
}

TEST(Forms, AreKnownByTheirNames) {
    const support::Gui gui;
    controls::FormRegistry registry;
    app::registerForms(registry);
    EXPECT_THAT(registry.names(),
                ElementsAre("About", "Avvio", "Avvio_Azienda", "Avvio_Morlan", "CondizioniPagamento",
                            "CondizioniPagamentoDecorrenza", "FormRefreshLinks", "FormRegistraAziendeNeiDns",
                            "I_Iva_sezionali", "IndirizzoVaboSuServer", "Login", "Scegli_progetto_4", "Scegli_sede_Pd",
                            "TabelleBustePaga", "caricasedecentrale", "frmComuni", "frmDatiAzienda", "stati"));
}

} // namespace
