#pragma once

// What the start form does besides showing itself: first it finds and takes up a company, then it prepares the server
// and decides between login and console. Failing statements are skipped.

#include <string>

namespace vabo {

/// "Ver. 1.2.3"
std::string TestoVersione();
/// "DataBase :   " and the company's name.
std::string TestoDatabase();

/// Machine name, company of the terminal, the company taken up. Without server or pointer files, a box and the end.
void PrendiAziendaDelTerminale();

/// Sets ClienteDornavel by the company's name; capitals don't count as the word.
void RiconosciDornavel();

/// Opens the company once more and reads its branch, unless the server was found missing.
void ApriSedeDiAvvio();

/// Reads the language of the client, again wherever the temporary database may just have been made.
void PrendiLingua();

/// Server options, data file of the company, temporary database, in this order.
void PreparaServer();

/// Whether anybody has to log in. An empty or unreadable table of users gives the rights of a start without login.
bool ServeLogin();

} // namespace vabo
