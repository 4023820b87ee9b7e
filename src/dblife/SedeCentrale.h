#pragma once

// The headquarters as this installation sees it: the branch chosen among those of the company, and the folders of the
// server in the company's tables. Errors raise; the shared recordset is given back.

#include <string>

namespace vabo {

/// The fields of a branch as they stand on the screen.
struct CampiSede {
    std::string citta;
    std::string indirizzo;
    std::string statoOProvincia;
    std::string cap;
    std::string telefono;
    std::string fax;
    std::string posta;
    std::string note;
};

std::string ElencoStatiSede();
/// The branches that have a state.
std::string ElencoSediConStato();
std::string SedeScelta(double sede);
std::string StatoDellaSede(double stato);

/// Writes the branch over the row of the headquarters whose number is 1, or adds one where there is none. The row gets
/// the branch's own number, so a later choice may add another.
void SalvaSedeCentrale(double sede, double stato, const CampiSede& campi);

/// Writes the folder of the headquarters' data and that of the copies, one row each.
void SalvaCartelleSede(const std::string& cartella);

} // namespace vabo
