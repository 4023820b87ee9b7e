#include "kit/Titolo.h"

#include "platform/Workstation.h"

namespace vabo {

std::string NumeroDiVersione() {
    const platform::Workstation& macchina = platform::workstation();
    return std::to_string(macchina.versionMajor) + "." + std::to_string(macchina.versionMinor) + "." +
           std::to_string(macchina.versionRevision);
}

std::string ConVersione(const std::string& nome) {
    return nome + " - Ver.Nr. " + NumeroDiVersione();
}

} // namespace vabo
