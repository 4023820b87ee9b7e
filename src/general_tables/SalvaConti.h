#pragma once

#include <string>

namespace vabo {

/// The row of TabellaContiUtili that accepts any account.
inline constexpr double kRigaSenzaProvaEconomica = 2;

/// Whether the account may be stored: where the description contains "econo", in any case, only economic accounts may.
bool ContoAmmesso(const std::string& descrizione, double idConto);

/// Writes an account and its group to a row of TabellaContiUtili. Failing statements are skipped.
void SalvaContoUtile(double idRiga, double idConto);

/// The same for a row of one of the four tables of the second tab. Errors raise.
void SalvaAltroConto(int tabella, double idRiga, double idConto);

/// The same for a row of BusteTabellaContiUtili. Failing statements are skipped.
void SalvaContoPersonale(double idRiga, double idConto);

enum class OrdineFatture { Invio, Elenco };

/// Writes account, group and project to a row of ivaTabellaContiUtili, one statement each; the project is written last
/// after Enter, and second after a pick in the list. Errors raise.
void SalvaContoFattura(double idRiga, double idConto, OrdineFatture ordine);

} // namespace vabo
