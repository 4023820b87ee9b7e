#pragma once

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/IsEmptyValue.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace vabo {

/// What is written for a field of which IsEmptyValue is true: the field as it is, 0, the empty text, or nothing.
enum class SeVuoto { ComeSta, Zero, Testo, Salta };

/// A column of a row and the value for it.
struct Colonna {
    const char* nome;
    ado::Value valore;
    SeVuoto vuoto = SeVuoto::ComeSta;
};

/// The value to be written; none where the column isn't written.
std::optional<ado::Value> DaScrivere(const Colonna& colonna);

/// Assigns the values to the current row, each assignment as one statement under the rule.
template<typename Regola>
void ScriviColonne(Regola&& regola, ado::Recordset& rs, std::initializer_list<Colonna> colonne) {
    for (const Colonna& colonna : colonne) {
        if (const std::optional<ado::Value> valore = DaScrivere(colonna)) {
            regola([&] { rs[colonna.nome] = *valore; });
        }
    }
}

/// Opens the row with that key for writing, or adds a new one where the key is empty. `dove` is the text between the
/// statement and the key.
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

/// Adds columns that a later version introduced, by one statement each. Where the database has a column already its
/// statement fails, which is skipped.
void AggiungiColonne(ado::Connection& connessione, std::initializer_list<const char*> istruzioni);

} // namespace vabo
