#include "rights/Permesso.h"

#include "platform/Dialogs.h"

namespace vabo {

bool Permesso(Flag diritto, const std::string& testo) {
    if (diritto != kFalso) {
        return true;
    }
    platform::dialogs().message(testo);
    return false;
}

} // namespace vabo
