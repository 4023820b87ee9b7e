#include "locks/TestiTransazioni.h"

#include "kit/Testi.h"

namespace vabo {

std::string SempreDefinitive(double contoHq2, double contoHq1, const std::string& definitivi) {
    return "  (idconto= " + ado::plainNumber(contoHq2) + " or " + "  idconto= " + ado::plainNumber(contoHq1) + " or " +
           definitivi + " or " + "  seziva>0 " + "  or ((importodepositi-importoprelievi = 0" +
           "  or importodepositi-importoprelievi is null) and not idvaluta = 1001))";
}

std::string DellaTransazione(const ado::Value& numero, const ado::Value& sede) {
    return std::string(" where ") + "  numerotransazione= " + Pezzo(numero) + " and " + " idsede = " + Pezzo(sede);
}

} // namespace vabo
