#pragma once

// The pointer files of the workstation, and the connection texts made of them. Nothing is kept from one call to the
// next: a file changed on the disk counts at the next use.

#include <string>

namespace vabo {

/// The text that reaches the server, without a database; leaves the server's name in NomeServer. A pointer file that
/// can't be read raises platform::FileError.
std::string LeggiConnessioneServer();
/// The same for the control database and for the database NomeDatabase. They raise alike.
std::string ConnessioneControllo();
std::string ConnessioneAzienda();

/// The text that reaches the local instance. Where its file can't be read, the default text, which is written to
/// another file, never to the one that was looked for. Never raises.
std::string Leggi_ServerLocal();
/// The local instance's name. Where its file can't be read both local files are written, and this call still answers
/// with the bare terminal name. Never raises.
std::string LeggiNomeServerLocal();
/// A local text for that server: user and password under their local keys, both empty.
std::string StringaServerLocale(const std::string& server);

/// Pieces of the server text, key included; empty where the user is empty, or the text ends with a semicolon.
/// They overwrite Appoggio and SqlLavoro.
std::string LeggiUtenteServer();
std::string LeggiPasswordServer();

/// Opens DbTemp, creating what is missing on the local instance once. False when it can't be opened.
bool ApriDbTemp();

/// The file holds that one line afterwards. Raises platform::FileError.
void ScriviFileTesto(const std::string& percorso, const std::string& testo);

/// Town of the branch, its number in IdSede and IdSedeCopia. Empty where it can't be read.
std::string LeggiSede();

} // namespace vabo
