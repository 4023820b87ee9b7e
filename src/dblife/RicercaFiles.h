#pragma once

#include <string>

namespace vabo {

/// The folder, up to and including its last "\", of the file that the company's table DirectorySede names; empty where
/// the table is. A file whose path the table doesn't know is searched on the fixed disks, and its path is stored; where
/// it isn't found a box tells so and the empty text is stored. Raises ado::Error, and leaves the argument then.
void CercaDirectorySede(std::string& Cartella);

} // namespace vabo
