#include "session/ScegliFolder.h"

#include "kit/IsEmptyValue.h"
#include "platform/Dialogs.h"
#include "session/ApriDbSede.h"

#include <array>

namespace vabo {

namespace {

struct Puntatore {
    const char* file;
    const char* seguito; ///< what comes behind the folder
};

constexpr std::array<Puntatore, 7> kPuntatori = {{{"C:\\vabo\\DirectorySede.txt", ""},
                                                  {"C:\\vabo\\IndirizzoVabo.txt", "\\InstallazioneLoco"},
                                                  {"C:\\vabo\\IndirizzoVaboinstalla.txt", "\\InstallazioneLoco\\vabo"},
                                                  {"C:\\vabo\\IndirizzoVabodati.txt", "\\VaBoDati"},
                                                  {"C:\\vabo\\DirectoryHq.txt", "\\VaBoDatiHQ"},
                                                  {"C:\\vabo\\IndirizzoServerVabo.txt", ""},
                                                  {"C:\\vabo\\DirectoryBackup.txt", "\\Backup"}}};

} // namespace

std::string ScegliCartella(const std::string& titolo) {
    return platform::dialogs().folder(titolo);
}

void AnnunciaCartellaServer() {
    platform::dialogs().message("Selezionare la cartella VABO sul Server");
}

// The box of OK and Cancel comes for an empty choice too.
std::optional<std::string> ScegliCartellaServer() {
    const std::string cartella = ScegliCartella("Seleziona la cartella VABO sul Server");
    if (!platform::dialogs().confirm(cartella)) {
        return std::nullopt;
    }
    if (IsEmptyValue(cartella)) {
        platform::dialogs().message("Selezionare la directory di lavoro!");
        return std::string();
    }
    return cartella;
}

// Without a rule of its own.
void ScriviPuntatoriCartella(const std::string& cartella) {
    for (const auto& [file, seguito] : kPuntatori) {
        ScriviFileTesto(file, cartella + seguito);
    }
}

} // namespace vabo
