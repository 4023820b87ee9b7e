#pragma once

#include "platform/DriveC.h"

#include <string>
#include <vector>

namespace provision {

/// The paths of the workstation's local files: one for each company, and the one with the customer's own reports.
std::vector<std::string> localFiles();

/// Creates them, with tables of their own and links that lead where the installer's example company was.
void makeLocalFiles(const platform::DriveC& drive);

} // namespace provision
