#include "os/Files.h"

namespace os {

namespace fs = std::filesystem;

void makePrivateFolders(const fs::path& folder) {
    if (fs::exists(folder)) {
        return;
    }
    fs::path named = fs::absolute(folder).lexically_normal();
    if (!named.has_filename()) { // a separator stands behind the name
        named = named.parent_path();
    }
    fs::create_directories(named.parent_path());
    makePrivateFolder(named);
}

} // namespace os
