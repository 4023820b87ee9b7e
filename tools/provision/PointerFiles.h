#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace provision {

/// A file of one line by which a workstation finds its servers and folders.
struct PointerFile {
    std::string path, line;
};

/// The files that an installer writes for a workstation whose server is also its local instance.
std::vector<PointerFile> pointerFiles(std::string_view server);

} // namespace provision
