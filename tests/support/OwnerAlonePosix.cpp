#include "support/OwnerAlone.h"

namespace support {

namespace fs = std::filesystem;

bool isForOwnerAlone(const fs::path& path) {
    const fs::file_status status = fs::status(path);
    const fs::perms wanted =
        fs::is_directory(status) ? fs::perms::owner_all : fs::perms::owner_read | fs::perms::owner_write;
    return status.permissions() == wanted;
}

} // namespace support
