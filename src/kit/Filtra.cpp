#include "kit/Filtra.h"

namespace vabo {

bool Filtra(ado::Recordset& rs, const std::string& campo, const std::string& testo) {
    rs.setFilter(campo + "='" + testo + "'");
    return !rs.EOF();
}

} // namespace vabo
