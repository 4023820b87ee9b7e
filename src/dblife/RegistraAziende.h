#pragma once

// A company's way to its server, tested and recorded: the pointer files, its row in the registry of companies and the
// data sources by which other programs reach the databases. No database is made or changed.

#include "ado/Connection.h"

#include <string>

namespace vabo {

/// How a company is reached: as the form asks for it, or as the company taken up has it.
struct CampiAzienda {
    std::string Driver, Server, Database, Utente, Password;
    std::string Fonte;   ///< name of the company's data source
    std::string Azienda; ///< the company's name
};

/// Takes up the company that is chosen and knows it by its name. Raises nothing.
void PrendiAziendaScelta();

/// The company taken up, with the defaults of what it doesn't know.
CampiAzienda CampiIniziali();

/// The text that reaches the server, without a database; ends with a semicolon.
std::string StringaServer(const CampiAzienda& campi);
/// The piece that adds the database to it.
std::string PezzoDatabase(const CampiAzienda& campi);

/// Whether a connection opens and closes.
bool ConnessioneValida(const std::string& stringa);

/// The pointer file of the server's text. Raises platform::FileError.
void ScriviIndirizzoServer(const std::string& stringa);
/// The pointer file of the server's name. Raises platform::FileError.
void ScriviNomeServer(const std::string& server);

/// Writes the fields to the first row of the registry, where the database of that connection has one. Failing
/// statements are skipped.
void ScriviPrimaRiga(const CampiAzienda& campi, ado::Connection& connessione);

/// The company's data source and those of the two local databases. Raises nothing.
void RegistraFonti(const CampiAzienda& campi);

} // namespace vabo
