#pragma once

// The rules of the login, without its form: what Load prepares, and how a name and a password are checked.

#include <string>

namespace vabo {

/// Sets the rights of a user who isn't logged in, reads the machine's name, writes the local pointer file where it is
/// missing, and takes up the terminal's company.
void PreparaLogin();

/// Whether StringaAzienda can be opened. Sets ServerMancante to the opposite.
bool ServerRisponde();

/// Opens DbAzienda, reads the data folder and the branch. Failing statements are skipped.
void ApriDatiLogin();

/// Whether the table of users is empty or can't be read. Then all rights are set, otherwise the failed attempts are set
/// to zero.
bool LoginSenzaUtenti();

/// A name or password as it is stored and compared: lower case, underscores in the place of blanks and punctuation.
std::string Normalizzato(const std::string& testo);

enum class EsitoLogin {
    Rifiutato,     ///< counts as an attempt
    PrimaPassword, ///< the user has no password yet
    Disabilitato,
    Riconosciuto
};

/// Checks normalised texts against the table of users. With PrimaPassword, `IdUtenteNuovo` is set to the user's number.
/// Raises ado::Error.
EsitoLogin ControllaLogin(const std::string& utente, const std::string& password, double& IdUtenteNuovo);

/// Loads the rights of a recognised user, sets the failed attempts to zero and NomeUtenteLogin to the name.
void EntraUtente(const std::string& utente, const std::string& password);

/// Stores a first password and loads the user's rights. Unlike EntraUtente it leaves the failed attempts and
/// NomeUtenteLogin as they are.
void EntraConPrimaPassword(double& IdUtenteNuovo, const std::string& utente, const std::string& password);

/// Counts a failed attempt and shows a box. True from the fourth on: the login form has to close.
bool ContaTentativo();

/// Stores the first password of that user and sets the number to zero. Does nothing where the number is empty. Raises
/// ado::Error.
void SalvaPrimaPassword(double& IdUtenteNuovo, const std::string& password);

} // namespace vabo
