#include "dblife/VerDb.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

#include <algorithm>
#include <string>

namespace vabo {

namespace {

const ado::Date kDataZero = ado::toDate(0); // what a date is before it is set

} // namespace

double VerDb(const ado::Value& Versione) {
    const bool daScrivere = !IsEmptyValue(Versione);
    double valore = 0;
    if (daScrivere) {
        salta([&] { valore = ado::toDouble(Versione); });
    }
    salta([] { ApriDbTemp(); });
    salta([] { DbTemp.Execute("Create table Version (id int null, Version int not null default 1 )"); });
    double esito = 0;
    ado::Recordset rs;
    salta([&] { ApriScrivibile(rs, "select * from Version where id = 1", DbTemp); });
    if (vera([&] { return rs.EOF(); })) {
        salta([&] { rs.AddNew(); });
        salta([&] { rs["id"] = 1; });
        salta([&] { rs["Version"] = valore; });
        salta([&] { rs.Update(); });
    } else if (!daScrivere) {
        if (vera([&] { return !IsEmptyValue(rs["Version"].Value()); })) {
            salta([&] { esito = ado::toDouble(rs["Version"].Value()); });
        }
    } else {
        salta([&] { rs["Version"] = valore; });
        salta([&] { rs.Update(); });
    }
    salta([&] { rs.Close(); });
    salta([] { DbTemp.Close(); });
    return esito;
}

ado::Date LeggiDataBilancioProgetto() {
    ado::Date data = kDataZero;
    ado::Recordset& rs = RsCondivisi(1);
    salta([&] { rs.Open("Select * from progetti where id = 10000001", DbAzienda); });
    const bool trovata =
        vera([&] { return !rs.EOF(); }) && vera([&] { return !IsEmptyValue(rs["idDataBilancio"].Value()); });
    if (trovata) {
        salta([&] { data = ado::toDate(rs["idDataBilancio"].Value()); });
    } else {
        salta([&] { data = ado::toDate("31/12/1990"); });
    }
    salta([&] { rs.Close(); });
    // A machine whose dates are written with points.
    salta([&] {
        std::string testo = ado::toText(data);
        std::replace(testo.begin(), testo.end(), '.', '/');
        data = ado::toDate(testo);
    });
    return data;
}

ado::Date LeggiPrimoGennaio() {
    ado::Date primo = kDataZero;
    salta([&] { primo = ado::toDate("01/01/" + std::to_string(LeggiDataBilancioProgetto().year() + 1)); });
    return primo;
}

} // namespace vabo
