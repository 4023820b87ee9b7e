#pragma once

// The login without its screen: what its Load prepares, and what it makes of a name and a password.

#include <string>

namespace vabo {

/// The rights of nobody, the machine's name, the local pointer file where it is missing, the terminal's company.
void PreparaLogin();

/// Whether StringaAzienda can be opened; sets ServerMancante.
bool ServerRisponde();

/// DbAzienda, the data folder and the branch. Failing statements are skipped.
void ApriDatiLogin();

/// Whether the table of users is empty or can't be read; then everything is allowed.
bool LoginSenzaUtenti();

/// A name or password as it is stored and compared: no punctuation, lower case.
std::string Normalizzato(const std::string& testo);

enum class EsitoLogin {
    Rifiutato,     ///< counts as an attempt
    PrimaPassword, ///< the user has none yet
    Disabilitato,
    Riconosciuto
};

/// Checks normalised texts against the table of users. With PrimaPassword, `IdUtenteNuovo` takes the user's number.
/// Errors of the database rise.
EsitoLogin ControllaLogin(const std::string& utente, const std::string& password, double& IdUtenteNuovo);

/// Loads the rights of a user just recognised and notes who came in.
void EntraUtente(const std::string& utente, const std::string& password);

/// The same behind a first password, which is stored before. No attempt is cleared and nobody is noted on this road.
void EntraConPrimaPassword(double& IdUtenteNuovo, const std::string& utente, const std::string& password);

/// Counts a failure and tells it. True after the fourth: the login form has to go.
bool ContaTentativo();

/// Stores the first password of that user, whose number becomes zero; nothing for nobody. Errors of the database rise.
void SalvaPrimaPassword(double& IdUtenteNuovo, const std::string& password);

} // namespace vabo
