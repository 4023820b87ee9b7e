#pragma once

#include <string>

namespace vabo {

/// The one row of TabellaContiUtili that takes any account.
inline constexpr double kRigaSenzaProvaEconomica = 2;

/// A purpose whose description speaks of "econo…" takes only economic accounts.
bool ContoAmmesso(const std::string& descrizione, double idConto);

/// Points a row of TabellaContiUtili to an account and copies the account's group. Failing statements are skipped.
void SalvaContoUtile(double idRiga, double idConto);

/// The same in one of the four tables of the second tab. Errors raise.
void SalvaAltroConto(int tabella, double idRiga, double idConto);

/// The same in BusteTabellaContiUtili. Failing statements are skipped.
void SalvaContoPersonale(double idRiga, double idConto);

enum class OrdineFatture { Invio, Elenco };

/// Three statements on ivaTabellaContiUtili; the project comes last on Enter and second on a pick. Errors raise.
void SalvaContoFattura(double idRiga, double idConto, OrdineFatture ordine);

} // namespace vabo
