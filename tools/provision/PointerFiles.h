#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace provision {

/// A file of one line through which a workstation finds its servers and folders.
struct PointerFile {
    std::string path, line;
};

/// All that an installer writes for a workstation whose server and local instance are one.
std::vector<PointerFile> pointerFiles(std::string_view server);

} // namespace provision
