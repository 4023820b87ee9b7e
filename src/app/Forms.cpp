#include "app/Forms.h"

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
#include "session/Avvio.h"
#include "session/Avvio_Azienda.h"
#include "session/FormRefreshLinks.h"
#include "session/IndirizzoVaboSuServer.h"

namespace app {

namespace {

template<typename Form>
std::unique_ptr<controls::Form> make() {
    return std::make_unique<Form>();
}

} // namespace

void registerForms(controls::FormRegistry& registry) {
    registry.add("Avvio", make<vabo::Avvio>);
    registry.add("FormRefreshLinks", make<vabo::FormRefreshLinks>);
    registry.add("About", make<vabo::About>);
    registry.add("Avvio_Azienda", make<vabo::Avvio_Azienda>);
    registry.add("FormRegistraAziendeNeiDns", make<vabo::FormRegistraAziendeNeiDns>);
    registry.add("Avvio_Morlan", make<vabo::Avvio_Morlan>);
    registry.add("I_Iva_sezionali", make<vabo::I_Iva_sezionali>);
    registry.add("frmDatiAzienda", make<vabo::frmDatiAzienda>);
    registry.add("Login", make<vabo::Login>);
    registry.add("Scegli_progetto_4", make<vabo::Scegli_progetto_4>);
    registry.add("Scegli_sede_Pd", make<vabo::Scegli_sede_Pd>);
    registry.add("IndirizzoVaboSuServer", make<vabo::IndirizzoVaboSuServer>);
    registry.add("caricasedecentrale", make<vabo::caricasedecentrale>);
    registry.add("CondizioniPagamento", make<vabo::CondizioniPagamento>);
    registry.add("CondizioniPagamentoDecorrenza", make<vabo::CondizioniPagamentoDecorrenza>);
    registry.add("stati", make<vabo::stati>);
    registry.add("frmComuni", make<vabo::frmComuni>);
    registry.add("TabelleBustePaga", make<vabo::TabelleBustePaga>);
}

} // namespace app
