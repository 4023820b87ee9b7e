#include "locks/BloccoProgetto.h"

#include "ado/Conversions.h"
#include "kit/Regole.h"
#include "locks/TestiProgetto.h"
#include "locks/Transazioni.h"

namespace vabo {

void AggiornaDataDefinitiva(double progetto, const std::string& data, Avanzamento& avanzamento) {
    NoveConti ContiBlocco{};
    NoveConti GruppiBlocco{};
    const auto definitivi = [&](const char* campo) { return ContiDefinitivi(kSaltando, ContiBlocco, campo); };
    avanzamento.Porta(1.0 / 4);
    salta([&] { DbAzienda.Execute(SqlCorrente = SegnaDataProgetto(progetto, ado::toDate(data))); });
    avanzamento.Porta(1.0 / 3);
    salta([&] { DbAzienda.Execute(SqlCorrente = RiapriProgetto(progetto, LeggiDataBilancio())); });
    avanzamento.Porta(1.0 / 2);
    CaricaContiBlocco(ContiBlocco, GruppiBlocco);
    salta([&] {
        DbAzienda.Execute(SqlCorrente = ChiudiProgetto(progetto, ado::toDate(data), definitivi(" b.idconto = ")));
    });
    avanzamento.Porta(1);
    const auto sempreDefinitive = [&] {
        const double hq2 = ContoHq2();
        const double hq1 = ContoHq1();
        return RigheSempreDefinitive(progetto, SempreDefinitive(hq2, hq1, definitivi(" idconto = ")));
    };
    ModificaTransazioni(kSaltando, sempreDefinitive, kDefinisciERendiconta, avanzamento);
    const auto allaData = [&] { return RigheAllaData(progetto, ado::toDate(data), definitivi(" idconto = ")); };
    ModificaTransazioni(kSaltando, allaData, kDefinisciERendiconta, avanzamento);
}

} // namespace vabo
