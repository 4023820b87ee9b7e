#pragma once

// What the start form does besides showing itself: it finds and takes up a company, prepares the server and decides
// between login and console. Failing statements are skipped.

#include <string>

namespace vabo {

/// "Ver. 1.2.3"
std::string TestoVersione();
/// "DataBase :   " and the company's name.
std::string TestoDatabase();

/// Reads the machine's name and takes up the terminal's company. Without a server or pointer files a box appears and
/// the process ends.
void PrendiAziendaDelTerminale();

/// Sets ClienteDornavel: true where the company's name contains "dornavel" in small letters.
void RiconosciDornavel();

/// Opens the company once more and reads its branch, unless the server was found missing.
void ApriSedeDiAvvio();

/// Reads the language of the client. Called again after each step that may create the temporary database.
void PrendiLingua();

/// Sets the server's options, reads where the company's data file is and opens the temporary database, in this order.
void PreparaServer();

/// Records in the temporary database which program of the suite runs, by its file name.
void RegistraProgramma();

/// Whether the login form is needed. An empty or unreadable table of users sets the rights of a start without login.
bool ServeLogin();

} // namespace vabo
