#include "locks/funzioni_datadefinitiva.h"

#include "ado/Conversions.h"
#include "general_tables/Conti.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "locks/RecordsetBlocchi.h"

namespace vabo {

namespace {

double LeggiContoSistema(const char* testo) {
    const Restituzione restituzione(kPostoConti);
    ado::Recordset& rs = RsCondivisi(kPostoConti);
    rs.Open(testo, DbAzienda);
    double conto = 0;
    if (!rs.EOF()) {
        rs.MoveFirst();
        const ado::Value idconto = rs["idconto"];
        if (!IsEmptyValue(idconto)) {
            conto = ado::toDouble(idconto);
        }
    }
    rs.Close();
    return conto;
}

} // namespace

std::string DataSqlUnita(const ado::Date& data) {
    return " CONVERT(DATETIME, '" + std::to_string(data.year()) + "-" + std::to_string(data.month()) + "-" +
           std::to_string(data.dayOfMonth()) + "', 102)";
}

std::string DataSql(const ado::Date& data) {
    return DataSqlUnita(data) + "  ";
}

ado::Date LeggiDataBilancio() {
    const Restituzione restituzione(kPostoBilancio);
    ado::Recordset& rs = RsCondivisi(kPostoBilancio);
    rs.Open("Select * from contatorepd", DbAzienda);
    ado::Date bilancio = ado::Date::of(2000, 12, 31);
    const ado::Value chiuso = rs["iddate"];
    if (!IsEmptyValue(chiuso)) {
        bilancio = ado::toDate(chiuso);
    }
    rs.Close();
    return bilancio;
}

double ContoHq2() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtiliTransfersHq where id = 2 ");
}
double ContoHq1() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtiliTransfersHq where id = 1 ");
}
double Conto18() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili  where id = 18");
}
double Conto19() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili  where id =  19 ");
}
double Conto27() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili where id = 27 ");
}
double Conto29() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili where id = 29 ");
}
double Conto1() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili where id = 1 ");
}
double Conto2() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili where id = 2 ");
}
double Conto5() {
    return LeggiContoSistema("SELECT  * From TabellaContiUtili where id =5 ");
}

// The places without an account of their own repeat the first one's. An empty place has the group of the one before.
void CaricaContiBlocco(NoveConti& ContiBlocco, NoveConti& GruppiBlocco) {
    constexpr std::array kLettori = {Conto1, Conto2, Conto1, Conto1, Conto5, Conto1, Conto1, Conto1, Conto1};
    ContiBlocco = {};
    GruppiBlocco = {};
    for (std::size_t i = 0; i < kLettori.size(); ++i) {
        salta([&] { ContiBlocco[i] = ado::toLong(kLettori[i]()); });
    }
    double conto = 0;
    for (std::size_t i = 0; i < ContiBlocco.size(); ++i) {
        if (!IsEmptyValue(double(ContiBlocco[i]))) {
            conto = ContiBlocco[i];
        }
        salta([&] { GruppiBlocco[i] = LeggiGruppoVabo(conto); });
    }
}

} // namespace vabo
