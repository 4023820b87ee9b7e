#pragma once

// The VAT sections without a screen: a row of IvaSezionale each, with its counters and its definitive amounts. The
// commands show their boxes themselves and tell whether the list is to be read again. But for what is said to be
// skipped errors raise, and the shared recordset is given back.

#include <cstdint>
#include <string>

namespace vabo {

/// The fields of a section as they stand on the screen.
struct CampiSezionale {
    std::string numero;
    std::string descrizione;
    std::string areaAttivita;
};

std::string ElencoSezionali();

/// Adds the two columns that an older database lacks; one that has them refuses, which is skipped.
void AggiungiColonneSezionali();

/// Writes number, description and area alone, into the row of that number or a new one. Nothing is done where one of
/// the three is empty. The number enters the statement as it is typed.
bool SalvaSezionale(const CampiSezionale& campi);

/// Asks, and writes a section with counters and amounts of 0 and the dates of the first one. The row of that key is
/// written over; a new one is added where there is none. What can't be read of the first section is null.
bool AggiungiSezionale(const CampiSezionale& campi, double chiave);

/// Asks, and sets the months of a liquidation period in all sections and in the counters of the branch.
bool CambiaLiquidazione(std::int32_t mesi);

enum class Registro { Acquisti, Vendite };
/// Asks, sets the register's invoices and returns to 0 and its last date to the end of the definitive year. The section
/// is the one whose number is that key, not the one of that key. Raises 94 "Invalid use of Null" where it has no
/// definitive date.
bool AzzeraContatori(Registro registro, double chiave);

/// Asks, and carries all sections over: December's amount becomes the carry, the months, progressives and pages 0. What
/// fails in a row is skipped.
bool RiportaAnno();

/// With the right to delete, asks and deletes the section of that key. It counts as used where the key is a section
/// number of the ledger.
bool EliminaSezionale(double chiave);

} // namespace vabo
