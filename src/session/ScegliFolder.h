#pragma once

// The folder on the server where the programs of the suite keep their data: how the user chooses it, and the pointer
// files made of it.

#include <optional>
#include <string>

namespace vabo {

/// The folder that the user picks in the browser; empty where none was picked.
std::string ScegliCartella(const std::string& titolo);

/// The box ahead of the browser.
void AnnunciaCartellaServer();
/// The browser, and the box that shows what was picked. Nothing where the user cancels that box; the empty text, after
/// a box that tells so, where no folder was picked.
std::optional<std::string> ScegliCartellaServer();

/// Writes the seven pointer files of that folder, which other programs of the workstation read, in their order. Raises
/// platform::FileError at the first that can't be written.
void ScriviPuntatoriCartella(const std::string& cartella);

} // namespace vabo
