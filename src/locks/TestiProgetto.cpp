#include "locks/TestiProgetto.h"

#include "ado/Conversions.h"
#include "locks/funzioni_datadefinitiva.h"

namespace vabo {

namespace {

std::string DelProgetto(double progetto) {
    return " where idprogettorendiconto =" + ado::plainNumber(progetto);
}

std::string RigheDelProgetto(double progetto) {
    return std::string("select * from partitadoppia ") + " where " +
           "  idprogettorendiconto =" + ado::plainNumber(progetto) + " and ";
}

} // namespace

std::string SegnaDataProgetto(double progetto, const ado::Date& data) {
    return std::string("update progetti") + " set iddate =" + DataSqlUnita(data) +
           " where id =" + ado::plainNumber(progetto);
}

std::string RiapriProgetto(double progetto, const ado::Date& bilancio) {
    return std::string("update partitadoppia") + " set definito =0 " + DelProgetto(progetto) +
           " and datatransazione >  " + DataSql(bilancio);
}

std::string ChiudiProgetto(double progetto, const ado::Date& data, const std::string& definitivi) {
    return std::string("update partitadoppia") + " set definito =-1 " + DelProgetto(progetto) + " and " +
           " (datareport <" + DataSqlUnita(data) + " or datareport =" + DataSqlUnita(data) + ")" + " and  (NOT EXISTS" +
           " (SELECT  * FROM  Partitadoppia AS B " + "  WHERE" +
           " (B.numerotransazione = partitadoppia.numerotransazione" + " and B.idsede = partitadoppia.idsede)" +
           " and (" + definitivi + ")))  ";
}

std::string RigheSempreDefinitive(double progetto, const std::string& sempreDefinitive) {
    return RigheDelProgetto(progetto) + sempreDefinitive;
}

std::string RigheAllaData(double progetto, const ado::Date& data, const std::string& definitivi) {
    return RigheDelProgetto(progetto) + " datareport = " + DataSql(data) + " and  " + " (" + definitivi + ")";
}

} // namespace vabo
