#pragma once

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/IsEmptyValue.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace vabo {

/// What is written for a field that counts as nothing: the field as it stands, 0, the empty text, or nothing at all.
enum class SeVuoto { ComeSta, Zero, Testo, Salta };

/// A column of a row and the field that goes into it.
struct Colonna {
    const char* nome;
    ado::Value valore;
    SeVuoto vuoto = SeVuoto::ComeSta;
};

/// None where nothing is written.
std::optional<ado::Value> DaScrivere(const Colonna& colonna);

/// Puts the fields into the current row, each a statement of the rule.
template<typename Regola>
void ScriviColonne(Regola&& regola, ado::Recordset& rs, std::initializer_list<Colonna> colonne) {
    for (const Colonna& colonna : colonne) {
        if (const std::optional<ado::Value> valore = DaScrivere(colonna)) {
            regola([&] { rs[colonna.nome] = *valore; });
        }
    }
}

/// Opens the row of a key to be written, or a new one where the key is empty. `dove` stands between the statement and
/// the key.
template<typename Regola>
void ApriRiga(Regola&& regola, ado::Recordset& rs, ado::Connection& connessione, const std::string& testo,
              const std::string& dove, double chiave) {
    if (IsEmptyValue(chiave)) {
        regola([&] { ApriScrivibile(rs, testo, connessione); });
        regola([&] { rs.AddNew(); });
    } else {
        regola([&] { ApriScrivibile(rs, testo + dove + ado::plainNumber(chiave), connessione); });
        regola([&] { rs.MoveFirst(); });
    }
}

/// Columns that a later version brought, one statement each. A database that has them refuses the statement, and the
/// refusal is skipped.
void AggiungiColonne(ado::Connection& connessione, std::initializer_list<const char*> istruzioni);

} // namespace vabo
