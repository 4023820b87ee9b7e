#include "locks/BloccoSede.h"

#include "ado/Conversions.h"
#include "kit/Regole.h"
#include "locks/TestiSede.h"
#include "locks/Transazioni.h"

namespace vabo {

namespace {

void SalvaDataSede(double sede, const std::string& data) {
    ado::Recordset rs;
    ApriScrivibile(rs, RigaSede(sede), DbAzienda);
    if (!rs.EOF()) {
        rs["idDatainvio"] = data;
        rs.Update();
    }
    rs.Close();
}

ado::Date GiornoDopo(const ado::Date& giorno) {
    return ado::Date::rolling(giorno.year(), giorno.month(), giorno.dayOfMonth() + 1);
}

} // namespace

std::optional<std::string> LeggiDataSede(double sede) {
    const Restituzione restituzione(kPostoSede);
    ado::Recordset& rs = RsCondivisi(kPostoSede);
    ApriScrivibile(rs, DataBloccoSede(sede), DbAzienda);
    const ado::Value data = rs.EOF() ? ado::Value(ado::Null{}) : rs["idDatainvio"].Value();
    ChiudiRecordset();
    return data.isNull() ? std::nullopt : std::optional(ado::toText(data));
}

bool PrimaDelBilancio(const std::string& data) {
    return ado::toDate(data) < LeggiDataBilancio();
}

bool NonDopoIlBilancio(const std::string& data) {
    return ado::toDate(data) <= LeggiDataBilancio();
}

void BloccaSede(double sede, const std::string& data, Avanzamento& avanzamento) {
    NoveConti ContiBlocco{};
    NoveConti GruppiBlocco{};
    SalvaDataSede(sede, data);
    DbAzienda.Execute(SqlCorrente = RiapriSede(sede, ado::toDate(data), LeggiDataBilancio()));
    avanzamento.Porta(1.0 / 2);
    const ado::Date giorno = GiornoDopo(LeggiDataBilancio());
    CaricaContiBlocco(ContiBlocco, GruppiBlocco);
    DbAzienda.Execute(SqlCorrente = ChiudiSede(sede, giorno));
    avanzamento.Porta(1);
    constexpr int kDueGiri = 2; // the list holds the four optional accounts twice
    const auto sempreDefinitive = [&] {
        const double hq2 = ContoHq2();
        const double hq1 = ContoHq1();
        return RigheSempreDefinitiveSede(
            sede, SempreDefinitive(hq2, hq1, ContiDefinitivi(kSenzaRegola, ContiBlocco, " idconto = ", kDueGiri)));
    };
    ModificaTransazioni(kSenzaRegola, sempreDefinitive, kDefinisci, avanzamento);
}

} // namespace vabo
