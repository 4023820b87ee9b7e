#include "start/FirstStart.h"

#include "kit/PulisciNome.h"
#include "os/Paths.h"
#include "platform/Dialogs.h"
#include "platform/Workstation.h"
#include "provision/Provision.h"

#include <exception>
#include <string>

namespace start {

namespace {

constexpr const char* kPointerFile = "C:\\vabo\\IndirizzoServer.txt";

const platform::DriveC& drive() {
    return platform::workstation().driveC;
}

std::string offer() {
    return "Questa postazione non è ancora configurata: manca il file che indica il server,\n" +
           os::utf8Of(drive().real(kPointerFile)) +
           "\n\nPreparare una postazione di prova, con un server proprio e due aziende di esempio?\n\n"
           "Si entra con il nome utente amministratore e la password primavera.";
}

} // namespace

bool isSetUp() {
    return drive().isFile(kPointerFile);
}

bool setUp() {
    if (!platform::dialogs().question(offer())) {
        return false;
    }
    provision::Plan plan{.driveC = drive().root(), .terminal = platform::workstation().machineName};
    vabo::PulisciNome(plan.terminal);
    try {
        provision::layDown(plan);
    } catch (const std::exception& error) {
        platform::dialogs().message(error.what(), platform::Icon::Stop);
        return false;
    }
    return true;
}

void tellNotStarted(const std::filesystem::path& console, std::error_code reason) {
    platform::dialogs().message("Il programma non si avvia: " + os::utf8Of(console) + "\n" + reason.message(),
                                platform::Icon::Stop);
}

} // namespace start
