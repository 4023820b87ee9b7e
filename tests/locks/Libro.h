#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vabo::libro {

/// "2024-03-31 00:00:00.000": texts of this form compare as the moments do. None is null.
using Momento = std::optional<std::string>;
using Numero = std::optional<int>;

/// A row of the ledger, with all that it holds. Amounts in hundredths.
struct Riga {
    int id = 0;
    Numero numero = 1, sede = 1;
    Momento transazione = "2024-01-15 00:00:00.000", report = "2024-01-15 00:00:00.000";
    Numero conto = 1200, progetto = 10000003, competenza = 4;
    std::string descrizione = "Riga";
    Numero depositi = 1250, prelievi = 0;
    Numero valuta = 1001, seziva = 0, definito = 0;
};
using Libro = std::vector<Riga>;

/// Midnight of a day, or later on it.
inline std::string alle(const std::string& giorno, const std::string& ora = "00:00") {
    return giorno + " " + ora + ":00.000";
}

/// A row as text, its columns in the order of the table.
std::string testo(const Riga& riga);
std::vector<std::string> testi(const Libro& libro);
/// The statement that writes these rows.
std::string inserimento(const Libro& libro);

/// Every column but the key may be null.
extern const char* const kTabella;
extern const char* const kSelezione;

} // namespace vabo::libro
