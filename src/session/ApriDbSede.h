#pragma once

// The pointer files of the workstation, and the connection texts made of them. Each call reads the files anew, so a
// changed file takes effect at the next call.

#include <string>

namespace vabo {

/// The text that reaches the server, without a database; leaves the server's name in NomeServer. A pointer file that
/// can't be read raises platform::FileError.
std::string LeggiConnessioneServer();
/// The same text with the control database, and with the database NomeDatabase. Raise the same error.
std::string ConnessioneControllo();
std::string ConnessioneAzienda();

/// The text that reaches the local instance, from Leggi_ServerLocal.txt. Where that can't be read, the default text,
/// which is also written to IndirizzoServerLocal.txt (not to the file that was read). Raises nothing.
std::string Leggi_ServerLocal();
/// The local instance's name. Where its file can't be read, both local files are written with the default name, but
/// this call still returns the bare terminal name. Raises nothing.
std::string LeggiNomeServerLocal();
/// The connection text for a local server, with its keys "ID utente" and "Password" empty.
std::string StringaServerLocale(const std::string& server);

/// User and password of the server text, each with its key. The user is empty where its value is; the password is empty
/// where the whole text ends with a semicolon. They overwrite Appoggio and SqlLavoro.
std::string LeggiUtenteServer();
std::string LeggiPasswordServer();

/// Opens DbTemp, creating what is missing on the local instance once. False when it can't be opened.
bool ApriDbTemp();

/// Replaces the file by that one line. Raises platform::FileError.
void ScriviFileTesto(const std::string& percorso, const std::string& testo);

/// The town of the branch, empty where it can't be read. Puts the branch's number into IdSede and IdSedeCopia.
std::string LeggiSede();

} // namespace vabo
