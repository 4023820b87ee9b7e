#include "locks/TestiSede.h"

#include "ado/Conversions.h"
#include "locks/funzioni_datadefinitiva.h"

namespace vabo {

namespace {

std::string DellaSede(double sede) {
    return " where idsedecompetenza =" + ado::plainNumber(sede);
}

} // namespace

std::string ElencoSediDaBloccare() {
    return "Select E.idsede,E.città,S.descstato from elencosedi AS E left join stati AS S on E.idstato=S.idstato order "
           "by città";
}

std::string DataBloccoSede(double sede) {
    return std::string("SELECT ") + " iddatainvio" + " From " + " elencosedi  " + " Where " +
           " idsede = " + ado::plainNumber(sede);
}

std::string RigaSede(double sede) {
    return "Select * from elencosedi where idsede = " + ado::plainNumber(sede);
}

std::string RiapriSede(double sede, const ado::Date& data, const ado::Date& bilancio) {
    return std::string("update partitadoppia") + " set definito =0 " + DellaSede(sede) + " and datatransazione >  " +
           DataSql(data) + " and datatransazione >  " + DataSql(bilancio);
}

std::string ChiudiSede(double sede, const ado::Date& giorno) {
    return std::string("update partitadoppia") + " set definito =-1 " + DellaSede(sede) + " and " +
           " (datatransazione <" + DataSql(giorno) + ")";
}

std::string RigheSempreDefinitiveSede(double sede, const std::string& sempreDefinitive) {
    return std::string("select * from partitadoppia ") + " where " + "  idsedecompetenza = " + ado::plainNumber(sede) +
           " and " + sempreDefinitive;
}

} // namespace vabo
