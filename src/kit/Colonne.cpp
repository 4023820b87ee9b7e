#include "kit/Colonne.h"

#include "kit/Regole.h"

namespace vabo {

std::optional<ado::Value> DaScrivere(const Colonna& colonna) {
    if (colonna.vuoto == SeVuoto::ComeSta || !IsEmptyValue(colonna.valore)) {
        return colonna.valore;
    }
    switch (colonna.vuoto) {
    case SeVuoto::Zero:
        return ado::Value(0);
    case SeVuoto::Testo:
        return ado::Value("");
    default:
        return std::nullopt;
    }
}

void AggiungiColonne(ado::Connection& connessione, std::initializer_list<const char*> istruzioni) {
    for (const char* istruzione : istruzioni) {
        salta([&] { connessione.Execute(istruzione); });
    }
}

} // namespace vabo
