#include "kit/ApriScrivibile.h"

namespace vabo {

void ApriScrivibile(ado::Recordset& rs, const std::string& testo, ado::Connection& connessione) {
    rs.Open(testo, connessione, ado::CursorType::Keyset, ado::LockType::Pessimistic);
}

void ApriScrivibile(ado::Recordset& rs, const std::string& testo, const std::string& connessione) {
    rs.Open(testo, connessione, ado::CursorType::Keyset, ado::LockType::Pessimistic);
}

} // namespace vabo
