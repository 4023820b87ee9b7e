#pragma once

#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vabo {

/// The pointer files of the folder on the server, in the order of their writing, with their bytes.
using Puntatori = std::vector<std::pair<std::string, std::string>>;

inline Puntatori puntatoriDi(const std::string& cartella) {
    return {{"DirectorySede.txt", cartella + "\r\n"},
            {"IndirizzoVabo.txt", cartella + "\\InstallazioneLoco\r\n"},
            {"IndirizzoVaboinstalla.txt", cartella + "\\InstallazioneLoco\\vabo\r\n"},
            {"IndirizzoVabodati.txt", cartella + "\\VaBoDati\r\n"},
            {"DirectoryHq.txt", cartella + "\\VaBoDatiHQ\r\n"},
            {"IndirizzoServerVabo.txt", cartella + "\r\n"},
            {"DirectoryBackup.txt", cartella + "\\Backup\r\n"}};
}

/// As they are on the disk; a file that is missing is empty.
inline Puntatori puntatori(const support::TestWorkstation& posto) {
    Puntatori tutti = puntatoriDi("");
    for (auto& [file, testo] : tutti) {
        testo = posto.fileText("C:\\vabo\\" + file).value_or("");
    }
    return tutti;
}

} // namespace vabo
