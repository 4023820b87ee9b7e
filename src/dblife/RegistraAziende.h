#pragma once

// How a company reaches its server is tested and stored here: in the pointer files, in its row of the registry of
// companies and in the data sources by which other programs reach the databases. No database is created or altered.

#include "ado/Connection.h"

#include <string>

namespace vabo {

/// How a company is reached: as entered in the form, or as stored for the company taken up.
struct CampiAzienda {
    std::string Driver, Server, Database, Utente, Password;
    std::string Fonte;   ///< name of the company's data source
    std::string Azienda; ///< the company's name
};

/// Takes up the company in IdAziendaScelta and sets ClienteDornavel. Raises nothing.
void PrendiAziendaScelta();

/// The fields of the company taken up, with defaults for what it doesn't have.
CampiAzienda CampiIniziali();

/// The text that reaches the server, without a database; ends with a semicolon.
std::string StringaServer(const CampiAzienda& campi);
/// The part of the text that names the database; ends with a semicolon.
std::string PezzoDatabase(const CampiAzienda& campi);

/// Whether a connection with this text can be opened and closed.
bool ConnessioneValida(const std::string& stringa);

/// Writes the pointer file with the server's connection text. Raises platform::FileError.
void ScriviIndirizzoServer(const std::string& stringa);
/// Writes the pointer file with the server's name. Raises platform::FileError.
void ScriviNomeServer(const std::string& server);

/// Writes the fields to the first row of the registry, where the database of that connection has this table. Failing
/// statements are skipped.
void ScriviPrimaRiga(const CampiAzienda& campi, ado::Connection& connessione);

/// Registers the company's data source and those of the two local databases. Raises nothing.
void RegistraFonti(const CampiAzienda& campi);

} // namespace vabo
